#include "cli/AniDefects.h"

#include "animation/format/AniFile.h"
#include "animation/format/AniLayout.h"
#include "animation/format/AniSteps.h"
#include "animation/format/FilmReading.h"
#include "animation/format/FrameDrawing.h"
#include "platform/files/ByteReader.h"

#include <algorithm>

namespace gp::cli {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr int kWholeFile = -1;

class Defects {
 public:
  Defects(Bytes bytes, const AniFile& file, const DiscrepancySink& report)
      : bytes_(bytes), file_(file), report_(report) {}

  void find() {
    checkSize();
    if (file_.header.frames != file_.images.size()) add("frames", file_.header.frames, file_.images.size());
    checkSequence();
    checkSteps();
    for (std::size_t i = 0; i < file_.images.size(); ++i) checkImage(i);
  }

 private:
  void add(const char* what, std::uint64_t header, std::uint64_t held, int index = kWholeFile) {
    report_({.index = index, .what = what, .header = std::to_string(header), .pixels = std::to_string(held)});
  }

  // Editors, this one too, also write the size of the whole file.
  void checkSize() {
    const std::uint64_t stated = ByteReader(bytes_).u32At(ani::kTagSize);
    if (stated != bytes_.size() && stated + ani::kChunkHeaderSize != bytes_.size())
      add("size", stated, bytes_.size() - ani::kChunkHeaderSize);
  }

  void checkSequence() {
    const bool isAnnounced = (file_.header.flags & ani::kHasSequence) != 0;
    if (isAnnounced != file_.sequence.has_value()) add("sequence", isAnnounced, file_.sequence.has_value());
    if (!hasPlayedSequence(file_)) return;
    const auto isMissing = [this](std::size_t image) { return image >= file_.images.size(); };
    const std::vector<std::size_t> steps = stepsOf(file_);
    const auto missing = std::ranges::find_if(steps, isMissing);
    if (missing != steps.end()) add("sequence", *missing, file_.images.size());
  }

  // A header without steps means as many as frames.
  void checkSteps() {
    const std::uint64_t stated = file_.header.steps == 0 ? file_.images.size() : file_.header.steps;
    const std::uint64_t played = hasPlayedSequence(file_) ? file_.sequence->size() : file_.images.size();
    if (stated != played) add("steps", file_.header.steps, played);
    if (file_.rates && file_.rates->size() != stated) add("rates", stated, file_.rates->size());
  }

  void checkImage(std::size_t i) {
    const AniImage& image = file_.images[i];
    const int index = static_cast<int>(i);
    if (!image.isWhole) report_({.index = index, .what = "end", .pixels = std::to_string(bytes_.size())});
    if (!drawFrame(bytes_.subspan(image.offset, image.size))) report_({.index = index, .what = "picture"});
  }

  const Bytes bytes_;
  const AniFile& file_;
  const DiscrepancySink& report_;
};

}  // namespace

void findAniDefects(Bytes file, const DiscrepancySink& report) {
  const AniReading reading = readAniFile(file);
  if (reading.isRead()) Defects(file, reading.file, report).find();
  const ReadFilm film = ReadANIFileFrames(file);
  if (!film.isRead()) return report({.what = describe(film)});
  const std::string losses = film.losses.notice();
  if (!losses.empty()) report({.what = losses});
}

}  // namespace gp::cli
