#include "cli/AniListing.h"
#include "cli/ImageFile.h"
#include "cli/Json.h"
#include "cli/Subcommands.h"

#include <cstdio>

namespace gp::cli {
namespace {

// One image in the list.
struct ImageRow {
  int index, width, height;
  ColorDepth directory, header;
  unsigned bytes, offset;
  const char* encoding;
  bool usable;
  bool hasHotspot;
  int hotspotX, hotspotY;
};

// The depth by the bitmap header. Zeros for a PNG picture, which has none. A cursor's entry states no colours.
ColorDepth headerDepth(const IconFile& file, const IconEntry& entry) {
  if (isPngImage(file, entry)) return {};
  const int bits = headerBitCount(file, entry);
  return file.isCursor() ? depthOfBits(bits) : depthOfEntry(entry, bits);
}

ImageRow rowOf(const IconFile& file, int index) {
  const IconEntry entry = file.entry(index);
  const ColorDepth header = headerDepth(file, entry);
  return {index,
          sideOf(entry.width),
          sideOf(entry.height),
          file.isCursor() ? header : depthOfEntry(entry),
          header,
          entry.bytesInRes,
          entry.imageOffset,
          isPngImage(file, entry) ? "png" : "bmp",
          isUsableImage(file, index),
          file.isCursor(),
          entry.hotspotX(),
          entry.hotspotY()};
}

void printText(const std::string& path, const ImageRow& row) {
  std::printf("%s\t%d\t%dx%d\t%d\t%d\t%d\t%d\t%u\t%u\t%s\t%s", printable(path).c_str(), row.index, row.width,
              row.height, row.directory.colors, row.directory.bits, row.header.colors, row.header.bits, row.bytes,
              row.offset, row.encoding, row.usable ? "usable" : "unusable");
  if (row.hasHotspot) std::printf("\t%d\t%d", row.hotspotX, row.hotspotY);
  std::putchar('\n');
}

void printJson(const ImageRow& row) {
  std::printf(
      "{\"index\":%d,\"width\":%d,\"height\":%d,\"colors\":%d,\"bits\":%d,\"headerColors\":%d,\"headerBits\":%d,"
      "\"bytes\":%u,\"offset\":%u,\"encoding\":\"%s\",\"usable\":%s",
      row.index, row.width, row.height, row.directory.colors, row.directory.bits, row.header.colors, row.header.bits,
      row.bytes, row.offset, row.encoding, row.usable ? "true" : "false");
  if (row.hasHotspot) std::printf(",\"hotspotX\":%d,\"hotspotY\":%d", row.hotspotX, row.hotspotY);
  std::putchar('}');
}

void printImagesAsText(const std::string& path, const IconFile& file) {
  for (int i = 0; i < file.directory.presentCount(); ++i) printText(path, rowOf(file, i));
}

void printImagesAsJson(const std::string& path, const IconFile& file) {
  std::printf("{\"file\":%s,\"kind\":\"%s\",\"images\":[", jsonText(path).c_str(), file.isCursor() ? "cur" : "ico");
  for (int i = 0; i < file.directory.presentCount(); ++i) {
    std::fputs(i == 0 ? "\n" : ",\n", stdout);
    printJson(rowOf(file, i));
  }
  std::fputs("]}", stdout);
}

int listAsText(const Arguments& files) {
  int status = kDone;
  for (const std::string& path : files) {
    const auto file = openAnyFile(path);
    if (!file)
      status = kRefused;
    else if (isAnimated(*file, path))
      printAniAsText(path, file->span());
    else
      printImagesAsText(path, *file);
  }
  return status;
}

int listAsJson(const Arguments& files) {
  int status = kDone;
  JsonArray array;
  for (const std::string& path : files) {
    const auto file = openAnyFile(path);
    if (!file) status = kRefused;
    if (!file) continue;
    array.next();
    isAnimated(*file, path) ? printAniAsJson(path, file->span()) : printImagesAsJson(path, *file);
  }
  array.end();
  return status;
}

}  // namespace

int runList(const Arguments& arguments) {
  ListArguments given;
  if (const int status = takeListArguments("list", arguments, given); status != kDone) return status;
  return given.asJson ? listAsJson(given.files) : listAsText(given.files);
}

}  // namespace gp::cli
