// Builds files of the PE format byte by byte for the tests of readers; every field can be given a wrong value.
#pragma once

#include "support/IconResources.h"

#include <map>
#include <optional>

namespace gp::test {

inline void set16(Bytes& bytes, std::size_t at, std::uint32_t value) {
  bytes.at(at) = static_cast<std::uint8_t>(value);
  bytes.at(at + 1) = static_cast<std::uint8_t>(value >> 8);
}
inline void set32(Bytes& bytes, std::size_t at, std::uint32_t value) {
  set16(bytes, at, value & 0xFFFF);
  set16(bytes, at + 2, value >> 16);
}

inline constexpr std::uint32_t kSubdirectory = 0x80000000;

struct PeSection {
  std::string name = ".rsrc";
  std::uint32_t address = 0x2000;
  Bytes data = {};
  std::optional<std::uint32_t> memorySize = {}, fileSize = {},
                               offset = {};  // other values than those of the data, if any
};

struct PeOptions {
  bool is64 = false;
  std::vector<PeSection> before = {}, behind = {};  // around the section of the resources
  std::string name = ".rsrc";
  std::uint32_t address = 0x2000;                               // of the resources
  std::optional<std::uint32_t> memorySize = {}, fileSize = {};  // of their section
  std::optional<std::uint32_t> directoryCount = {};
  std::optional<std::uint32_t> directoryAddress = {};
  std::optional<std::uint32_t> sectionCount = {};
  std::size_t headersSize = 0x400;
};

inline constexpr std::size_t kPeHeader = 0x40, kPeSections = 0x400;  // unless the headers are larger

// A PE file with sections at multiples of 512 bytes.
inline Bytes peFile(const Bytes& resources, const PeOptions& options = {}) {
  std::vector<PeSection> sections = options.before;
  sections.push_back({options.name, options.address, resources, options.memorySize, options.fileSize, {}});
  sections.insert(sections.end(), options.behind.begin(), options.behind.end());
  const std::uint32_t optionalSize = options.is64 ? 240 : 224;
  Bytes out(kPeHeader + 24 + optionalSize, 0);
  out[0] = 'M', out[1] = 'Z';
  set32(out, 0x3C, kPeHeader);
  out[kPeHeader] = 'P', out[kPeHeader + 1] = 'E';
  set16(out, kPeHeader + 4, options.is64 ? 0x8664 : 0x14C);
  set16(out, kPeHeader + 6, options.sectionCount.value_or(static_cast<std::uint32_t>(sections.size())));
  set16(out, kPeHeader + 20, optionalSize);
  const std::size_t optional = kPeHeader + 24, count = optional + (options.is64 ? 108 : 92);
  set16(out, optional, options.is64 ? 0x20B : 0x10B);
  set32(out, optional + 32, 0x1000);
  set32(out, optional + 36, 0x200);
  set32(out, optional + 60, static_cast<std::uint32_t>(options.headersSize));
  set32(out, count, options.directoryCount.value_or(16));
  set32(out, count + 4 + 2 * 8, options.directoryAddress.value_or(options.address));
  set32(out, count + 4 + 2 * 8 + 4, static_cast<std::uint32_t>(resources.size()));
  std::size_t at = options.headersSize;
  for (const PeSection& section : sections) {
    const std::size_t row = out.size();
    out.resize(row + 40, 0);
    for (std::size_t i = 0; i < section.name.size() && i < 8; ++i)
      out[row + i] = static_cast<std::uint8_t>(section.name[i]);
    set32(out, row + 8, section.memorySize.value_or(static_cast<std::uint32_t>(section.data.size())));
    set32(out, row + 12, section.address);
    set32(out, row + 16, section.fileSize.value_or(static_cast<std::uint32_t>(section.data.size())));
    set32(out, row + 20, section.offset.value_or(static_cast<std::uint32_t>(at)));
    at += (section.data.size() + 511) / 512 * 512;
  }
  out.resize(options.headersSize, 0);
  for (const PeSection& section : sections) {
    out.insert(out.end(), section.data.begin(), section.data.end());
    if (&section != &sections.back()) out.resize((out.size() + 511) / 512 * 512, 0);
  }
  return out;
}

// The directories of a section of resources at an address of the program, and the data behind them. Types, names and
// languages are in the order in which a directory has to have them.
class ResourceSection {
 public:
  ResourceSection(const std::vector<Resource>& resources, std::uint32_t address) : address_(address) {
    for (const Resource& r : resources) types_[r.type][Name{r.name.empty(), r.name, r.id}][r.language] = r.data;
  }

  Bytes bytes() {
    std::size_t at = 16;
    directory(0, types_.size());
    for (const auto& [type, names] : types_) {
      entry(at, static_cast<std::uint32_t>(type), kSubdirectory | here());
      addNames(names);
      at += 8;
    }
    for (const auto& [place, text] : texts_) addText(place, text);
    for (const auto& [place, data] : data_) addData(place, *data);
    return out_;
  }

 private:
  struct Name {
    bool isNumber;
    std::u16string text;
    int id;
    auto operator<=>(const Name&) const = default;
  };
  using Languages = std::map<int, Bytes>;
  using Names = std::map<Name, Languages>;

  std::uint32_t here() const { return static_cast<std::uint32_t>(out_.size()); }

  void directory(std::size_t named, std::size_t numbered) {
    for (int i = 0; i < 3; ++i) put32(out_, 0);
    put16(out_, static_cast<std::uint32_t>(named));
    put16(out_, static_cast<std::uint32_t>(numbered));
    out_.resize(out_.size() + 8 * (named + numbered), 0);
  }
  void entry(std::size_t at, std::uint32_t id, std::uint32_t place) {
    set32(out_, at, id);
    set32(out_, at + 4, place);
  }

  void addNames(const Names& names) {
    std::size_t named = 0;
    for (const auto& [name, languages] : names) named += name.isNumber ? 0 : 1;
    std::size_t at = out_.size() + 16;
    directory(named, names.size() - named);
    for (const auto& [name, languages] : names) {
      entry(at, static_cast<std::uint32_t>(name.id), kSubdirectory | here());
      if (!name.isNumber) texts_.emplace_back(at, name.text);
      addLanguages(languages);
      at += 8;
    }
  }

  void addLanguages(const Languages& languages) {
    std::size_t at = out_.size() + 16;
    directory(0, languages.size());
    for (const auto& [language, data] : languages) {
      entry(at, static_cast<std::uint32_t>(language), here());
      data_.emplace_back(out_.size(), &data);
      put32(out_, 0);
      put32(out_, static_cast<std::uint32_t>(data.size()));
      put32(out_, 0);
      put32(out_, 0);
      at += 8;
    }
  }

  void addText(std::size_t place, const std::u16string& text) {
    set32(out_, place, kSubdirectory | here());
    put16(out_, static_cast<std::uint32_t>(text.size()));
    for (const char16_t unit : text) put16(out_, unit);
  }

  void addData(std::size_t place, const Bytes& data) {
    out_.resize((out_.size() + 7) / 8 * 8, 0);
    set32(out_, place, address_ + here());
    out_.insert(out_.end(), data.begin(), data.end());
  }

  std::uint32_t address_;
  std::map<int, Names> types_;
  std::vector<std::pair<std::size_t, std::u16string>> texts_;
  std::vector<std::pair<std::size_t, const Bytes*>> data_;
  Bytes out_;
};

// A good PE file with these resources.
inline Bytes peWith(const std::vector<Resource>& resources, const PeOptions& options = {}) {
  return peFile(ResourceSection(resources, options.address).bytes(), options);
}

}  // namespace gp::test
