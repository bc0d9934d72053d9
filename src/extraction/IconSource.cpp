#include "extraction/IconSource.h"

#include "files/format/ImageDrawing.h"
#include "platform/text/Utf8.h"

#include <filesystem>

namespace gp {
namespace {

constexpr int kLargestInCell = 32;

}  // namespace

ListCell drawnCell(const IconImage& handle, std::string label) {
  Surface picture = drawnOn(handle, kGround);
  if (picture.width() > kLargestInCell) picture = scaledTo(picture, kLargestInCell);
  return {.label = std::move(label), .isDrawn = true, .side = handle.width(), .picture = std::move(picture)};
}

ListCell invalidCell(std::string label) { return {.label = std::move(label), .isDrawn = true, .valid = false}; }

std::string numberLabel(int index) { return "  " + std::to_string(index + 1); }

std::string fileLabel(const std::string& path, int longest) {
  const std::string name = std::filesystem::path(path).stem().string();
  return countCharacters(name) > longest ? firstCharacters(name, longest) + ".." : name;
}

std::string pathStem(const std::string& path) {
  const std::filesystem::path file(path);
  return (file.parent_path() / file.stem()).string();
}

std::string IconSource::nameOf(int index) const { return pathStem(fileOf(index)) + "_" + std::to_string(index + 1); }

}  // namespace gp
