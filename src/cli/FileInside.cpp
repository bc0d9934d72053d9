// Icon and cursor files, which are one icon each, and animated cursors, whose frames are icons as they are played.
#include "animation/format/AniFile.h"
#include "animation/format/AniSteps.h"
#include "cli/IconsInside.h"
#include "cli/PresentImages.h"
#include "extraction/format/IconHandle.h"
#include "files/format/IcoLayout.h"
#include "platform/files/ByteReader.h"

#include <algorithm>

namespace gp::cli {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::size_t kMostFrames = 65536;
constexpr const char* kBehindEnd = " of its images reach behind the end of the file";

std::vector<ImageRow> rowsOfFile(const IconFile& file, std::uint64_t offset) {
  std::vector<ImageRow> rows;
  for (int i = 0; i < file.directory.presentCount(); ++i) {
    rows.push_back(rowOf(file, i));
    rows.back().offset += offset;
  }
  return rows;
}

bool areAllThere(Bytes file, const IconDirectory& directory) {
  const ByteReader reader(file);
  return directory.count == directory.presentCount() &&
         reader.contains(0, ico::kDirSize + directory.entries.size() * ico::kEntrySize) &&
         std::ranges::all_of(directory.entries, [&](const IconEntry& entry) {
           return reader.contains(entry.imageOffset, entry.bytesInRes);
         });
}

// Leaves out the images that are not there.
void rewrite(Bytes file, int count, WholeIcon& whole) {
  IconFile parsed = parseIconFile(FileBytes(file));
  const int type = parsed.directory.type;
  IconArrays arrays = takePresentImages(std::move(parsed));
  arrays.type = type;
  whole.missing.push_back(std::to_string(count - arrays.count()) + kBehindEnd);
  if (arrays.count() > 0) whole.composed = composeWholeFile(arrays);
  whole.file = whole.composed;
}

// A file of which all images are there stays as it is.
std::optional<WholeIcon> wholeOf(Bytes file) {
  const IconDirectory directory = parseIconDirectory(file);
  if (!directory.isIcon() && !directory.isCursor()) return std::nullopt;
  WholeIcon whole;
  if (directory.isCursor()) whole.ending = ".cur";
  if (areAllThere(file, directory))
    whole.file = file;
  else
    rewrite(file, directory.count, whole);
  return whole.file.empty() ? std::nullopt : std::optional(std::move(whole));
}

class FileInside final : public IconsInside {
 public:
  explicit FileInside(IconFile file)
      : IconsInside(file.isCursor() ? "cur" : "ico", file.span().size()), file_(std::move(file)) {}

  std::size_t count() const override { return file_.directory.presentCount() == 0 ? 0 : 1; }

  std::optional<IconImage> picture(std::size_t, int size) override {
    const auto handle = fileIcon(file_.span(), size);
    return handle ? std::optional(surfacesOf(*handle)) : std::nullopt;
  }

  std::optional<WholeIcon> whole(std::size_t) override { return wholeOf(file_.span()); }

 private:
  std::vector<ImageRow> rowsOf(std::size_t, bool) override { return rowsOfFile(file_, 0); }

  IconFile file_;
};

class FilmInside final : public IconsInside {
 public:
  explicit FilmInside(FileBytes bytes) : IconsInside("ani", bytes.span().size()), bytes_(std::move(bytes)) {
    AniReading reading = readAniFile(bytes_.span());
    if (!reading.isRead()) return;
    steps_ = stepsOf(reading.file);
    steps_.resize(std::min(steps_.size(), kMostFrames));
    images_ = std::move(reading.file.images);
  }

  std::size_t count() const override { return steps_.size(); }

  std::optional<IconImage> picture(std::size_t icon, int size) override {
    const auto handle = fileIcon(frame(icon), size);
    return handle ? std::optional(surfacesWithoutAlpha(*handle)) : std::nullopt;
  }

  std::optional<WholeIcon> whole(std::size_t icon) override { return wholeOf(frame(icon)); }

 private:
  // Empty for a step whose image is not there.
  Bytes frame(std::size_t icon) const {
    const std::size_t image = steps_[icon];
    return image < images_.size() ? bytes_.span().subspan(images_[image].offset, images_[image].size) : Bytes();
  }

  std::vector<ImageRow> rowsOf(std::size_t icon, bool) override {
    const Bytes file = frame(icon);
    if (file.empty()) return {};
    return rowsOfFile(parseIconFile(FileBytes(file)), images_[steps_[icon]].offset);
  }

  FileBytes bytes_;
  std::vector<AniImage> images_;
  std::vector<std::size_t> steps_;
};

}  // namespace

std::unique_ptr<IconsInside> iconOfIconFile(IconFile file) { return std::make_unique<FileInside>(std::move(file)); }

std::unique_ptr<IconsInside> framesOfFilm(FileBytes bytes) { return std::make_unique<FilmInside>(std::move(bytes)); }

}  // namespace gp::cli
