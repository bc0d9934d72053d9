#include "extraction/sources/FolderSource.h"

#include "document/AlphaCompositing.h"
#include "document/Compositing.h"
#include "files/format/ImageDrawing.h"
#include "files/opening/IconLoading.h"
#include "platform/files/Files.h"

#include <filesystem>

namespace gp {
namespace {

constexpr const char* kPattern = "*.ico";
constexpr int kLongestLabel = 8;
constexpr int kLargestInCell = 32;

Surface composed(const IconImage& icon, bool hasAlpha) {
  if (!hasAlpha || !icon.hasAlphaValues()) return composedIcon(icon.image, icon.mask);
  Surface picture(icon.width(), icon.height(), kGround);
  composeAlpha(icon.mask, icon.image, icon.alpha, picture);
  return picture;
}

}  // namespace

FolderSource::FolderSource(std::string folder) : folder_(std::move(folder)), names_(filesInFolder(folder_, kPattern)) {}

std::string FolderSource::fileOf(int index) const {
  return (std::filesystem::path(folder_) / names_.at(static_cast<std::size_t>(index))).string();
}

// previewIconFile.
ListCell FolderSource::cell(int index) {
  const std::string path = fileOf(index);
  ListCell cell = invalidCell(fileLabel(path, kLongestLabel));
  const auto file = readIconFile(path);
  if (!file) return cell;
  const IconFacts facts = probeIcon(*file, true);
  cell.isMultiIcon = facts.hasSeveralEntries();
  const DecodedIcon decoded = facts.canBeOpened() ? loadIconImage(*file, facts.chosen, true) : DecodedIcon();
  if (!facts.canBeOpened() || !decoded.isRead()) return cell;
  cell.valid = true;
  cell.side = decoded.icon.width();
  cell.picture = composed(decoded.icon, facts.depth().hasAlpha());
  if (cell.side > kLargestInCell) cell.picture = scaledTo(cell.picture, kLargestInCell);
  return cell;
}

}  // namespace gp
