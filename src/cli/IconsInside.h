// The icons inside one file of any kind, as `gpicon extract` lists and writes them. The content decides the kind.
#pragma once

#include "cli/ImageRow.h"
#include "document/IconImage.h"
#include "platform/resources/ShellLink.h"

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

namespace gp::cli {

// All images of one icon in a file, their bytes as they are.
struct WholeIcon {
  std::span<const std::uint8_t> file;  // of the bytes below, or of those that were read
  std::vector<std::uint8_t> composed;
  const char* ending = ".ico";
  std::vector<std::string> missing;  // a reason for each image that is left out
};

// One object is used by one thread.
class IconsInside {
 public:
  IconsInside(const char* kind, std::uint64_t size) : kind_(kind), rowsLeft_(kMostSharedRows + size / kRowSize) {}
  IconsInside(const IconsInside&) = delete;
  IconsInside& operator=(const IconsInside&) = delete;
  virtual ~IconsInside() = default;

  // "pe", "ne", "ico", "cur" or "ani".
  const char* kind() const { return kind_; }
  virtual std::size_t count() const = 0;
  // "#101", or a name; "-" for an icon without.
  virtual std::string label(std::size_t) const { return "-"; }
  // The fields of number or name and language for a JSON object, each followed by a comma.
  virtual std::string jsonName(std::size_t) const { return {}; }
  // Its images by what their directory states; no image is read. Sets `isCut` when the directories of a file state more
  // images, over and over, than there are bytes for; the rest is left out.
  std::vector<ImageRow> statedRows(std::size_t icon, bool& isCut) { return bounded(rowsOf(icon, false), isCut); }
  // The same by all that is known.
  std::vector<ImageRow> rows(std::size_t icon, bool& isCut) { return bounded(rowsOf(icon, true), isCut); }
  // The icon at that size, prepared for the editor. Empty when it cannot be drawn.
  virtual std::optional<IconImage> picture(std::size_t icon, int size) = 0;
  // Empty for an icon without an image that is there.
  virtual std::optional<WholeIcon> whole(std::size_t icon) = 0;

 private:
  static constexpr std::uint64_t kRowSize = 14;  // the smallest entry of a directory
  static constexpr std::uint64_t kMostSharedRows = 65536;

  virtual std::vector<ImageRow> rowsOf(std::size_t icon, bool readsImages) = 0;
  std::vector<ImageRow> bounded(std::vector<ImageRow> rows, bool& isCut);

  const char* kind_;
  std::uint64_t rowsLeft_;
};

// What a file turned out to be.
struct OpenedIcons {
  std::unique_ptr<IconsInside> icons;  // null for a shell link, and with a defect
  std::optional<ShellLink> link;
  const char* defect = nullptr;  // the reason why there is neither

  bool isRead() const { return defect == nullptr; }
};
OpenedIcons openIcons(const std::string& path);

inline constexpr const char* kNoIconInFile = "No icon in this file";

// The kinds of files. Each takes what it reads from; the first is null for a file that is no library.
std::unique_ptr<IconsInside> iconsOfLibrary(const std::string& path);
std::unique_ptr<IconsInside> iconsOfLibrary(FileBytes bytes);
std::unique_ptr<IconsInside> iconOfIconFile(IconFile file);
std::unique_ptr<IconsInside> framesOfFilm(FileBytes bytes);

}  // namespace gp::cli
