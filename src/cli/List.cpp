#include "cli/AniListing.h"
#include "cli/ImageFile.h"
#include "cli/ImageRow.h"
#include "cli/Json.h"
#include "cli/Subcommands.h"

#include <cstdint>
#include <cstdio>

namespace gp::cli {
namespace {

void printText(const std::string& path, const ImageRow& row) {
  std::printf("%s\t%d\t%dx%d\t%d\t%d\t%d\t%d\t%ju\t%ju\t%s\t%s", printable(path).c_str(), row.index, row.width,
              row.height, row.directory.colors, row.directory.bits, row.header.colors, row.header.bits,
              static_cast<std::uintmax_t>(row.bytes), static_cast<std::uintmax_t>(row.offset), row.encoding,
              row.usable ? "usable" : "unusable");
  if (row.hasHotspot) std::printf("\t%d\t%d", row.hotspotX, row.hotspotY);
  std::putchar('\n');
}

void printImagesAsText(const std::string& path, const IconFile& file) {
  for (int i = 0; i < file.directory.presentCount(); ++i) printText(path, rowOf(file, i));
}

void printImagesAsJson(const std::string& path, const IconFile& file) {
  std::printf("{\"file\":%s,\"kind\":\"%s\",\"images\":[", jsonText(path).c_str(), file.isCursor() ? "cur" : "ico");
  for (int i = 0; i < file.directory.presentCount(); ++i) {
    std::fputs(i == 0 ? "\n" : ",\n", stdout);
    std::fputs(jsonOf(rowOf(file, i)).c_str(), stdout);
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
