#include "files/opening/FileIcon.h"

#include "files/cursor/CursorLoading.h"
#include "files/format/IconProbe.h"
#include "files/format/PngEntry.h"

#include <algorithm>
#include <tuple>
#include <vector>

namespace gp {
namespace {

// A list of files must not wait for one of thousands of entries.
constexpr std::size_t kMostEntries = 100;

// Entries that suit better come first.
auto rankOf(const IconEntry& entry, int side) {
  const bool fits = entry.width <= side;
  return std::tuple(!fits, fits ? -entry.width : entry.width, -entry.bitCount);
}

std::vector<IconEntry> entriesOf(const IconFile& file, int side) {
  std::vector<IconEntry> entries;
  for (const IconEntry& entry : file.directory.entries) {
    if (entries.size() == kMostEntries) break;
    entries.push_back(shownEntry(file, entry));
  }
  std::ranges::stable_sort(entries, {}, [side](const IconEntry& entry) { return rankOf(entry, side); });
  return entries;
}

}  // namespace

IconImage iconOfFile(const std::string& path, int side) {
  const auto file = readIconFile(path);
  if (!file) return {};
  if (file->isCursor()) return loadCursorImage(*file).icon;
  if (!file->isIcon()) return {};
  for (const IconEntry& entry : entriesOf(*file, side))
    if (DecodedIcon decoded = decodeUsableEntry(*file, entry); decoded.isRead()) return std::move(decoded.icon);
  return {};
}

}  // namespace gp
