#include "files/EntryPreview.h"

#include "document/AlphaCompositing.h"
#include "document/Compositing.h"
#include "files/IconDecoder.h"

#include <utility>

namespace gp {
namespace {

bool isReadSize(const IconEntry& entry, SizeRule rule) {
  if (rule == SizeRule::Any) return entry.width > 0 && entry.height > 0;
  return entry.width == entry.height && isIconSize(entry.width);
}

// paintAlphaPreview: what the Mask lets through is the plain ground, and nothing is inverted.
Surface composedWithAlpha(const Surface& image, const Surface& mask, const AlphaMatrix& alpha) {
  Surface icon(image.width(), image.height(), kGround);
  composeAlpha(mask, image, alpha, icon);
  return icon;
}

}  // namespace

bool EntryPreview::show(const IconArrays& arrays, const IconEntry& entry, SizeRule rule, bool showAlpha) {
  if (!isReadSize(entry, rule)) return false;
  Surface image(entry.width, entry.height), mask(entry.width, entry.height);
  AlphaMatrix alpha;
  const IconPixels pixels{image, mask, alpha};
  if (decodeEntry(arrays.file.span(), entry, entry.width, entry.height, pixels) != IconDefect::None) return false;

  const bool hasAlpha = ColorsForEntry(entry, entry.bitCount) == kTrueColor;
  picIcon_ = hasAlpha && showAlpha ? composedWithAlpha(image, mask, alpha) : composedIcon(image, mask);
  if (hasAlpha) state_.gAlphaValues = std::move(alpha);
  picImageX_ = std::move(image);
  picMaskX_ = std::move(mask);
  for (Surface* surface : {&picImageX_, &picMaskX_, &picIcon_}) surface->makePersistent();
  return true;
}

void EntryPreview::clear() {
  for (Surface* surface : {&picImageX_, &picMaskX_, &picIcon_}) surface->resize(0, 0);
}

}  // namespace gp
