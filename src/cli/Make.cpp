#include "cli/Json.h"
#include "cli/MakeSources.h"
#include "cli/NewFile.h"
#include "cli/Streams.h"
#include "cli/Subcommands.h"

#include <cstdio>

namespace gp::cli {
namespace {

const char* encodingOf(const MadeImage& image) { return image.isPng ? "png" : "bmp"; }

void printText(std::size_t index, const MadeImage& image, const MakeSource& source) {
  std::printf("%zu\t%dx%d\t%d\t%s\t%zu\t%s\t%s\n", index, image.width, image.height, image.bits, encodingOf(image),
              image.bytes.size(), source.isScaled ? "scaled" : "unscaled", printable(source.name).c_str());
}

void printJson(std::size_t index, const MadeImage& image, const MakeSource& source) {
  std::printf(
      "{\"index\":%zu,\"width\":%d,\"height\":%d,\"bits\":%d,\"encoding\":\"%s\",\"bytes\":%zu,\"scaled\":%s,"
      "\"picture\":%s}",
      index, image.width, image.height, image.bits, encodingOf(image), image.bytes.size(),
      source.isScaled ? "true" : "false", jsonText(source.name).c_str());
}

void printImages(const std::vector<MadeImage>& images, const std::vector<MakeSource>& sources, bool asJson) {
  JsonArray array;
  for (std::size_t i = 0; i < images.size(); ++i) {
    if (asJson) array.next();
    (asJson ? printJson : printText)(i, images[i], sources[i]);
  }
  if (asJson) array.end();
}

bool areAlike(const MadeImage& a, const MadeImage& b) {
  return a.width == b.width && a.height == b.height && a.bits == b.bits;
}

// False, after an error message, when an image has the size and bits of one before it.
bool areDistinct(const std::vector<MadeImage>& images, const std::vector<MakeSource>& sources) {
  for (std::size_t i = 0; i < images.size(); ++i)
    for (std::size_t before = 0; before < i; ++before) {
      if (!areAlike(images[i], images[before])) continue;
      complain(sources[i].name, std::to_string(images[i].width) + "x" + std::to_string(images[i].height) + " with " +
                                    std::to_string(images[i].bits) + " bits, as " + sources[before].name);
      return false;
    }
  return true;
}

std::vector<std::uint8_t> composeFile(const std::vector<MadeImage>& images, const std::vector<MakeSource>& sources,
                                      bool isCursor) {
  if (!isCursor) return composeIconFile(images);
  std::vector<Hotspot> hotspots;
  hotspots.reserve(sources.size());
  for (const MakeSource& source : sources) hotspots.push_back(source.hotspot);
  return composeCursorFile(images, hotspots);
}

}  // namespace

int runMake(const Arguments& arguments) {
  const auto given = parseMake(arguments);
  if (!given) return kBadUsage;
  const auto sources = readSources(*given);
  if (!sources) return kRefused;
  std::vector<MadeImage> images;
  for (const MakeSource& source : *sources) images.push_back(makeImage(source.picture, given->settings));
  if (!areDistinct(images, *sources)) return kRefused;
  const int status = writeNewFile(given->output, composeFile(images, *sources, given->isCursor), given->replaces);
  if (status == kDone && !isStream(given->output)) printImages(images, *sources, given->asJson);
  return status;
}

}  // namespace gp::cli
