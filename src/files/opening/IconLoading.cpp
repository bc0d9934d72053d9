#include "files/opening/IconLoading.h"

#include "files/format/PngEntry.h"

namespace gp {
namespace {

constexpr const char* kIcoLabel = "ICO file";

}  // namespace

DecodedIcon loadIconImage(const IconFile& file, int index, bool checkSize, const std::optional<ReadSize>& size) {
  if (!file.isIcon()) return {IconDefect::NotAnIcon, {}};
  if (index < 0 || index >= file.directory.count) return {IconDefect::NoSuchEntry, {}};
  const IconEntry entry = shownEntry(file, file.entry(index));
  const ReadSize wanted = size.value_or(ReadSize{entry.width, entry.height});
  if (checkSize && !isIconSize(wanted.width, wanted.height)) return {IconDefect::SizeNotOffered, {}};
  return decodeEntry(file, entry, wanted.width, wanted.height);
}

IconContainerRec recordOfLoadedIcon(const IconFacts& facts, const IconImage& icon, const std::string& path) {
  IconContainerRec record;
  record.used = true;
  record.sourceLabel = kIcoLabel;
  record.setDepth(icon.hasAlphaValues() ? facts.depth() : facts.depth().withoutAlpha());
  record.setHeaderDepth(facts.header);
  record.hasAlpha = record.depth().hasAlpha();
  record.present = true;
  record.path = path;
  record.fromMultiIconFile = facts.hasSeveralEntries();
  // A later save must replace the entry that was opened.
  record.multiIconIndex = static_cast<std::int16_t>(facts.chosen);
  return record;
}

}  // namespace gp
