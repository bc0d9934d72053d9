// Defective animated cursors, read whole and cut at every byte. No bytes make a reader crash, and a film is either
// refused with a reason or fit for the session.
#include "animation/FilmBytes.h"
#include "animation/format/FilmReading.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

struct HostileFile {
  std::string name;
  std::string bytes;
  FilmDefect defect = FilmDefect::None;
  int frames = 2;  // of the whole file
};

const std::string kHeader = headerOf(2);
const std::string kFrames = frameList({smallFrame({3, 4}), smallFrame()});
const std::string kStrangeFrames = frameList({smallFrame(), frameOf(2, 0, 0)});
constexpr std::uint32_t kHuge = 0xFFFFFFFF;

std::string withRiffSize(std::uint32_t size) { return "RIFF" + u32Text(size) + "ACON" + kHeader + kFrames; }
std::string oddList(bool padding) {
  const std::string odd = chunkOf("icon", smallFrame() + "x");
  return listOf("fram", padding ? padded(odd) + padded(odd) : odd + odd);
}
std::string lists(int depth) {
  std::string list = kFrames;
  for (int i = 0; i < depth; ++i) list = listOf("fram", list);
  return list;
}
std::string cutShort(const std::string& bytes, std::size_t count) { return bytes.substr(0, bytes.size() - count); }

std::vector<HostileFile> hostileContainers() {
  return {
      {"RIFF size 8 too large", withRiffSize(static_cast<std::uint32_t>(kHeader.size() + kFrames.size() + 12))},
      {"RIFF size 0", withRiffSize(0)},
      {"RIFF size huge", withRiffSize(kHuge)},
      {"odd chunks with a pad byte", aniOf(kHeader + oddList(true))},
      {"odd chunks without", aniOf(kHeader + oddList(false))},
      {"an odd title with a pad byte", aniOf(listOf("INFO", padded(chunkOf("INAM", "odd"))) + kHeader + kFrames)},
      {"an odd title without", aniOf(listOf("INFO", chunkOf("INAM", "odd")) + kHeader + kFrames)},
      {"INFO first", aniOf(listOf("INFO", chunkOf("INAM", "Name") + chunkOf("IART", "Art!")) + kHeader + kFrames)},
      {"unknown lists and chunks", aniOf(chunkOf("JUNK", "12345678") + listOf("abcd", "1234") + kHeader +
                                         chunkOf("\x01\x02\x03\x04", "") + kFrames)},
      {"a list in a list", aniOf(kHeader + lists(1)), FilmDefect::NoFrames},
      {"a list in 1000 lists", aniOf(kHeader + lists(1000) + kFrames)},
      {"lists of 0, 3 and 7 bytes",
       aniOf(chunkOf("LIST", "") + chunkOf("LIST", "fra") + padded(chunkOf("LIST", "fram123")) + kHeader + kFrames)},
      {"titles twice, empty and not UTF-8",
       aniOf(listOf("INFO", chunkOf("INAM", "") + chunkOf("INAM", "ab") + chunkOf("IART", "\xFF\xFE")) + kHeader +
             kFrames)},
      {"bytes behind the end", aniOf(kHeader + kFrames) + std::string(33, '\x55')},
      {"cut in the last frame", cutShort(aniOf(kHeader + kFrames), 300), FilmDefect::FrameNotDrawn},
      {"cut in its mask", cutShort(aniOf(kHeader + kFrames), 100)},
      {"two lists of frames", aniOf(kHeader + kFrames + kFrames), FilmDefect::None, 4},
      {"another form", chunkOf("RIFF", "WAVE" + kHeader + kFrames), FilmDefect::NoFrames},
      {"tags in titles", aniOf(listOf("INFO", chunkOf("INAM", "anihrateseq framicon")) + kHeader + kFrames)},
  };
}

std::vector<HostileFile> hostileHeaders() {
  const auto sized = [](std::size_t size) { return chunkOf("anih", std::string(size, '\1')); };
  std::vector<HostileFile> files{
      {"a header of 35 bytes", aniOf(sized(35) + kFrames), FilmDefect::NoFrames},
      {"a header of 40 bytes", aniOf(sized(40) + kFrames), FilmDefect::NoFrames},
      {"an empty header", aniOf(sized(0) + kFrames), FilmDefect::NoFrames},
      {"two headers", aniOf(kHeader + sized(12) + kFrames)},
      {"no header", aniOf(kFrames), FilmDefect::NoJiffies},
      {"the header behind the frames", aniOf(kFrames + kHeader)},
      {"raw frames", aniOf(headerOf(2, 10, 0) + kFrames), FilmDefect::NoFrames},
      {"a rate of 0", aniOf(headerOf(2, 0) + kFrames)},
      {"a huge rate", aniOf(headerOf(2, kHuge) + kFrames)},
      {"all flags", aniOf(headerOf(2, 10, kHuge) + kFrames)},
  };
  for (const std::uint32_t frames : {0U, 1U, 3U, 0x7FFFFFFFU, 0x80000000U, kHuge})
    for (const std::uint32_t steps : {0U, 1U, 3U, 0x7FFFFFFFU, 0x80000000U, kHuge})
      files.push_back({"counts of " + std::to_string(frames) + " and " + std::to_string(steps),
                       aniOf(headerWithSteps(frames, steps) + kFrames)});
  return files;
}

std::vector<HostileFile> hostileTables() {
  const std::string header = headerWithSteps(2, 3, 3);
  return {
      {"an index out of range", aniOf(header + sequenceOf({0, 2, 1}) + kFrames), FilmDefect::FrameNotDrawn},
      {"a huge index", aniOf(header + sequenceOf({0, 1, kHuge}) + kFrames), FilmDefect::FrameNotDrawn},
      {"a short sequence", aniOf(header + sequenceOf({1}) + kFrames), FilmDefect::None, 1},
      {"a long sequence", aniOf(header + sequenceOf({1, 0, 1, 9, 9}) + kFrames), FilmDefect::None, 3},
      {"a sequence that is not announced", aniOf(kHeader + sequenceOf({1, 1, 1}) + kFrames)},
      {"an announced sequence that is not there", aniOf(header + kFrames)},
      {"a sequence of an odd size", aniOf(header + chunkOf("seq ", std::string(7, '\0')) + kFrames), FilmDefect::None,
       1},
      {"too few rates", aniOf(kHeader + ratesOf({5}) + kFrames)},
      {"no rates", aniOf(kHeader + ratesOf({}) + kFrames)},
      {"too many rates", aniOf(kHeader + ratesOf({5, 6, 7, 8, 9}) + kFrames)},
      {"rates of 0 and huge ones", aniOf(kHeader + ratesOf({0, kHuge}) + kFrames)},
      {"a rate as the last bytes", aniOf(kHeader + kFrames) + "rate"},
      {"a frame that several steps share", aniOf(headerWithSteps(2, 4, 3) + sequenceOf({1, 1, 0, 1}) + kFrames),
       FilmDefect::None, 4},
  };
}

std::vector<HostileFile> hostileFrames() {
  const std::string several = asText(cursorFile({anyEntry(16, 1), anyEntry(32, 1), anyEntry(48, 1)}));
  return {
      {"icons", aniOf(kHeader + frameList({asText(build(anyEntry(32, 1))), asText(build(anyEntry(16, 4)))}))},
      {"several images in a frame", aniOf(kHeader + frameList({several, smallFrame()}))},
      {"frames of different sizes",
       aniOf(kHeader + frameList({asText(cursorFile({anyEntry(48, 1)})), asText(cursorFile({anyEntry(8, 1)}))}))},
      {"a frame without a picture", aniOf(kHeader + kStrangeFrames), FilmDefect::FrameNotDrawn},
      {"an empty frame", aniOf(kHeader + frameList({"", smallFrame()})), FilmDefect::FrameNotDrawn},
      {"a size beyond the list", aniOf(kHeader + listOf("fram", "icon" + u32Text(kHuge) + smallFrame())),
       FilmDefect::None, 1},
      {"no frames", aniOf(kHeader), FilmDefect::NoFrames},
      {"an empty list of frames", aniOf(kHeader + listOf("fram", "")), FilmDefect::NoFrames},
  };
}

std::vector<HostileFile> hostileFiles() {
  std::vector<HostileFile> files;
  for (const auto& some : {hostileContainers(), hostileHeaders(), hostileTables(), hostileFrames()})
    files.insert(files.end(), some.begin(), some.end());
  return files;
}

bool isWithin(int value, int least, int most) { return value >= least && value <= most; }

void expectFitFrame(const FilmFrame& frame, const std::string& name) {
  EXPECT_EQ(frame.picture.image.width(), kFrameSide) << name;
  EXPECT_EQ(frame.picture.image.height(), kFrameSide) << name;
  EXPECT_EQ(frame.picture.mask.width(), kFrameSide) << name;
  EXPECT_EQ(frame.picture.mask.height(), kFrameSide) << name;
  EXPECT_TRUE(isWithin(frame.jiffies, 1, 90)) << name;
  EXPECT_TRUE(isWithin(frame.hotspotX, 0, 31) && isWithin(frame.hotspotY, 0, 31)) << name;
}

// A film is refused with a reason and empty, or is whole.
void expectFit(const ReadFilm& film, int count, const std::string& name) {
  EXPECT_EQ(film.isRead(), refusalOf(film, "a.ani").empty()) << name;
  EXPECT_EQ(film.isRead(), !film.frames.empty()) << name;
  if (!film.isRead()) return;
  EXPECT_EQ(static_cast<int>(film.frames.size()), count) << name;
  EXPECT_TRUE(isWithin(count, 1, cMaxAniFrames)) << name;
  for (const FilmFrame& frame : film.frames) expectFitFrame(frame, name);
}

TEST(FilmHostile, DefectiveFilesAreReadOrRefusedAsStated) {
  for (const HostileFile& file : hostileFiles()) {
    const std::vector<std::uint8_t> bytes = bytesOfText(file.bytes);
    const ReadFilm film = ReadANIFileFrames(bytes);
    EXPECT_EQ(film.defect, file.defect) << file.name;
    EXPECT_EQ(film.frames.size(), film.isRead() ? static_cast<std::size_t>(file.frames) : 0U) << file.name;
    expectFit(film, countAniFrames(bytes), file.name);
  }
}

TEST(FilmHostile, EveryCutOfADefectiveFileIsReadOrRefused) {
  for (const HostileFile& file : hostileFiles()) {
    const std::vector<std::uint8_t> bytes = bytesOfText(file.bytes);
    // Lists in lists repeat themselves.
    const std::size_t step = bytes.size() > 5000 ? 7 : 1;
    for (std::size_t size = 0; size < bytes.size(); size += step) {
      const auto cut = std::span(bytes).first(size);
      expectFit(ReadANIFileFrames(cut), countAniFrames(cut), file.name + " of " + std::to_string(size) + " bytes");
    }
  }
}

TEST(FilmHostile, ManyEmptyChunksArePassedOver) {
  std::string chunks, lists;
  for (int i = 0; i < 100'000; ++i) {
    chunks += chunkOf("JUNK", "");
    lists += listOf("fram", "");
  }
  EXPECT_EQ(ReadANIFileFrames(bytesOfText(aniOf(chunks + kHeader + lists + kFrames))).frames.size(), 2U);
}

TEST(FilmHostile, ManyEmptyFramesAreCountedAndRefused) {
  std::string frames;
  for (int i = 0; i < 100'000; ++i) frames += chunkOf("icon", "");
  const auto bytes = bytesOfText(aniOf(kHeader + listOf("fram", frames)));
  EXPECT_EQ(countAniFrames(bytes), 100'000);
  EXPECT_EQ(ReadANIFileFrames(bytes).defect, FilmDefect::TooManyFrames);
}

}  // namespace
}  // namespace gp::test
