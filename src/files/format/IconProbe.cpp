#include "files/format/IconProbe.h"

#include "document/IconSizes.h"
#include "files/format/IcoLayout.h"
#include "files/format/PngEntry.h"

#include <algorithm>

namespace gp {
namespace {

constexpr int kOneEntry = 1;
constexpr int kSeveralEntries = 2;
constexpr int kPreferredSize = 32;

bool isSquareIcon(const IconEntry& entry) { return entry.width == entry.height && isIconSize(entry.width); }

// A side that a directory can state other than by 0.
bool isStatedSide(int side) { return side >= 1 && side <= ico::kMaxEntrySide; }

// Checks on the first entry. A file that fails them does not count as an icon.
bool isSound(const IconEntry& first) {
  return isStatedSide(first.width) && isStatedSide(first.height) && first.bytesInRes > 0 && first.imageOffset > 0;
}

IconFacts nothingUsable(int kind) {
  IconFacts facts;
  facts.kind = kind;
  return facts;
}

IconFacts probeSingle(const IconFile& file) {
  const IconEntry entry = shownEntry(file, file.entry(0));
  if (!isIconSize(entry.width) || !isIconSize(entry.height)) return nothingUsable(kOneEntry);
  IconFacts facts = factsOfEntry(file, 0);
  facts.usable = 1;
  return facts;
}

// A picture that cannot be decoded must not take the place of another image.
bool isDamagedPng(const IconFile& file, const IconEntry& entry) {
  return isPngImage(file, entry) && !decodePngEntry(file, entry, entry.width, entry.height).isRead();
}

// Scans a file with several entries. A first 32x32 entry does not end the scan, even if it has 8 bits.
class EntryScan {
 public:
  EntryScan(const IconFile& file, bool preferEightBit) : file_(file), preferEightBit_(preferEightBit) {}

  IconFacts run() {
    for (int i = 0; i < file_.directory.presentCount() && !stopped_; ++i) consider(i);
    if (!met32_) return nothingUsable(kSeveralEntries);
    IconFacts facts = factsOfEntry(file_, chosen_);
    facts.usable = usable_;
    return facts;
  }

 private:
  void consider(int index) {
    const IconEntry entry = shownEntry(file_, file_.entry(index));
    if (!isSquareIcon(entry) || isDamagedPng(file_, entry)) return;
    ++usable_;
    if (entry.width != kPreferredSize) {
      if (!met32_) chosen_ = index;
    } else if (!met32_) {
      met32_ = true;
      chosen_ = index;
    } else if (headerBitCount(file_, entry) == kPaletteDepth.bits) {
      chosen_ = index;
      stopped_ = preferEightBit_;
    }
  }

  const IconFile& file_;
  const bool preferEightBit_;
  int usable_ = 0;
  int chosen_ = 0;
  bool met32_ = false;
  bool stopped_ = false;
};

}  // namespace

std::string IconFacts::joined() const {
  std::string text = std::to_string(kind);
  for (const int number : {usable, chosen, width, height, directory.colors, directory.bits, header.colors, header.bits})
    text += "/" + std::to_string(number);
  return text;
}

IconFacts factsOfEntry(const IconFile& file, int index) {
  const IconEntry entry = shownEntry(file, file.entry(index));
  IconFacts facts;
  facts.kind = file.directory.count > 1 ? kSeveralEntries : kOneEntry;
  facts.chosen = index;
  facts.width = entry.width;
  facts.height = entry.height;
  facts.directory = depthOfEntry(entry);
  facts.header = depthOfEntry(entry, headerBitCount(file, entry));
  return facts;
}

IconFacts probeIcon(const IconFile& file, bool preferEightBit) {
  const IconEntry first = file.entry(0);
  if (!file.isIcon() || !(isSound(first) || isSound(shownEntry(file, first)))) return {};
  return file.directory.count == 1 ? probeSingle(file) : EntryScan(file, preferEightBit).run();
}

IconFacts ProbeIconFile(const std::string& path, bool preferEightBit) {
  const auto file = readIconFile(path);
  return file ? probeIcon(*file, preferEightBit) : IconFacts{};
}

int countIconSizes(const IconFile& file) {
  const auto& entries = file.directory.entries;
  return static_cast<int>(
      std::ranges::count_if(entries, [&](const IconEntry& entry) { return isSquareIcon(shownEntry(file, entry)); }));
}

DecodedIcon decodeUsableEntry(const IconFile& file, const IconEntry& entry) {
  const IconEntry shown = shownEntry(file, entry);
  if (!isSquareIcon(shown)) return {IconDefect::SizeNotOffered, {}};
  if (const IconDefect defect = defectOfEntry(file, shown); defect != IconDefect::None) return {defect, {}};
  return decodeEntry(file, shown, shown.width, shown.height);
}

bool isUsableEntry(const IconFile& file, const IconEntry& entry) {
  const IconEntry shown = shownEntry(file, entry);
  return isSquareIcon(shown) && defectOfEntry(file, shown) == IconDefect::None && !isDamagedPng(file, shown);
}

}  // namespace gp
