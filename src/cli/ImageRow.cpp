#include "cli/ImageRow.h"

#include "cli/ImageFile.h"

namespace gp::cli {
namespace {

// The depth by the bitmap header. Zeros for a PNG picture, which has none. A cursor's entry states no colours.
ColorDepth headerDepth(const IconFile& file, const IconEntry& entry) {
  if (isPngImage(file, entry)) return {};
  const int bits = headerBitCount(file, entry);
  return file.isCursor() ? depthOfBits(bits) : depthOfEntry(entry, bits);
}

std::string field(const char* name, std::int64_t value) {
  return "\"" + std::string(name) + "\":" + std::to_string(value);
}

std::string depthFields(const char* colors, const char* bits, ColorDepth depth) {
  return field(colors, depth.colors) + "," + field(bits, depth.bits);
}

}  // namespace

ImageRow rowOf(const IconFile& file, int index) {
  const IconEntry entry = file.entry(index);
  ImageRow row;
  row.index = index;
  row.width = sideOf(entry.width);
  row.height = sideOf(entry.height);
  row.header = headerDepth(file, entry);
  row.directory = file.isCursor() ? row.header : depthOfEntry(entry);
  row.bytes = entry.bytesInRes;
  row.offset = entry.imageOffset;
  row.encoding = isPngImage(file, entry) ? "png" : "bmp";
  row.usable = isUsableImage(file, index);
  row.hasHotspot = file.isCursor();
  row.hotspotX = entry.hotspotX();
  row.hotspotY = entry.hotspotY();
  return row;
}

std::string jsonOf(const ImageRow& row) {
  std::string text = "{" + field("index", row.index);
  if (row.id) text += "," + field("id", *row.id);
  text += "," + field("width", row.width) + "," + field("height", row.height) + "," +
          depthFields("colors", "bits", row.directory) + "," + depthFields("headerColors", "headerBits", row.header) +
          "," + field("bytes", static_cast<std::int64_t>(row.bytes)) + "," +
          field("offset", static_cast<std::int64_t>(row.offset)) + ",\"encoding\":\"" + row.encoding +
          "\",\"usable\":" + (row.usable ? "true" : "false");
  if (row.hasHotspot) text += "," + field("hotspotX", row.hotspotX) + "," + field("hotspotY", row.hotspotY);
  return text + "}";
}

std::string shortText(const ImageRow& row) {
  return std::to_string(row.width) + "x" + std::to_string(row.height) + "x" + std::to_string(row.directory.bits);
}

}  // namespace gp::cli
