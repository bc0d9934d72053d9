#include "animation/format/AniFile.h"

#include "animation/format/AniLayout.h"
#include "platform/files/ByteReader.h"

#include <algorithm>
#include <array>
#include <string_view>

namespace gp {
namespace {

using Bytes = std::span<const std::uint8_t>;

constexpr std::array kKnownTags{ani::kList,  ani::kTitle,    ani::kArtist, ani::kHeader,
                                ani::kRates, ani::kSequence, ani::kImage};
constexpr std::size_t kNumberSize = 4;

// Positions of the fields in the header.
constexpr std::size_t kFramesAt = 4, kStepsAt = 8, kRateAt = 28, kFlagsAt = 32;

bool hasTagAt(Bytes bytes, std::size_t at, std::string_view tag) {
  return at <= bytes.size() && bytes.size() - at >= tag.size() &&
         std::equal(tag.begin(), tag.end(), bytes.begin() + static_cast<std::ptrdiff_t>(at));
}

bool hasKnownTagAt(Bytes bytes, std::size_t at) {
  return std::ranges::any_of(kKnownTags, [&](std::string_view tag) { return hasTagAt(bytes, at, tag); });
}

// A chunk, without what it states beyond the end of the file or list that it is in.
struct Chunk {
  std::size_t at = 0;       // of its tag
  std::size_t content = 0;  // of its first byte
  std::size_t size = 0;     // of what is there
  bool isWhole = false;
};

// Calls `take` with each chunk from `at` up to `end`, where a list or the file ends.
template <class Take>
void forEachChunk(Bytes bytes, std::size_t at, std::size_t end, const Take& take) {
  ByteReader reader(bytes);
  while (at < end && end - at >= ani::kChunkHeaderSize) {
    const std::size_t stated = reader.u32At(at + ani::kTagSize);
    const std::size_t content = at + ani::kChunkHeaderSize;
    const std::size_t size = std::min(stated, end - content);
    take(Chunk{at, content, size, size == stated});
    at = content + size;
    if (size % 2 != 0 && !hasKnownTagAt(bytes, at)) ++at;
  }
}

std::string textOf(Bytes bytes, const Chunk& chunk) {
  const Bytes content = bytes.subspan(chunk.content, chunk.size);
  return {content.begin(), std::ranges::find(content, 0)};
}

std::vector<std::uint32_t> numbersOf(Bytes bytes, const Chunk& chunk) {
  ByteReader reader(bytes, chunk.content);
  std::vector<std::uint32_t> numbers(chunk.size / kNumberSize);
  for (std::uint32_t& number : numbers) number = reader.u32();
  return numbers;
}

class AniReader {
 public:
  explicit AniReader(Bytes bytes) : bytes_(bytes) {}

  AniReading read() {
    if (!isRiffFile(bytes_) || !hasTagAt(bytes_, ani::kChunkHeaderSize, ani::kForm))
      return {AniDefect::NotAnimated, {}};
    forEachChunk(bytes_, ani::kFileHeaderSize, bytes_.size(), [this](const Chunk& chunk) { takeTopLevel(chunk); });
    return {defect(), std::move(file_)};
  }

 private:
  bool is(const Chunk& chunk, std::string_view tag) const { return hasTagAt(bytes_, chunk.at, tag); }

  void takeTopLevel(const Chunk& chunk) {
    if (is(chunk, ani::kList)) return takeList(chunk);
    if (is(chunk, ani::kHeader) && !hasHeader_) return takeHeader(chunk);
    if (is(chunk, ani::kRates) && !file_.rates) file_.rates = numbersOf(bytes_, chunk);
    if (is(chunk, ani::kSequence) && !file_.sequence) file_.sequence = numbersOf(bytes_, chunk);
    if (is(chunk, ani::kDelays) && !file_.delaysMs) file_.delaysMs = numbersOf(bytes_, chunk);
  }

  // Lists in a list are passed over.
  void takeList(const Chunk& list) {
    if (list.size < ani::kTagSize) return;
    const std::size_t first = list.content + ani::kTagSize, end = list.content + list.size;
    if (hasTagAt(bytes_, list.content, ani::kFrames))
      forEachChunk(bytes_, first, end, [this](const Chunk& chunk) { takeFrame(chunk); });
    else if (hasTagAt(bytes_, list.content, ani::kInfo))
      forEachChunk(bytes_, first, end, [this](const Chunk& chunk) { takeInfo(chunk); });
  }

  void takeFrame(const Chunk& chunk) {
    if (is(chunk, ani::kImage)) file_.images.push_back({chunk.content, chunk.size, chunk.isWhole});
  }

  void takeInfo(const Chunk& chunk) {
    if (is(chunk, ani::kTitle) && !file_.title) file_.title = textOf(bytes_, chunk);
    if (is(chunk, ani::kArtist) && !file_.artist) file_.artist = textOf(bytes_, chunk);
  }

  void takeHeader(const Chunk& chunk) {
    hasHeader_ = true;
    isHeaderStrange_ = !chunk.isWhole || chunk.size != ani::kAnihSize;
    if (isHeaderStrange_) return;
    ByteReader reader(bytes_);
    file_.header = {reader.u32At(chunk.content + kFramesAt), reader.u32At(chunk.content + kStepsAt),
                    reader.u32At(chunk.content + kRateAt), reader.u32At(chunk.content + kFlagsAt)};
  }

  AniDefect defect() const {
    if (!hasHeader_) return AniDefect::NoHeader;
    if (isHeaderStrange_) return AniDefect::StrangeHeader;
    if ((file_.header.flags & ani::kImagesAreFiles) == 0) return AniDefect::RawFrames;
    return file_.images.empty() ? AniDefect::NoFrames : AniDefect::None;
  }

  const Bytes bytes_;
  AniFile file_;
  bool hasHeader_ = false;
  bool isHeaderStrange_ = false;
};

}  // namespace

const char* describe(AniDefect defect) {
  switch (defect) {
    case AniDefect::None:
      return "";
    case AniDefect::NoHeader:
      return "Failed to read jiffies info of file.";
    case AniDefect::NotAnimated:
    case AniDefect::StrangeHeader:
    case AniDefect::RawFrames:
    case AniDefect::NoFrames:
      break;
  }
  return "Failed to read this ANI file";
}

bool isRiffFile(Bytes bytes) { return hasTagAt(bytes, 0, ani::kRiff); }

AniReading readAniFile(Bytes bytes) { return AniReader(bytes).read(); }

}  // namespace gp
