// Builds shell links byte by byte.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace gp::test {

using Bytes = std::vector<std::uint8_t>;

// The parts of a shell link in the order of the file. Texts that are not set are not in the file.
class LinkBytes {
 public:
  explicit LinkBytes(std::uint32_t flags, std::int32_t iconIndex = 0) {
    put32(76);
    for (const int byte : {0x01, 0x14, 0x02, 0, 0, 0, 0, 0, 0xC0, 0, 0, 0, 0, 0, 0, 0x46}) put8(byte);
    put32(flags);
    while (bytes_.size() < 56) put8(0);
    put32(static_cast<std::uint32_t>(iconIndex));
    while (bytes_.size() < 76) put8(0);
  }

  LinkBytes& itemList(int size) {
    put16(size);
    for (int i = 0; i < size; ++i) put8(0x5A);
    return *this;
  }
  // The link info of a file on a drive.
  LinkBytes& info(std::string_view base, std::string_view suffix = "") {
    constexpr int kHeader = 28;
    infoHeader(kHeader, static_cast<int>(kHeader + base.size() + suffix.size() + 2), 1, kHeader,
               static_cast<int>(kHeader + base.size() + 1));
    putEnded(base);
    putEnded(suffix);
    return *this;
  }
  // The same with wide texts beside the others.
  LinkBytes& wideInfo(std::string_view base, std::u16string_view wideBase, std::u16string_view wideSuffix) {
    constexpr int kHeader = 36;
    const int suffixAt = static_cast<int>(kHeader + base.size() + 1), wideAt = suffixAt + 1;
    const int wideSuffixAt = wideAt + 2 * static_cast<int>(wideBase.size() + 1);
    infoHeader(kHeader, wideSuffixAt + 2 * static_cast<int>(wideSuffix.size() + 1), 1, kHeader, suffixAt);
    put32(static_cast<std::uint32_t>(wideAt));
    put32(static_cast<std::uint32_t>(wideSuffixAt));
    putEnded(base);
    putEnded("");
    for (const auto text : {wideBase, wideSuffix}) {
      putWide(text);
      put16(0);
    }
    return *this;
  }
  // The first 28 bytes of a link info.
  LinkBytes& infoHeader(int header, int size, int flags, int baseAt, int suffixAt) {
    for (const int value : {size, header, flags, 0, baseAt, 0, suffixAt}) put32(static_cast<std::uint32_t>(value));
    return *this;
  }
  LinkBytes& text(std::string_view text) {
    put16(static_cast<int>(text.size()));
    putBytes(text);
    return *this;
  }
  LinkBytes& wideText(std::u16string_view text) {
    put16(static_cast<int>(text.size()));
    putWide(text);
    return *this;
  }
  // A block with a path in 260 bytes and in 260 wide characters.
  LinkBytes& block(std::uint32_t kind, std::string_view path, std::u16string_view widePath) {
    const std::size_t end = bytes_.size() + 788;
    put32(788);
    put32(kind);
    putBytes(path);
    while (bytes_.size() < end - 520) put8(0);
    putWide(widePath);
    while (bytes_.size() < end) put8(0);
    return *this;
  }
  LinkBytes& put8(int value) {
    bytes_.push_back(static_cast<std::uint8_t>(value));
    return *this;
  }
  LinkBytes& put16(int value) { return put8(value & 0xFF).put8(value >> 8 & 0xFF); }
  LinkBytes& put32(std::uint32_t value) {
    return put16(static_cast<int>(value & 0xFFFF)).put16(static_cast<int>(value >> 16));
  }
  LinkBytes& putBytes(std::string_view text) {
    for (const char c : text) put8(static_cast<unsigned char>(c));
    return *this;
  }

  const Bytes& bytes() const { return bytes_; }

 private:
  void putEnded(std::string_view text) { putBytes(text).put8(0); }
  void putWide(std::u16string_view text) {
    for (const char16_t unit : text) put16(unit);
  }

  Bytes bytes_;
};

}  // namespace gp::test
