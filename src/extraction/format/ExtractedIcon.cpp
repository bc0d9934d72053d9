#include "extraction/format/ExtractedIcon.h"

#include "colour/ColorCount.h"
#include "files/format/IconWriter.h"

namespace gp {
namespace {

constexpr const char* kExtractedLabel = "Extraction";
constexpr const char* kExtractedName = "Extracted";

}  // namespace

ColorDepth depthOfExtracted(const IconImage& icon) {
  if (icon.hasAlphaValues()) return depthOfColors(kTrueColor, true);
  int colors = 0;
  GetColorBitCount_Image(icon.image, colors);
  return depthOfColors(colors);
}

IconContainerRec recordOfExtracted(const IconImage& icon, const std::string& name) {
  IconContainerRec record;
  record.used = true;
  record.present = true;
  record.sourceLabel = kExtractedLabel;
  record.size = static_cast<std::int16_t>(icon.width());
  record.setDepth(depthOfExtracted(icon));
  record.setHeaderDepth(record.depth());
  record.hasAlpha = icon.hasAlphaValues();
  record.path = name.empty() ? kExtractedName : name;
  record.neverSaved = true;
  return record;
}

bool isUnsavedExtraction(const IconContainerRec& record) {
  return record.used && record.neverSaved && record.sourceLabel.trimmed() == kExtractedLabel;
}

std::vector<std::uint8_t> fileOfExtracted(const IconImage& icon) {
  return composeSingleIcon(icon, depthOfExtracted(icon));
}

}  // namespace gp
