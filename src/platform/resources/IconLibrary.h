// The icons inside a program or library: files of the PE format (32 and 64 bits) and of the NE format, such as .exe,
// .dll, .icl and .mun files. The bytes are untrusted. Opening reads the headers and the resource directories only; the
// directory of a group and the bytes of an image are read when they are asked for.
#pragma once

#include "platform/files/ByteSource.h"

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace gp {

enum class LibraryFormat { Pe, Ne };

// Where a resource's bytes are in the file. The part that is there, when it reaches beyond the end.
struct ResourcePlace {
  std::uint64_t offset = 0;
  std::uint32_t size = 0;  // 0 for a resource that is missing or outside the file
};

// An icon group: the name of an icon.
struct IconGroup {
  std::uint16_t id = 0;  // of a group without a name
  std::string name;      // UTF-8; empty for a group with a number
  std::uint16_t language = 0;
  ResourcePlace place;

  // "#101", or the name. Control characters are escaped as "\u000a".
  std::string label() const;
};

// One image by its group's directory.
struct GroupImage {
  int width = 0;  // 256 where the directory states 0
  int height = 0;
  int colors = 0;
  int planes = 0;
  int bits = 0;
  std::uint32_t statedSize = 0;
  std::uint16_t id = 0;
  ResourcePlace place;  // of its bytes

  bool isThere() const { return place.size > 0; }
};

struct IconResource;
struct ResourceTable;

// Can be used on several threads at once.
class IconLibrary {
 public:
  // Null when the file is no PE and no NE file, or cannot be read. A file with damaged resources has those groups that
  // can be found.
  static std::unique_ptr<IconLibrary> open(const std::string& path);
  // The source must outlive it.
  static std::unique_ptr<IconLibrary> parse(const ByteSource& source);
  ~IconLibrary();

  LibraryFormat format() const { return format_; }
  // Groups with a name come before those with a number, each ascending; one for all languages, of which the first in
  // the file counts. Cursors are not listed.
  const std::vector<IconGroup>& groups() const { return groups_; }
  // The images of a group in the order of its directory; those that its bytes hold.
  std::vector<GroupImage> imagesOf(const IconGroup& group) const;
  // The bytes of an image or group: fewer when the file has become shorter.
  std::vector<std::uint8_t> bytesAt(const ResourcePlace& place) const;

 private:
  IconLibrary(const ByteSource& source, LibraryFormat format, ResourceTable table);
  ResourcePlace placeOfImage(const GroupImage& image) const;

  std::unique_ptr<ByteSource> opened_;  // by open()
  const ByteSource& source_;
  LibraryFormat format_;
  std::vector<IconGroup> groups_;
  std::vector<IconResource> icons_;
};

}  // namespace gp
