#include "platform/resources/PeFile.h"

#include <algorithm>
#include <array>
#include <limits>
#include <string_view>

namespace gp {
namespace {

// From the signature on.
constexpr std::uint64_t kSectionCount = 6, kOptionalHeaderSize = 20, kOptionalHeader = 24;

// From the optional header on. The data directories follow their count; the third one is that of the resources.
constexpr std::uint64_t kSizeOfHeaders = 60;
constexpr std::uint16_t kMagic32 = 0x10B, kMagic64 = 0x20B;
constexpr std::uint64_t kDirectoryCount32 = 92, kDirectoryCount64 = 108;
constexpr std::uint32_t kResourceDirectory = 2;
constexpr std::uint64_t kDirectorySize = 8;

constexpr std::uint64_t kSectionSize = 40;
constexpr std::uint64_t kMemorySize = 8, kAddress = 12, kFileSize = 16, kOffset = 20;
constexpr std::string_view kResourceSection{".rsrc\0\0\0", 8};

bool isNamed(SourceReader& reader, std::uint64_t at, std::string_view name) {
  for (std::size_t i = 0; i < name.size(); ++i)
    if (reader.u8(at + i) != static_cast<std::uint8_t>(name[i])) return false;
  return true;
}

}  // namespace

PeFile::PeFile(SourceReader& reader, std::uint64_t header) : reader_(reader) {
  const std::uint64_t optionalHeader = header + kOptionalHeader;
  const std::uint64_t optionalSize = reader.u16(header + kOptionalHeaderSize);
  readSections(optionalHeader + optionalSize, reader.u16(header + kSectionCount));
  mapSections();
  headersSize_ = reader.u32(optionalHeader + kSizeOfHeaders);
  resources_ = statedResources(optionalHeader, optionalSize);
}

void PeFile::readSections(std::uint64_t table, int count) {
  for (std::uint64_t at = table; count > 0 && reader_.contains(at, kSectionSize); --count, at += kSectionSize) {
    Section section;
    section.isNamedResources = isNamed(reader_, at, kResourceSection);
    section.address = reader_.u32(at + kAddress);
    section.fileSize = reader_.u32(at + kFileSize);
    section.offset = reader_.u32(at + kOffset);
    section.memorySize = reader_.u32(at + kMemorySize);
    sections_.push_back(section);
  }
}

std::uint32_t PeFile::statedResources(std::uint64_t optionalHeader, std::uint64_t size) const {
  const std::uint16_t magic = reader_.u16(optionalHeader);
  if (magic != kMagic32 && magic != kMagic64) return 0;
  const std::uint64_t countAt = magic == kMagic64 ? kDirectoryCount64 : kDirectoryCount32;
  const std::uint64_t directory = countAt + sizeof(std::uint32_t) + kResourceDirectory * kDirectorySize;
  if (directory + kDirectorySize > size || reader_.u32(optionalHeader + countAt) <= kResourceDirectory) return 0;
  return reader_.u32(optionalHeader + directory);
}

void PeFile::mapSections() {
  for (const auto size : {&Section::memorySize, &Section::fileSize})
    for (std::size_t i = 0; i < sections_.size(); ++i) addresses_.add(sections_[i].address, sections_[i].*size, i);
  addresses_.build();
}

ResourcePlace PeFile::partInFile(std::uint64_t offset, std::uint64_t size) const {
  const std::uint64_t there = reader_.size() - std::min(offset, reader_.size());
  constexpr std::uint64_t kMost = std::numeric_limits<std::uint32_t>::max();
  return {offset, static_cast<std::uint32_t>(std::min({size, there, kMost}))};
}

ResourcePlace PeFile::placeOf(std::uint32_t address, std::uint32_t size) const {
  if (const auto found = addresses_.find(address)) {
    const Section& section = sections_[*found];
    const std::uint32_t within = address - section.address;
    const std::uint32_t rest = section.fileSize - std::min(within, section.fileSize);
    return partInFile(std::uint64_t{section.offset} + within, std::min(size, rest));
  }
  // The headers are in memory as they are in the file; a file without sections is so as a whole.
  const bool isHeader = sections_.empty() || address < headersSize_;
  return isHeader ? partInFile(address, size) : ResourcePlace();
}

// Without a usable address, a section with the usual name has the resources.
ResourcePlace PeFile::resources() const {
  constexpr std::uint32_t kAll = std::numeric_limits<std::uint32_t>::max();
  if (resources_ != 0)
    if (const ResourcePlace place = placeOf(resources_, kAll); place.size > 0) return place;
  const auto section = std::ranges::find(sections_, true, &Section::isNamedResources);
  return section == sections_.end() ? ResourcePlace() : partInFile(section->offset, section->fileSize);
}

}  // namespace gp
