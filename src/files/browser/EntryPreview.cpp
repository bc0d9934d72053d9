#include "files/browser/EntryPreview.h"

#include "document/AlphaCompositing.h"
#include "document/Compositing.h"
#include "document/IconContainerRec.h"
#include "files/format/PngEntry.h"

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

// The Mask of a bitmap marks its transparent pixels, that of a PNG picture only those without any alpha.
Surface composedPlain(const IconImage& icon, bool isPng) {
  if (!isPng) return composedIcon(icon.image, icon.mask);
  const IconImage plain = withoutAlpha(icon);
  return composedIcon(plain.image, plain.mask);
}

}  // namespace

bool EntryPreview::show(const IconArrays& arrays, const IconEntry& entry, SizeRule rule, bool showAlpha) {
  const IconEntry shown = shownEntry(arrays.file, entry);
  if (!isReadSize(shown, rule)) return false;
  DecodedIcon decoded = decodeEntry(arrays.file, shown, shown.width, shown.height);
  if (!decoded.isRead()) return false;
  icon_ = std::move(decoded.icon);
  const bool hasAlpha = depthOfEntry(shown).isTrueColor();
  picIcon_ = hasAlpha && showAlpha ? composedWithAlpha(icon_) : composedPlain(icon_, isPngImage(arrays.file, shown));
  picIcon_.makePersistent();
  return true;
}

void EntryPreview::clear() {
  icon_ = {};
  picIcon_.resize(0, 0);
}

}  // namespace gp
