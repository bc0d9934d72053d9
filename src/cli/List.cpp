#include "cli/Json.h"
#include "cli/Subcommands.h"
#include "files/IconProbe.h"

#include <cstdio>

namespace gp::cli {
namespace {

// A byte of 0 stands for 256 pixels.
constexpr int kSideOfZero = 256;

// One image as it is listed.
struct ImageRow {
  int index, width, height;
  int colors, bits, headerColors, headerBits;
  unsigned bytes, offset;
  const char* encoding;
  bool usable;
};

int sideOf(int told) { return told == 0 ? kSideOfZero : told; }

ImageRow rowOf(const IconFile& file, int index) {
  const auto bytes = file.bytes.span();
  const IconEntry entry = file.directory.entry(index);
  IconFacts facts = factsOfEntry(bytes, file.directory, index);
  const bool isPng = isPngImage(bytes, entry);
  if (isPng) facts.headerColors = facts.headerBits = 0;  // there is no bitmap header
  return {index,
          sideOf(entry.width),
          sideOf(entry.height),
          facts.dirColors,
          facts.dirBits,
          facts.headerColors,
          facts.headerBits,
          entry.bytesInRes,
          entry.imageOffset,
          isPng ? "png" : "bmp",
          isUsableEntry(bytes, entry)};
}

void printText(const std::string& path, const ImageRow& row) {
  std::printf("%s\t%d\t%dx%d\t%d\t%d\t%d\t%d\t%u\t%u\t%s\t%s\n", path.c_str(), row.index, row.width, row.height,
              row.colors, row.bits, row.headerColors, row.headerBits, row.bytes, row.offset, row.encoding,
              row.usable ? "usable" : "unusable");
}

void printJson(const ImageRow& row) {
  std::printf(
      "{\"index\":%d,\"width\":%d,\"height\":%d,\"colors\":%d,\"bits\":%d,\"headerColors\":%d,\"headerBits\":%d,"
      "\"bytes\":%u,\"offset\":%u,\"encoding\":\"%s\",\"usable\":%s}",
      row.index, row.width, row.height, row.colors, row.bits, row.headerColors, row.headerBits, row.bytes, row.offset,
      row.encoding, row.usable ? "true" : "false");
}

int imageCount(const IconFile& file) { return static_cast<int>(file.directory.entries.size()); }

int listAsText(const Arguments& files) {
  int status = kDone;
  for (const std::string& path : files) {
    const auto file = openIconFile(path);
    if (!file) status = kRefused;
    for (int i = 0; file && i < imageCount(*file); ++i) printText(path, rowOf(*file, i));
  }
  return status;
}

int listAsJson(const Arguments& files) {
  int status = kDone;
  const char* separator = "[";
  for (const std::string& path : files) {
    const auto file = openIconFile(path);
    if (!file) {
      status = kRefused;
      continue;
    }
    std::printf("%s\n{\"file\":%s,\"kind\":\"ico\",\"images\":[", separator, jsonText(path).c_str());
    for (int i = 0; i < imageCount(*file); ++i) {
      std::fputs(i == 0 ? "\n" : ",\n", stdout);
      printJson(rowOf(*file, i));
    }
    std::fputs("]}", stdout);
    separator = ",";
  }
  std::fputs(*separator == '[' ? "[]\n" : "\n]\n", stdout);
  return status;
}

}  // namespace

int runList(const Arguments& arguments) {
  const Split split = splitOptions(arguments);
  bool json = false;
  for (const std::string& option : split.options) {
    if (option != "--json") return badUsage("list: unknown option " + option);
    json = true;
  }
  if (split.files.empty()) return badUsage("list: no file given");
  return json ? listAsJson(split.files) : listAsText(split.files);
}

}  // namespace gp::cli
