#include "platform/resources/IconLibrary.h"

#include "platform/files/ByteReader.h"
#include "platform/resources/NeResources.h"
#include "platform/resources/PeResources.h"
#include "platform/resources/ResourceTable.h"
#include "platform/text/Utf8.h"

#include <algorithm>
#include <optional>

namespace gp {
namespace {

constexpr std::uint64_t kHeaderPosition = 0x3C;
constexpr std::uint16_t kDosSignature = 0x5A4D, kNeSignature = 0x454E;
constexpr std::uint32_t kPeSignature = 0x4550;

// A group's directory: as in an icon file, but with the number of an image in the place of its offset.
constexpr std::uint64_t kCount = 4, kDirectorySize = 6, kEntrySize = 14;
constexpr std::uint32_t kMostDirectory = kDirectorySize + 0xFFFF * kEntrySize;
constexpr int kLargestSide = 256;  // stored as 0

int sideOf(std::uint8_t stored) { return stored == 0 ? kLargestSide : stored; }

GroupImage readImage(ByteReader& reader) {
  GroupImage image;
  image.width = sideOf(reader.u8());
  image.height = sideOf(reader.u8());
  image.colors = reader.u8();
  reader.skip(1);
  image.planes = reader.u16();
  image.bits = reader.u16();
  image.statedSize = reader.u32();
  image.id = reader.u16();
  return image;
}

std::optional<LibraryFormat> formatOf(SourceReader& reader, std::uint64_t header) {
  if (reader.u16(0) != kDosSignature) return std::nullopt;
  if (reader.u32(header) == kPeSignature) return LibraryFormat::Pe;
  if (reader.u16(header) == kNeSignature) return LibraryFormat::Ne;
  return std::nullopt;
}

// Control characters in UTF-8 are those of ASCII, and 0xC2 before a byte below 0xA0.
bool isControl(std::string_view character) {
  const auto byte = [&](std::size_t i) { return static_cast<std::uint8_t>(character[i]); };
  if (character.size() == 1) return byte(0) < 0x20 || byte(0) == 0x7F;
  return character.size() == 2 && byte(0) == 0xC2 && byte(1) < 0xA0;
}

std::string escaped(std::string_view control) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  const auto code = static_cast<std::uint8_t>(control.back());
  return {'\\', 'u', '0', '0', kDigits[code >> 4], kDigits[code & 0xF]};
}

}  // namespace

std::string IconGroup::label() const {
  if (name.empty()) return "#" + std::to_string(id);
  std::string text;
  for (std::string_view rest = name; !rest.empty();) {
    const std::string_view character = rest.substr(0, characterSize(rest));
    text += isControl(character) ? escaped(character) : std::string(character);
    rest.remove_prefix(character.size());
  }
  return text;
}

IconLibrary::IconLibrary(const ByteSource& source, LibraryFormat format, ResourceTable table)
    : source_(source), format_(format), groups_(std::move(table.groups)), icons_(std::move(table.icons)) {}

IconLibrary::~IconLibrary() = default;

std::unique_ptr<IconLibrary> IconLibrary::open(const std::string& path) {
  auto source = openByteSource(path);
  if (!source) return nullptr;
  auto library = parse(*source);
  if (library) library->opened_ = std::move(source);
  return library;
}

std::unique_ptr<IconLibrary> IconLibrary::parse(const ByteSource& source) {
  SourceReader reader(source);
  const std::uint64_t header = reader.u32(kHeaderPosition);
  const auto format = formatOf(reader, header);
  if (!format) return nullptr;
  auto table = *format == LibraryFormat::Pe ? readPeResources(reader, header) : readNeResources(reader, header);
  return std::unique_ptr<IconLibrary>(new IconLibrary(source, *format, std::move(table)));
}

std::vector<GroupImage> IconLibrary::imagesOf(const IconGroup& group) const {
  const auto bytes = bytesAt({group.place.offset, std::min(group.place.size, kMostDirectory)});
  ByteReader reader(bytes);
  std::vector<GroupImage> images;
  const int count = reader.u16At(kCount);
  reader.seek(kDirectorySize);
  while (static_cast<int>(images.size()) < count && reader.remaining() >= kEntrySize) {
    images.push_back(readImage(reader));
    images.back().place = placeOfImage(images.back());
  }
  return images;
}

ResourcePlace IconLibrary::placeOfImage(const GroupImage& image) const {
  const auto found = std::ranges::lower_bound(icons_, image.id, {}, &IconResource::id);
  if (found == icons_.end() || found->id != image.id) return {};
  ResourcePlace place = found->place;
  // The resources of an NE file have whole alignment units.
  if (format_ == LibraryFormat::Ne && image.statedSize > 0 && image.statedSize <= place.size)
    place.size = image.statedSize;
  return place;
}

std::vector<std::uint8_t> IconLibrary::bytesAt(const ResourcePlace& place) const {
  std::vector<std::uint8_t> bytes(place.size);
  bytes.resize(source_.read(place.offset, bytes));
  return bytes;
}

}  // namespace gp
