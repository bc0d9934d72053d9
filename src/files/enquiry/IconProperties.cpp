#include "files/enquiry/IconProperties.h"

#include "colour/ColorCount.h"
#include "files/format/IcoLayout.h"
#include "files/format/IconWriter.h"
#include "platform/text/Paths.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace gp {
namespace {

constexpr std::array<std::string_view, 3> kFileSources{"CUR", "ICO", "BMP"};
constexpr const char* kWithAlpha = "[With Alpha Channel]\n";

std::string text(int number) { return std::to_string(number); }

std::string sourceText(const IconContainerRec& record) {
  const std::string source = record.sourceLabel.trimmed();
  const auto begins = [&source](std::string_view word) { return source.starts_with(word); };
  std::string lines = "Source:    " + source + "\n";
  if (std::ranges::none_of(kFileSources, begins)) return lines;
  lines += "File spec:    " + ShortenPath(record.path.trimmed()) + "    \n";
  if (begins("ICO") && record.fromMultiIconFile)
    lines += "(Index Ref " + text(record.multiIconIndex) + " in multi-icon file)\n";
  if (begins("CUR") && record.isCursor)
    lines += "[Hotspot:    " + text(record.hotspotX) + ", " + text(record.hotspotY) + "]\n";
  return lines;
}

std::string originalDepthText(const IconContainerRec& record) {
  if (record.bitCount <= 0) return {};
  const std::string colors = record.isTrueColor() ? "True-color" : text(record.dirColors) + "-color";
  return "Color-depth per original:   " + colors + "  " + text(record.bihBitCount) + " BPP   \n" +
         (record.isAlphaIcon() ? kWithAlpha : "");
}

std::string presentDepthText(ColorDepth depth) {
  const std::string colors = depth.isTrueColor() ? "True-color" : text(depth.colors) + "-color";
  return "Current color-depth:   " + colors + "  " + text(depth.bits) + " BPP\n" + (depth.hasAlpha() ? kWithAlpha : "");
}

}  // namespace

ColorDepth presentDepth(const IconContainerRec& record, const Surface& image) {
  int colors = 0;
  GetColorBitCount_Image(image, colors);
  const bool isTrueColor = record.hasAlpha || record.isTrueColor();
  return depthOfColors(isTrueColor ? kTrueColor : colors, record.hasAlpha);
}

std::uint32_t bytesWhenSaved(const IconContainerRec& record, const IconImage& icon) {
  const ColorDepth depth = record.hasAlpha ? depthOfColors(kTrueColor, true) : depthToWrite(icon, record);
  return ico::kSingleImageOffset + IconByteSize(depth.colors, depth.bits, icon.width(), icon.height());
}

std::string propertiesText(const IconContainerRec& record, const Surface& image, bool isChanged) {
  return "PROPERTIES OF CURRENT ICON:  \n\n\nPosition in Icons Panel:    " + text(record.seq + 1) + " (of " +
         text(kContainerCount) + ")\n" + sourceText(record) + "\nIcon size:    " + text(record.size) + " x " +
         text(record.size) + "\n\n" + originalDepthText(record) + "\n" + presentDepthText(presentDepth(record, image)) +
         "\nChange made:    " + (isChanged ? "Yes" : "No") + "\n\n";
}

}  // namespace gp
