#include "platform/resources/ShellLink.h"

#include "platform/files/ByteReader.h"
#include "platform/text/Utf16.h"

#include <algorithm>
#include <array>

namespace gp {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::uint32_t kHeaderSize = 76;
constexpr std::uint32_t kFlagsAt = 20, kIconIndexAt = 56;
constexpr std::array<std::uint8_t, 16> kClass{0x01, 0x14, 0x02, 0, 0, 0, 0, 0, 0xC0, 0, 0, 0, 0, 0, 0, 0x46};

// Flags of the header.
constexpr std::uint32_t kHasItemList = 0x1, kHasLinkInfo = 0x2, kHasIconLocation = 0x40, kIsUnicode = 0x80,
                        kIgnoresLinkInfo = 0x100;
// Name, relative path, working folder, arguments and icon location, in the order of the file.
constexpr std::array<std::uint32_t, 5> kTextFlags{0x4, 0x8, 0x10, 0x20, kHasIconLocation};

// Offsets in the link info. The last two are there in a header of kUnicodeInfoHeader bytes or more.
constexpr std::uint32_t kInfoHeaderAt = 4, kInfoFlagsAt = 8, kBaseAt = 16, kSuffixAt = 24, kWideBaseAt = 28,
                        kWideSuffixAt = 32, kUnicodeInfoHeader = 36, kHasLocalBase = 0x1;

constexpr std::uint32_t kBlockHeader = 8, kIconBlock = 0xA0000007;
constexpr std::uint32_t kBlockText = 260;  // characters: first of one byte each, then of two

constexpr std::array<char16_t, 32> kUpperControls{0x20AC, 0x81,   0x201A, 0x192,  0x201E, 0x2026, 0x2020, 0x2021,
                                                  0x2C6,  0x2030, 0x160,  0x2039, 0x152,  0x8D,   0x17D,  0x8F,
                                                  0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022, 0x2013, 0x2014,
                                                  0x2DC,  0x2122, 0x161,  0x203A, 0x153,  0x9D,   0x17E,  0x178};
constexpr std::uint8_t kFirstUpperControl = 0x80, kLastUpperControl = 0x9F;

// Windows-1252.
char16_t unitOf(std::uint8_t byte) {
  const bool isMapped = byte >= kFirstUpperControl && byte <= kLastUpperControl;
  return isMapped ? kUpperControls.at(byte - kFirstUpperControl) : byte;
}

std::u16string unitsOf(Bytes bytes, bool isWide) {
  std::u16string units;
  const std::size_t width = isWide ? 2 : 1;
  ByteReader reader(bytes);
  units.reserve(bytes.size() / width);
  while (reader.remaining() >= width) units += isWide ? static_cast<char16_t>(reader.u16()) : unitOf(reader.u8());
  return units;
}

// The text up to its end mark; empty for a text without one.
std::string endedText(Bytes bytes, bool isWide) {
  const std::u16string units = unitsOf(bytes, isWide);
  const std::size_t end = units.find(u'\0');
  return end == std::u16string::npos ? std::string() : utf8Of(units.substr(0, end));
}

// A text that is counted, up to an end mark inside it.
std::string countedText(Bytes bytes, bool isWide) {
  const std::u16string units = unitsOf(bytes, isWide);
  return utf8Of(units.substr(0, units.find(u'\0')));
}

// A text of the link info, whose offset is at `at`; an offset inside the header is none.
std::string infoText(Bytes info, std::uint32_t at, bool isWide) {
  ByteReader reader(info);
  const std::uint32_t offset = reader.u32At(at);
  if (offset < reader.u32At(kInfoHeaderAt) || offset >= info.size()) return {};
  return endedText(info.subspan(offset), isWide);
}

// The wide text counts, where there is one.
std::string bestInfoText(Bytes info, std::uint32_t at, std::uint32_t wideAt) {
  const bool hasWide = ByteReader(info).u32At(kInfoHeaderAt) >= kUnicodeInfoHeader;
  const std::string wide = hasWide ? infoText(info, wideAt, true) : std::string();
  return wide.empty() ? infoText(info, at, false) : wide;
}

std::string joined(const std::string& base, const std::string& suffix) {
  const bool needsSeparator = !base.empty() && !suffix.empty() && base.back() != '\\' && base.back() != '/';
  return base + (needsSeparator ? "\\" : "") + suffix;
}

// The path on a drive. A link to a share of a network has none.
std::string pathOfInfo(Bytes info) {
  if (!(ByteReader(info).u32At(kInfoFlagsAt) & kHasLocalBase)) return {};
  const std::string base = bestInfoText(info, kBaseAt, kWideBaseAt);
  return base.empty() ? base : joined(base, bestInfoText(info, kSuffixAt, kWideSuffixAt));
}

// The bytes of a part that states its size at its start; empty, without a further part, when they are not all there.
Bytes sizedPart(ByteReader& reader, ByteReader::Position start, std::uint64_t size) {
  const bool isWhole = reader.contains(start, size);
  reader.seek(isWhole ? start + size : reader.size());
  return isWhole ? reader.bytesAt(start, size) : Bytes();
}

void skipItemList(ByteReader& reader) {
  const std::uint16_t size = reader.u16();
  sizedPart(reader, reader.position(), size);
}

std::string readInfo(ByteReader& reader) {
  const ByteReader::Position start = reader.position();
  return pathOfInfo(sizedPart(reader, start, std::max<std::uint32_t>(reader.u32At(start), sizeof(std::uint32_t))));
}

std::string readText(ByteReader& reader, bool isWide) {
  const std::uint64_t count = reader.u16();
  return countedText(sizedPart(reader, reader.position(), count * (isWide ? 2 : 1)), isWide);
}

std::string textOfBlock(Bytes block) {
  if (block.size() < kBlockHeader + kBlockText) return {};
  const std::string wide = endedText(block.subspan(kBlockHeader + kBlockText), true);
  return wide.empty() ? endedText(block.subspan(kBlockHeader, kBlockText), false) : wide;
}

// One of the blocks behind the texts has the icon file with variables in its path, which counts where there is no
// other.
void readBlocks(ByteReader& reader, ShellLink& link) {
  while (reader.remaining() >= kBlockHeader) {
    const ByteReader::Position start = reader.position();
    const std::uint32_t size = reader.u32(), kind = reader.u32();
    if (size < kBlockHeader) return;
    const Bytes block = sizedPart(reader, start, size);
    if (kind == kIconBlock && link.iconFile.empty()) link.iconFile = textOfBlock(block);
  }
}

}  // namespace

std::optional<ShellLink> readShellLink(std::span<const std::uint8_t> bytes) {
  ByteReader reader(bytes);
  if (bytes.size() < kHeaderSize || reader.u32() != kHeaderSize) return std::nullopt;
  if (!std::ranges::equal(reader.bytesAt(reader.position(), kClass.size()), kClass)) return std::nullopt;
  const std::uint32_t flags = reader.u32At(kFlagsAt);
  ShellLink link;
  link.iconIndex = reader.i32At(kIconIndexAt);
  reader.seek(kHeaderSize);
  if (flags & kHasItemList) skipItemList(reader);
  if (flags & kHasLinkInfo) link.target = readInfo(reader);
  if (flags & kIgnoresLinkInfo) link.target.clear();
  for (const std::uint32_t flag : kTextFlags) {
    const std::string text = flags & flag ? readText(reader, flags & kIsUnicode) : std::string();
    if (flag == kHasIconLocation) link.iconFile = text;
  }
  readBlocks(reader, link);
  return link;
}

}  // namespace gp
