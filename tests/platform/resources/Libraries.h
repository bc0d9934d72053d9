// What the tests of libraries ask of one, as text.
#pragma once

#include "platform/resources/IconLibrary.h"
#include "support/IconResources.h"

#include <memory>
#include <sstream>
#include <string>

namespace gp::test {

// Owns the bytes of the library.
class ParsedLibrary {
 public:
  explicit ParsedLibrary(Bytes bytes)
      : bytes_(std::move(bytes)), source_(bytes_), library_(IconLibrary::parse(source_)) {}
  ParsedLibrary(const ParsedLibrary&) = delete;
  ParsedLibrary& operator=(const ParsedLibrary&) = delete;

  bool isRead() const { return library_ != nullptr; }
  const IconLibrary& operator*() const { return *library_; }
  const IconLibrary* operator->() const { return library_.get(); }

  // The labels of all groups, parted by blanks; "none" for bytes that are no library.
  std::string groups() const {
    if (!library_) return "none";
    std::string text;
    for (const IconGroup& group : library_->groups()) text += (text.empty() ? "" : " ") + group.label();
    return text;
  }

  // The images of a group: number, size, bits, and bytes that are there.
  std::string images(std::size_t group = 0) const {
    std::ostringstream text;
    for (const GroupImage& image : library_->imagesOf(library_->groups().at(group)))
      text << '#' << image.id << ' ' << image.width << 'x' << image.height << 'x' << image.bits << " of "
           << image.place.size << "; ";
    return text.str();
  }

  Bytes image(std::size_t group, std::size_t index) const {
    return library_->bytesAt(library_->imagesOf(library_->groups().at(group)).at(index).place);
  }

 private:
  Bytes bytes_;
  MemorySource source_;
  std::unique_ptr<IconLibrary> library_;
};

// Every byte differs from its neighbours.
inline Bytes numbered(std::size_t count, int first = 0) {
  Bytes bytes(count);
  for (std::size_t i = 0; i < count; ++i) bytes[i] = static_cast<std::uint8_t>(first + static_cast<int>(i) * 7);
  return bytes;
}

}  // namespace gp::test
