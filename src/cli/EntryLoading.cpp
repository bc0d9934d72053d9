#include "cli/EntryLoading.h"

#include "cli/Console.h"
#include "document/Containers.h"
#include "files/format/IconProbe.h"
#include "files/format/IconWriter.h"
#include "files/opening/IconLoading.h"

namespace gp::cli {
namespace {

IconDefect loadChosenEntry(const IconFile& file, const std::string& path, EditState& state) {
  const IconFacts facts = probeIcon(file, true);
  if (facts.kind == 0) return IconDefect::NotAnIcon;
  return facts.canBeOpened() ? loadEntry(file, facts.chosen, path, state) : IconDefect::SizeNotOffered;
}

// The Current Icon as the editor would save it.
FileBytes savedForm(const EditState& state) {
  const IconContainerRec& record = state.current();
  const AlphaMatrix& alpha = state.mAlphaRecs.at(static_cast<std::size_t>(state.mCurContainer));
  const int colors = colorsToWrite(state.picImage, record.dirColors);
  return FileBytes(
      composeSingleIcon(state.picImage, state.picMask, colors, isWrittenWithAlpha(record) ? &alpha : nullptr));
}

}  // namespace

IconDefect loadEntry(const IconFile& file, int index, const std::string& path, EditState& state) {
  if (index >= file.directory.count) return IconDefect::NoSuchEntry;
  const IconEntry entry = file.entry(index);
  if (const IconDefect defect = defectOfEntry(file, entry); defect != IconDefect::None) return defect;
  const IconFacts facts = factsOfEntry(file, index);
  DecodedIcon decoded = loadIconImage(file, index, true);
  if (!decoded.isRead()) return decoded.defect;
  SetRecord(state, state.mCurContainer, decoded.icon, recordOfLoadedIcon(facts, decoded.icon, path));
  state.picImage = std::move(decoded.icon.image);
  state.picMask = std::move(decoded.icon.mask);
  return IconDefect::None;
}

std::optional<NewIcon> loadNewIcon(const std::string& path) {
  const auto file = openIconFile(path);
  if (!file) return std::nullopt;
  EditState state;
  if (const IconDefect defect = loadChosenEntry(*file, path, state); defect != IconDefect::None) {
    complain(path, describe(defect));
    return std::nullopt;
  }
  auto image = imageOfSingleIcon(savedForm(state));
  if (!image) return std::nullopt;
  return NewIcon{traitsToWrite(state), std::move(*image)};
}

}  // namespace gp::cli
