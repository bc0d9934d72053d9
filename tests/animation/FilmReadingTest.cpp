#include "animation/FilmBytes.h"
#include "animation/format/FilmReading.h"

#include <gtest/gtest.h>
#include <numeric>

namespace gp::test {
namespace {

ReadFilm read(const std::string& chunks) { return ReadANIFileFrames(bytesOfText(aniOf(chunks))); }
int count(const std::string& chunks) { return countAniFrames(bytesOfText(aniOf(chunks))); }

using Numbers = std::vector<int>;

// Which of the frames of frameList each frame of the film shows.
Numbers shown(const ReadFilm& film) {
  Numbers numbers;
  for (const FilmFrame& frame : film.frames) numbers.push_back(blueOf(frame.picture.image.GetPixel(0, 0)));
  return numbers;
}

Numbers jiffies(const ReadFilm& film) {
  Numbers numbers;
  for (const FilmFrame& frame : film.frames) numbers.push_back(frame.jiffies);
  return numbers;
}

Numbers range(int count) {
  Numbers numbers(static_cast<std::size_t>(count));
  std::iota(numbers.begin(), numbers.end(), 0);
  return numbers;
}

constexpr std::uint32_t kWithSequence = 3;

TEST(FilmReading, FramesComeInTheOrderOfTheFile) {
  const ReadFilm film = read(headerOf(3, 6) + frameList(3));
  ASSERT_TRUE(film.isRead());
  EXPECT_EQ(shown(film), (Numbers{0, 1, 2}));
  EXPECT_EQ(jiffies(film), (Numbers{6, 6, 6}));
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(film.frames[i].imageIndex, static_cast<int>(i));
    EXPECT_EQ(film.frames[i].picture.image.GetPixel(31, 31),
              rgb(16 * static_cast<int>(i), 255 - 16 * static_cast<int>(i), static_cast<int>(i)));
    EXPECT_EQ(film.frames[i].picture.mask.GetPixel(31, 31), kBlack);
  }
}

TEST(FilmReading, WithASequenceAFrameIsAStepAndStepsTakeTheirRates) {
  const ReadFilm film = read(headerWithSteps(3, 5, kWithSequence) + ratesOf({5, 4, 3, 2, 1}) +
                             sequenceOf({2, 0, 2, 1, 1}) + frameList(3));
  EXPECT_EQ(shown(film), (Numbers{2, 0, 2, 1, 1}));
  EXPECT_EQ(jiffies(film), (Numbers{5, 4, 3, 2, 1}));
  EXPECT_EQ(film.frames[3].imageIndex, 3);
  EXPECT_TRUE(film.losses.sequence);
}

TEST(FilmReading, ASequenceMustBeAnnouncedAndThere) {
  for (const std::string& chunks : {headerWithSteps(3, 3, 1) + sequenceOf({2, 1, 0}) + frameList(3),
                                    headerWithSteps(3, 3, kWithSequence) + frameList(3),
                                    headerWithSteps(3, 3, kWithSequence) + sequenceOf({}) + frameList(3),
                                    headerWithSteps(3, 9, kWithSequence) + chunkOf("seq ", "abc") + frameList(3)}) {
    const ReadFilm film = read(chunks);
    EXPECT_EQ(shown(film), range(3));
    EXPECT_FALSE(film.losses.sequence);
  }
}

TEST(FilmReading, ASequenceEndsWithTheStatedStepsOrItsTable) {
  const std::string frames = frameList(3);
  EXPECT_EQ(shown(read(headerWithSteps(3, 2, kWithSequence) + sequenceOf({2, 1, 0}) + frames)), (Numbers{2, 1}));
  EXPECT_EQ(shown(read(headerWithSteps(3, 9, kWithSequence) + sequenceOf({2, 1}) + frames)), (Numbers{2, 1}));
  EXPECT_EQ(shown(read(headerWithSteps(3, 0xFFFFFFFF, kWithSequence) + sequenceOf({2, 1}) + frames)), (Numbers{2, 1}));
  // No steps mean as many as frames.
  EXPECT_EQ(shown(read(headerWithSteps(3, 0, kWithSequence) + sequenceOf({2, 1, 0, 0}) + frames)), (Numbers{2, 1, 0}));
}

TEST(FilmReading, TheNumbersInTheHeaderDoNotLimitTheFrames) {
  for (const std::uint32_t frames : {0U, 1U, 2U, 4U, 0xFFFFFFFFU})
    for (const std::uint32_t steps : {0U, 1U, 150U, 0xFFFFFFFFU})
      EXPECT_EQ(shown(read(headerWithSteps(frames, steps) + frameList(3))), range(3)) << frames << " " << steps;
}

TEST(FilmReading, AStepWhoseFrameIsNotThereCannotBeDrawn) {
  for (const std::uint32_t index : {3U, 0x80000000U, 0xFFFFFFFFU}) {
    const ReadFilm film = read(headerWithSteps(3, 3, kWithSequence) + sequenceOf({0, index, 1}) + frameList(3));
    EXPECT_EQ(film.defect, FilmDefect::FrameNotDrawn);
    EXPECT_EQ(film.failedFrame, 1);
    EXPECT_TRUE(film.frames.empty());
  }
}

TEST(FilmReading, SeventyFramesAreTheLimit) {
  EXPECT_EQ(shown(read(headerOf(70) + frameList(70))).size(), 70U);
  EXPECT_EQ(count(headerOf(70) + frameList(70)), 70);
  for (const int frames : {71, 127, 128, 200}) {
    EXPECT_EQ(read(headerOf(70) + frameList(frames)).defect, FilmDefect::TooManyFrames) << frames;
    EXPECT_EQ(count(headerOf(70) + frameList(frames)), frames);
  }
  const std::vector<std::uint32_t> steps(150, 1);
  EXPECT_EQ(read(headerWithSteps(2, 150, kWithSequence) + sequenceOf(steps) + frameList(2)).defect,
            FilmDefect::TooManyFrames);
  EXPECT_EQ(count(headerWithSteps(2, 150, kWithSequence) + sequenceOf(steps) + frameList(2)), 150);
}

TEST(FilmReading, OneFrameIsAFilm) {
  EXPECT_EQ(count(headerOf(1) + frameList(1)), 1);
  EXPECT_EQ(shown(read(headerOf(1) + frameList(1))), Numbers{0});
}

TEST(FilmReading, ACursorThatDoesNotMoveCountsAsOneFrameWithoutTimes) {
  for (const Bytes& file : {bytesOfText(plainFrame(1)), build(anyEntry(16, 4))}) {
    EXPECT_EQ(countAniFrames(file), 1);
    EXPECT_EQ(ReadANIFileFrames(file).defect, FilmDefect::NoJiffies);
  }
}

TEST(FilmReading, OtherFilesHaveNoFrames) {
  for (const Bytes& file : {Bytes(), bytesOfText("6x6"), bytesOfText("RIFF"),
                            bytesOfText(chunkOf("RIFF", "WAVE" + headerOf(1) + frameList(1))),
                            bytesOfText(aniOf(headerOf(1))), bytesOfText(aniOf(headerOf(1, 10, 0) + frameList(1))),
                            bytesOfText(aniOf(chunkOf("anih", std::string(40, '\1')) + frameList(1)))}) {
    EXPECT_EQ(countAniFrames(file), 0);
    EXPECT_EQ(ReadANIFileFrames(file).defect, FilmDefect::NoFrames);
  }
}

TEST(FilmReading, WithoutAHeaderThereAreNoTimes) {
  EXPECT_EQ(read(frameList(2)).defect, FilmDefect::NoJiffies);
  // A tag elsewhere is no header.
  EXPECT_EQ(read(chunkOf("JUNK", headerOf(2)) + frameList(2)).defect, FilmDefect::NoJiffies);
}

TEST(FilmReading, RefusalsNameTheFile) {
  const auto text = [](FilmDefect defect, int frame = 0) { return refusalOf({defect, frame, {}, {}}, "/a/b.ani"); };
  EXPECT_EQ(text(FilmDefect::None), "");
  EXPECT_EQ(text(FilmDefect::NoFrames), "/a/b.ani\nFailed to read this ANI file");
  EXPECT_EQ(text(FilmDefect::TooManyFrames),
            "/a/b.ani\nEither an invalid ANI file or number of frames exceeds limit of 70.");
  EXPECT_EQ(text(FilmDefect::FrameNotDrawn, 12), "Failed to retrieve one of the frames, i.e. 12\n");
  EXPECT_EQ(text(FilmDefect::NoJiffies), "/a/b.ani\nFailed to read jiffies info of file.");
}

TEST(FilmReading, TimesAreLowBytesFrom1To90) {
  const ReadFilm film = read(headerOf(5) + ratesOf({0x12C, 0, 200, 90, 256}) + frameList(5));
  EXPECT_EQ(jiffies(film), (Numbers{44, 1, 90, 90, 1}));
  EXPECT_TRUE(film.losses.rates);
}

TEST(FilmReading, TimesAreFoundByTheFirstTagWhereverItIs) {
  const std::string title = listOf("INFO", chunkOf("INAM", std::string("rate") + std::string(4, '\0') + "\7aaa\10bbb"));
  EXPECT_EQ(jiffies(read(title + headerOf(2) + ratesOf({3, 4}) + frameList(2))), (Numbers{7, 8}));
}

Numbers hotspotOf(const std::string& chunks) {
  const ReadFilm film = read(chunks);
  if (film.frames.empty()) return {};
  for (const FilmFrame& frame : film.frames) {
    EXPECT_EQ(frame.hotspotX, film.frames[0].hotspotX);
    EXPECT_EQ(frame.hotspotY, film.frames[0].hotspotY);
  }
  return {film.frames[0].hotspotX, film.frames[0].hotspotY};
}

TEST(FilmReading, TheHotSpotOfAFirstFrameOf32PixelsIsFoundByTags) {
  EXPECT_EQ(hotspotOf(headerOf(2) + frameList({plainFrame(0, {7, 9}), plainFrame(1, {1, 2})})), (Numbers{7, 9}));
  EXPECT_EQ(hotspotOf(headerOf(1) + frameList({plainFrame(0, {40, 2})})), (Numbers{31, 2}));
  EXPECT_EQ(hotspotOf(headerOf(1) + frameList({plainFrame(0, {0x105, 2})})), (Numbers{5, 2}));
  // The tags are not beside each other.
  EXPECT_EQ(hotspotOf(headerOf(1) + listOf("fram", chunkOf("JUNK", "") + chunkOf("icon", plainFrame(0, {7, 9})))),
            (Numbers{0, 0}));
  EXPECT_EQ(hotspotOf(headerOf(1) + frameList({asText(build(anyEntry(32, 4)))})), (Numbers{0, 0}));
}

std::string frameWith(const std::vector<Entry>& images, const std::vector<Hotspot>& hotspots) {
  return asText(cursorFile(images, hotspots));
}

TEST(FilmReading, TheHotSpotOfOtherFirstFramesIsThatOfTheDrawnImage) {
  const Entry large = plainEntry(48, frameColor(0)), right = plainEntry(32, frameColor(0));
  EXPECT_EQ(hotspotOf(headerOf(2) + frameList({frameWith({large}, {{24, 47}}), plainFrame(1, {1, 2})})),
            (Numbers{16, 31}));
  EXPECT_EQ(hotspotOf(headerOf(1) + frameList({frameWith({large, right}, {{1, 12}, {5, 8}})})), (Numbers{5, 8}));
  EXPECT_EQ(hotspotOf(headerOf(1) + frameList({frameWith({right, large}, {{300, 8}, {1, 12}})})), (Numbers{31, 8}));
  EXPECT_EQ(hotspotOf(headerOf(1) + frameList({asText(build({{large}, 0, 1, {}}))})), (Numbers{0, 0}));
}

std::string lossesOf(const std::string& chunks) { return read(chunks).losses.text(); }

TEST(FilmReading, WhatAFilmDoesNotKeepIsStated) {
  const std::string alpha = frameWith({plainEntry(32, {1, 2, 3, 100}, 32)}, {});
  const std::string large = frameWith({plainEntry(48, {1, 2, 3, 255})}, {});
  const std::string sequence = headerWithSteps(1, 2, kWithSequence) + sequenceOf({0, 0});
  EXPECT_EQ(lossesOf(headerOf(2) + frameList(2)), "");
  EXPECT_EQ(lossesOf(headerOf(2) + frameList({plainFrame(0), alpha})), "alpha");
  EXPECT_EQ(lossesOf(sequence + frameList(1)), "sequence");
  EXPECT_EQ(lossesOf(sequence + frameList({alpha})), "alpha, sequence");
  EXPECT_EQ(lossesOf(headerOf(2) + frameList({plainFrame(0), large})), "other sizes");
  EXPECT_EQ(lossesOf(sequence + ratesOf({1, 91}) + frameList({alpha, large})), "alpha, sequence, rates above 90");
}

TEST(FilmReading, RatesAbove90AreThoseOfTheSteps) {
  EXPECT_EQ(lossesOf(headerOf(2, 91) + frameList(2)), "rates above 90");
  EXPECT_EQ(lossesOf(headerOf(2, 90) + frameList(2)), "");
  EXPECT_EQ(lossesOf(headerOf(2, 500) + ratesOf({90, 1}) + frameList(2)), "");
  EXPECT_EQ(lossesOf(headerOf(2) + ratesOf({90, 0x10001}) + frameList(2)), "rates above 90");
  EXPECT_EQ(lossesOf(headerOf(2) + ratesOf({90, 1, 1000}) + frameList(2)), "");
}

TEST(FilmReading, AFrameWithoutAPictureIsNamed) {
  const ReadFilm film = read(headerOf(3) + frameList({plainFrame(0), plainFrame(1), frameOf(2, 1, 1)}));
  EXPECT_EQ(film.defect, FilmDefect::FrameNotDrawn);
  EXPECT_EQ(film.failedFrame, 2);
  EXPECT_EQ(film.losses.text(), "");
}

}  // namespace
}  // namespace gp::test
