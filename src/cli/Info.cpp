#include "cli/EntryLoading.h"
#include "cli/ImageFile.h"
#include "cli/Json.h"
#include "cli/Subcommands.h"
#include "colour/ColorCount.h"
#include "files/enquiry/IconProperties.h"

#include <cstdio>

namespace gp::cli {
namespace {

constexpr std::size_t kFileAndIndex = 2;

// What is reported about one image.
struct Properties {
  int index = 0, size = 0;
  ColorDepth original, header, present;
  int colorsUsed = 0;
  unsigned bytes = 0;
};

// Empty for an image that the editor does not open.
std::optional<Properties> propertiesOf(const IconFile& file, int index, const std::string& path, IconDefect& defect) {
  const auto loaded = loadEntry(file, index, path, defect);
  if (!loaded) return std::nullopt;
  const IconContainerRec& record = loaded->record;
  return Properties{index,
                    loaded->icon.width(),
                    record.depth(),
                    record.headerDepth(),
                    presentDepth(record, loaded->icon.image),
                    CountColors(loaded->icon.image),
                    bytesWhenSaved(record, loaded->icon)};
}

void printText(const std::string& path, const Properties& p) {
  std::printf("%s\t%d\t%dx%d\t%d\t%d\t%d\t%d\t%d\t%d\t%d\t%u\n", printable(path).c_str(), p.index, p.size, p.size,
              p.original.colors, p.original.bits, p.header.colors, p.header.bits, p.present.colors, p.present.bits,
              p.colorsUsed, p.bytes);
}

void printJson(const std::string& path, const Properties& p) {
  std::printf(
      "{\"file\":%s,\"index\":%d,\"size\":%d,\"colors\":%d,\"bits\":%d,\"headerColors\":%d,\"headerBits\":%d,"
      "\"presentColors\":%d,\"presentBits\":%d,\"colorsUsed\":%d,\"bytesWhenSaved\":%u}",
      jsonText(path).c_str(), p.index, p.size, p.original.colors, p.original.bits, p.header.colors, p.header.bits,
      p.present.colors, p.present.bits, p.colorsUsed, p.bytes);
}

void print(const std::string& path, const Properties& properties, JsonArray* array) {
  if (!array) return printText(path, properties);
  array->next();
  printJson(path, properties);
}

// Prints each of `count` images from `first` on that the editor opens, and returns how many. `defect` is that of the
// last one that it does not open.
int printAll(const std::string& path, const IconFile& file, int first, int count, JsonArray* array,
             IconDefect& defect) {
  int printed = 0;
  for (int i = 0; i < count; ++i) {
    const auto properties = propertiesOf(file, first + i, path, defect);
    if (!properties) continue;
    print(path, *properties, array);
    ++printed;
  }
  return printed;
}

}  // namespace

int runInfo(const Arguments& arguments) {
  Arguments rest = arguments;
  const bool asJson = takeFlag(rest, "--json");
  const Split split = splitOptions(rest);
  if (!split.options.empty()) return badUsage("info: unknown option " + split.options.front());
  if (split.files.empty() || split.files.size() > kFileAndIndex) return badUsage("info: FILE [INDEX] is needed");
  const bool isOne = split.files.size() == kFileAndIndex;
  int index = 0;
  if (isOne && !parseNumber(split.files[1], index)) return badUsage("info: the index is no number");
  const auto file = openIconFile(split.files.front());
  if (!file) return kRefused;
  JsonArray array;
  IconDefect defect = IconDefect::None;
  const int printed = printAll(split.files.front(), *file, index, isOne ? 1 : file->directory.presentCount(),
                               asJson ? &array : nullptr, defect);
  if (asJson) array.end();
  if (printed > 0) return kDone;
  complain(split.files.front(), isOne ? describe(defect) : "no usable image");
  return kRefused;
}

}  // namespace gp::cli
