#include "animation/format/AniWriter.h"

#include "animation/format/AniLayout.h"
#include "files/format/IcoLayout.h"
#include "platform/files/ByteWriter.h"

#include <string_view>

namespace gp {
namespace {

using namespace std::string_view_literals;

// With the NULs at their ends.
constexpr std::string_view kTitle = "Edited with Glimmerpane of Zorvex Lattice\0"sv;
constexpr std::string_view kArtist = "ZorvexLattice\0"sv;
// Intended: not the rate of any frame, since each one has its own.
constexpr std::uint32_t kHeaderRate = 10;
constexpr std::size_t kNumberSize = 4;

// In the file of a frame.
constexpr std::size_t kTypeAt = 2, kHotspotXAt = 10, kHotspotYAt = 12;

void writeChunkHeader(std::string_view tag, std::size_t size, ByteWriter& out) {
  out.text(tag);
  out.u32(static_cast<std::uint32_t>(size));
}

void writeText(std::string_view tag, std::string_view text, ByteWriter& out) {
  writeChunkHeader(tag, text.size(), out);
  out.text(text);
}

void writeInfo(ByteWriter& out) {
  writeChunkHeader(ani::kList, ani::kTagSize + 2 * ani::kChunkHeaderSize + kTitle.size() + kArtist.size(), out);
  out.text(ani::kInfo);
  writeText(ani::kTitle, kTitle, out);
  writeText(ani::kArtist, kArtist, out);
}

void writeHeader(std::size_t frames, std::uint32_t rate, ByteWriter& out) {
  writeChunkHeader(ani::kHeader, ani::kAnihSize, out);
  out.u32(ani::kAnihSize);
  const auto count = static_cast<std::uint32_t>(frames);
  for (const std::uint32_t field : {count, count, 0U, 0U, 0U, 0U, rate, ani::kImagesAreFiles}) out.u32(field);
}

// A table with a number of each frame.
template <class Frames, class Number>
void writeNumbers(std::string_view tag, const Frames& frames, Number number, ByteWriter& out) {
  writeChunkHeader(tag, kNumberSize * frames.size(), out);
  for (const auto& frame : frames) out.u32(static_cast<std::uint32_t>(frame.*number));
}

void setU16(std::vector<std::uint8_t>& bytes, std::size_t at, int value) {
  bytes.at(at) = static_cast<std::uint8_t>(value);
  bytes.at(at + 1) = static_cast<std::uint8_t>(value >> 8);
}

std::vector<std::uint8_t> cursorOf(std::vector<std::uint8_t> file, int hotspotX, int hotspotY) {
  setU16(file, kTypeAt, ico::kTypeCursor);
  setU16(file, kHotspotXAt, hotspotX);
  setU16(file, kHotspotYAt, hotspotY);
  return file;
}

// The list of the frames, whose bytes `fileOf` returns in their size.
template <class Frames, class FileOf>
void writeFrames(const Frames& frames, const FileOf& fileOf, ByteWriter& out) {
  std::size_t size = ani::kTagSize;
  for (const auto& frame : frames) size += ani::kChunkHeaderSize + frame.file.size();
  writeChunkHeader(ani::kList, size, out);
  out.text(ani::kFrames);
  for (const auto& frame : frames) {
    writeChunkHeader(ani::kImage, frame.file.size(), out);
    out.bytes(fileOf(frame));
  }
}

}  // namespace

std::vector<std::uint8_t> composeAniFile(std::span<const AniFrame> frames, int hotspotX, int hotspotY) {
  ByteWriter out;
  writeChunkHeader(ani::kRiff, 0, out);
  out.text(ani::kForm);
  writeInfo(out);
  writeHeader(frames.size(), kHeaderRate, out);
  writeNumbers(ani::kRates, frames, &AniFrame::jiffies, out);
  writeFrames(
      frames, [&](const AniFrame& frame) { return cursorOf(frame.file, hotspotX, hotspotY); }, out);
  // Intended: the length of the whole file, eight more than the rule of RIFF gives.
  out.setU32(ani::kTagSize, static_cast<std::uint32_t>(out.size()));
  return out.take();
}

std::vector<std::uint8_t> composeConvertedAni(std::span<const AniStep> steps) {
  ByteWriter out;
  writeChunkHeader(ani::kRiff, 0, out);
  out.text(ani::kForm);
  writeHeader(steps.size(), steps.empty() ? kHeaderRate : steps.front().jiffies, out);
  writeNumbers(ani::kRates, steps, &AniStep::jiffies, out);
  writeNumbers(ani::kDelays, steps, &AniStep::delayMs, out);
  writeFrames(
      steps, [](const AniStep& step) -> std::span<const std::uint8_t> { return step.file; }, out);
  out.setU32(ani::kTagSize, static_cast<std::uint32_t>(out.size() - ani::kChunkHeaderSize));
  return out.take();
}

}  // namespace gp
