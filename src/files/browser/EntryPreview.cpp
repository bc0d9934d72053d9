#include "files/browser/EntryPreview.h"

#include "document/AlphaCompositing.h"
#include "document/Compositing.h"
#include "document/IconContainerRec.h"
#include "files/format/IconDecoder.h"

#include <utility>

namespace gp {
namespace {

bool isReadSize(const IconEntry& entry, SizeRule rule) {
  if (rule == SizeRule::Any) return entry.width > 0 && entry.height > 0;
  return isIconSize(entry.width, entry.height);
}

// paintAlphaPreview: transparent pixels show the plain background, and no pixel is inverted.
Surface composedWithAlpha(const IconImage& icon) {
  Surface composed(icon.width(), icon.height(), kGround);
  composeAlpha(icon.mask, icon.image, icon.alpha, composed);
  return composed;
}

}  // namespace

bool EntryPreview::show(const IconArrays& arrays, const IconEntry& entry, SizeRule rule, bool showAlpha) {
  if (!isReadSize(entry, rule)) return false;
  DecodedIcon decoded = decodeEntry(arrays.file, entry, entry.width, entry.height);
  if (!decoded.isRead()) return false;
  icon_ = std::move(decoded.icon);
  const bool hasAlpha = depthOfEntry(entry).isTrueColor();
  picIcon_ = hasAlpha && showAlpha ? composedWithAlpha(icon_) : composedIcon(icon_.image, icon_.mask);
  picIcon_.makePersistent();
  return true;
}

void EntryPreview::clear() {
  icon_ = {};
  picIcon_.resize(0, 0);
}

}  // namespace gp
