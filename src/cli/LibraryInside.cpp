// The icons inside programs and libraries.
#include "cli/IconsInside.h"
#include "cli/ImageFile.h"
#include "cli/Json.h"
#include "extraction/format/IconHandle.h"
#include "files/format/IcoLayout.h"
#include "files/format/IconFile.h"
#include "platform/files/ByteWriter.h"
#include "platform/resources/IconLibrary.h"

#include <map>

namespace gp::cli {
namespace {

constexpr const char* kMissing = "is not in the file";

IconEntry entryOf(const GroupImage& image, std::uint32_t offset) {
  IconEntry entry;
  entry.width = image.width % 256;
  entry.height = image.height % 256;
  entry.colorCount = image.colors;
  entry.planes = image.planes;
  entry.bitCount = image.bits;
  entry.bytesInRes = image.place.size;
  entry.imageOffset = offset;
  return entry;
}

void writeHeader(std::size_t images, ByteWriter& out) {
  out.u16(0);
  out.u16(ico::kTypeIcon);
  out.u16(static_cast<std::uint16_t>(images));
}

// An icon file that is composed from images of a library. Images that share their bytes share them there too.
class GroupFile {
 public:
  explicit GroupFile(const std::vector<GroupImage>& images)
      : images_(images), end_(ico::kDirSize + images.size() * ico::kEntrySize) {
    for (const GroupImage& image : images_)
      if (offsets_.try_emplace(image.place.offset, end_).second) end_ += image.place.size;
  }

  std::uint64_t size() const { return end_; }

  std::vector<std::uint8_t> compose(const IconLibrary& library) const {
    ByteWriter out(end_);
    writeHeader(images_.size(), out);
    for (const GroupImage& image : images_)
      writeEntry(entryOf(image, static_cast<std::uint32_t>(offsets_.at(image.place.offset))), out);
    std::uint64_t written = out.size();
    for (const GroupImage& image : images_) {
      if (offsets_.at(image.place.offset) != written) continue;
      auto bytes = library.bytesAt(image.place);
      bytes.resize(image.place.size);  // the file may have become shorter
      out.bytes(bytes);
      written += bytes.size();
    }
    return out.take();
  }

 private:
  const std::vector<GroupImage>& images_;
  std::uint64_t end_;
  std::map<std::uint64_t, std::uint64_t> offsets_;  // in this file, by those in the library
};

ImageRow missingRow() {
  ImageRow row;
  row.encoding = "none";
  return row;
}

class LibraryInside final : public IconsInside {
 public:
  LibraryInside(std::unique_ptr<IconLibrary> library, std::uint64_t size)
      : IconsInside(library->format() == LibraryFormat::Pe ? "pe" : "ne", size),
        library_(std::move(library)),
        size_(size) {}

  // Reads from bytes that are kept.
  LibraryInside(std::unique_ptr<IconLibrary> library, FileBytes bytes, std::unique_ptr<ByteSource> source)
      : LibraryInside(std::move(library), bytes.span().size()) {
    bytes_ = std::move(bytes);
    source_ = std::move(source);
  }

  std::size_t count() const override { return library_->groups().size(); }
  std::string label(std::size_t icon) const override { return library_->groups()[icon].label(); }

  std::string jsonName(std::size_t icon) const override {
    const IconGroup& group = library_->groups()[icon];
    const std::string name =
        group.name.empty() ? "\"id\":" + std::to_string(group.id) : "\"name\":" + jsonText(group.name);
    return name + ",\"language\":" + std::to_string(group.language) + ",";
  }

  std::optional<IconImage> picture(std::size_t icon, int size) override {
    const auto handle = libraryIcon(*library_, library_->groups()[icon], size);
    return handle ? std::optional(surfacesOf(*handle)) : std::nullopt;
  }

  std::optional<WholeIcon> whole(std::size_t icon) override {
    WholeIcon result;
    std::vector<GroupImage> images = library_->imagesOf(library_->groups()[icon]);
    for (const GroupImage& image : images)
      if (!image.isThere()) result.missing.push_back("image " + std::to_string(image.id) + " " + kMissing);
    std::erase_if(images, [](const GroupImage& image) { return !image.isThere(); });
    const GroupFile file(images);
    // Images that overlap can be larger than all bytes together.
    if (images.empty() || file.size() > std::min(size_ + ico::kMaxDirectorySize, kMaxFileBytes)) return std::nullopt;
    result.composed = file.compose(*library_);
    result.file = result.composed;
    return result;
  }

 private:
  std::vector<ImageRow> rowsOf(std::size_t icon, bool readsImages) override {
    std::vector<ImageRow> rows;
    for (const GroupImage& image : library_->imagesOf(library_->groups()[icon])) {
      ImageRow row = image.isThere() && readsImages ? readRow(image) : missingRow();
      row.index = static_cast<int>(rows.size());
      row.id = image.id;
      row.directory = depthOfEntry(entryOf(image, 0));
      row.width = image.width;
      row.height = image.height;
      row.bytes = image.place.size;
      row.offset = image.isThere() ? image.place.offset : 0;
      rows.push_back(row);
    }
    return rows;
  }

  // As the row of an icon file with this image. Many groups can share an image, which is read once.
  ImageRow readRow(const GroupImage& image) {
    const auto known = read_.find(image.place.offset);
    if (known != read_.end() && known->second.first == image.place.size) return known->second.second;
    ResourcePlace place = image.place;
    place.size = static_cast<std::uint32_t>(ico::readSize(place.size));
    const std::vector<std::uint8_t> bytes = library_->bytesAt({place.offset, std::min(place.size, image.place.size)});
    ByteWriter out(ico::kSingleImageOffset + bytes.size());
    writeHeader(1, out);
    writeEntry(entryOf(image, ico::kSingleImageOffset), out);
    out.bytes(bytes);
    const ImageRow row = rowOf(parseIconFile(FileBytes(out.take())), 0);
    read_.insert_or_assign(image.place.offset, std::pair(image.place.size, row));
    return row;
  }

  FileBytes bytes_;
  std::unique_ptr<ByteSource> source_;
  std::unique_ptr<IconLibrary> library_;
  std::uint64_t size_;
  std::map<std::uint64_t, std::pair<std::uint32_t, ImageRow>> read_;  // by offset and size
};

}  // namespace

std::unique_ptr<IconsInside> iconsOfLibrary(const std::string& path) {
  const auto source = openByteSource(path);
  auto library = IconLibrary::open(path);
  if (!source || !library) return nullptr;
  return std::make_unique<LibraryInside>(std::move(library), source->size());
}

std::unique_ptr<IconsInside> iconsOfLibrary(FileBytes bytes) {
  auto source = std::make_unique<MemorySource>(bytes.span());
  auto library = IconLibrary::parse(*source);
  if (!library) return nullptr;
  return std::make_unique<LibraryInside>(std::move(library), std::move(bytes), std::move(source));
}

}  // namespace gp::cli
