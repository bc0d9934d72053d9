#include "files/IconLoading.h"

#include "document/Containers.h"

namespace gp {
namespace {

constexpr const char* kIcoLabel = "ICO file";
constexpr int kBitsWithAlpha = 32;
constexpr int kBitsWithoutAlpha = 24;

// The bit count, where 32 is kept only with alpha values of the icon's width at hand.
int keptBitCount(const EditState& state, const IconFacts& facts) {
  const int bits = facts.bitCount();
  return bits == kBitsWithAlpha && state.gAlphaValues.width() != facts.width ? kBitsWithoutAlpha : bits;
}

}  // namespace

IconDefect loadIconPixels(std::span<const std::uint8_t> file, int index, SizeSource sizeSource, bool checkSize,
                          EditState& state, Surface& image, Surface& mask) {
  const IconDirectory directory = parseIconDirectory(file);
  if (!directory.isIcon()) return IconDefect::NotAnIcon;
  if (index < 0 || index >= directory.count) return IconDefect::NoSuchEntry;
  const IconEntry entry = directory.entry(index);
  const int width = sizeSource == SizeSource::Surface ? image.width() : entry.width;
  const int height = sizeSource == SizeSource::Surface ? image.height() : entry.height;
  if (checkSize && (width != height || !isIconSize(width))) return IconDefect::SizeNotOffered;

  const IconDefect defect = decodeEntry(file, entry, width, height, {image, mask, state.gAlphaValues});
  if (defect != IconDefect::None) return defect;
  image.makePersistent();
  mask.makePersistent();
  return defect;
}

void emptyContainerFor(EditState& state, Editor& editor, int size) {
  editor.clearRegion();
  editor.clearUndoHistory();
  editor.ClearContainer();
  state.picDisp.clearPicture();
  state.current().size = static_cast<std::int16_t>(size);
  editor.SizePanelSurfaces(size);
  editor.SizeEditSurfaces(size);
}

void describeLoadedIcon(EditState& state, const IconFacts& facts, const std::string& path) {
  IconContainerRec& record = state.current();
  record.used = true;
  record.sourceLabel = kIcoLabel;
  record.dirColors = facts.dirColors;
  record.bitCount = static_cast<std::int16_t>(keptBitCount(state, facts));
  record.hasAlpha = record.bitCount == kBitsWithAlpha;
  record.bihColors = facts.headerColors;
  record.bihBitCount = static_cast<std::int16_t>(facts.headerBits);
  record.present = true;
  record.path = path;
  record.clearOrigin();
  record.fromMultiIconFile = facts.hasSeveralEntries();
  // The entry that a later save puts back must be the one that was opened.
  record.multiIconIndex = static_cast<std::int16_t>(facts.chosen);
}

bool keepLoadedAlpha(EditState& state) {
  IconContainerRec& record = state.current();
  if (!PrepareAlphaRec(state) || !record.hasAlpha || StoreAlphaToRec(state)) return true;
  record.hasAlpha = false;
  record.bitCount = kBitsWithoutAlpha;
  return false;
}

void showLoadedIcon(Editor& editor) {
  editor.UpdatePanelFromCurrent();
  editor.ComposeCurrentIcon();
  editor.ShowCurrentIcon();
  editor.clearUndoHistory();
  editor.recordUndo();
}

}  // namespace gp
