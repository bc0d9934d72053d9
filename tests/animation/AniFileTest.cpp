#include "animation/AniBytes.h"
#include "animation/format/AniFile.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

AniReading read(const std::string& file) { return readAniFile(bytesOfText(file)); }

std::vector<std::string> imagesOf(const std::string& text) {
  std::vector<std::string> images;
  for (const AniImage& image : read(text).file.images) images.push_back(text.substr(image.offset, image.size));
  return images;
}

const std::string kTwoFrames = listOf("fram", chunkOf("icon", "abcd") + chunkOf("icon", "ef"));
using Images = std::vector<std::string>;

TEST(AniFile, AllIsReadInAnyOrder) {
  const std::string info = listOf("INFO", chunkOf("INAM", std::string("Title\0rest", 10)) + chunkOf("IART", "Artist"));
  const std::string rates = chunkOf("rate", numbersOf({3, 0xFFFFFFFF})),
                    sequence = chunkOf("seq ", numbersOf({1, 0, 7}));
  for (const std::string& chunks : {headerOf(2, 7, 3) + rates + sequence + info + kTwoFrames,
                                    kTwoFrames + info + sequence + rates + headerOf(2, 7, 3)}) {
    const AniReading reading = read(aniOf(chunks));
    ASSERT_TRUE(reading.isRead());
    EXPECT_EQ(reading.file.header.frames, 2U);
    EXPECT_EQ(reading.file.header.steps, 2U);
    EXPECT_EQ(reading.file.header.rate, 7U);
    EXPECT_EQ(reading.file.header.flags, 3U);
    EXPECT_EQ(reading.file.title, "Title");
    EXPECT_EQ(reading.file.artist, "Artist");
    EXPECT_EQ(reading.file.rates, (std::vector<std::uint32_t>{3, 0xFFFFFFFF}));
    EXPECT_EQ(reading.file.sequence, (std::vector<std::uint32_t>{1, 0, 7}));
    EXPECT_EQ(imagesOf(aniOf(chunks)), (Images{"abcd", "ef"}));
  }
}

TEST(AniFile, WhatIsMissingIsEmpty) {
  const AniFile file = read(aniOf(headerOf(2) + kTwoFrames)).file;
  EXPECT_FALSE(file.title || file.artist || file.rates || file.sequence);
}

TEST(AniFile, OtherFilesAreRefused) {
  for (const std::string& file :
       {std::string(), std::string("RIFF"), chunkOf("RIFX", "ACON" + headerOf(2) + kTwoFrames),
        chunkOf("RIFF", "WAVE" + headerOf(2) + kTwoFrames)})
    EXPECT_EQ(read(file).defect, AniDefect::NotAnimated) << file.substr(0, 12);
  EXPECT_TRUE(isRiffFile(bytesOfText("RIFF")));
  EXPECT_FALSE(isRiffFile(bytesOfText("RIF")));
}

TEST(AniFile, TheHeaderMustBeThereAndHave36Bytes) {
  EXPECT_EQ(read(aniOf(kTwoFrames)).defect, AniDefect::NoHeader);
  EXPECT_EQ(read(aniOf(chunkOf("anih", std::string(35, '\1')) + kTwoFrames)).defect, AniDefect::StrangeHeader);
  EXPECT_EQ(read(aniOf(chunkOf("anih", std::string(40, '\1')) + kTwoFrames)).defect, AniDefect::StrangeHeader);
  const std::string cut = aniOf(kTwoFrames + headerOf(2));
  EXPECT_EQ(read(cut.substr(0, cut.size() - 1)).defect, AniDefect::StrangeHeader);
  EXPECT_EQ(read(aniOf(headerOf(2, 10, 0) + kTwoFrames)).defect, AniDefect::RawFrames);
  EXPECT_EQ(read(aniOf(headerOf(2, 10, 2) + kTwoFrames)).defect, AniDefect::RawFrames);
  EXPECT_EQ(read(aniOf(headerOf(2))).defect, AniDefect::NoFrames);
}

TEST(AniFile, TheFirstOfTwoHolds) {
  const std::string info = listOf("INFO", chunkOf("INAM", "1") + '\0' + chunkOf("INAM", "2") + '\0');
  const AniFile file =
      read(aniOf(headerOf(5) + headerOf(6) + chunkOf("rate", u32Text(1)) + chunkOf("rate", u32Text(2)) +
                 chunkOf("seq ", u32Text(3)) + chunkOf("seq ", u32Text(4)) + info + kTwoFrames))
          .file;
  EXPECT_EQ(file.header.frames, 5U);
  EXPECT_EQ(file.rates, std::vector<std::uint32_t>{1});
  EXPECT_EQ(file.sequence, std::vector<std::uint32_t>{3});
  EXPECT_EQ(file.title, "1");
}

TEST(AniFile, ListsOfFramesAreReadOneAfterTheOtherWhateverTheHeaderStates) {
  for (const std::uint32_t stated : {0U, 1U, 4U, 0xFFFFFFFFU})
    EXPECT_EQ(imagesOf(aniOf(headerOf(stated) + kTwoFrames + listOf("fram", chunkOf("icon", "gh")))),
              (Images{"abcd", "ef", "gh"}))
        << stated;
}

TEST(AniFile, TheRiffSizeDoesNotCount) {
  for (const std::uint32_t size : {0U, 8U, 0xFFFFFFFFU}) {
    std::string file = aniOf(headerOf(2) + kTwoFrames);
    file.replace(4, 4, u32Text(size));
    EXPECT_EQ(imagesOf(file), (Images{"abcd", "ef"})) << size;
  }
}

TEST(AniFile, UnknownChunksListsAndNestedListsArePassedOver) {
  const std::string frames =
      listOf("fram", chunkOf("junk", "1234") + listOf("fram", chunkOf("icon", "no")) + chunkOf("icon", "yes!"));
  EXPECT_EQ(imagesOf(aniOf(chunkOf("icon", "no") + chunkOf("JUNK", "123456") + listOf("what", chunkOf("icon", "no")) +
                           headerOf(1) + frames + "rest")),
            Images{"yes!"});
}

TEST(AniFile, AByteFollowsAnOddChunkUnlessATagIsThere) {
  const std::string with = padded(chunkOf("icon", "abc")) + chunkOf("icon", "de");
  const std::string without = chunkOf("icon", "abc") + chunkOf("icon", "de");
  for (const std::string& frames : {with, without})
    EXPECT_EQ(imagesOf(aniOf(headerOf(2) + listOf("fram", frames))), (Images{"abc", "de"}));
  for (const std::string& info : {padded(chunkOf("LIST", "INFOx")), chunkOf("LIST", "INFOx")})
    EXPECT_EQ(imagesOf(aniOf(info + headerOf(2) + kTwoFrames)), (Images{"abcd", "ef"}));
}

TEST(AniFile, ListsThatAreTooShortForATypeAreEmpty) {
  for (std::size_t size = 0; size < 4; ++size)
    EXPECT_EQ(imagesOf(aniOf(padded(chunkOf("LIST", std::string("fra").substr(0, size))) + headerOf(2) + kTwoFrames)),
              (Images{"abcd", "ef"}))
        << size;
}

TEST(AniFile, AFileThatIsCutKeepsWhatIsThere) {
  const std::string file = aniOf(headerOf(2) + kTwoFrames);
  for (std::size_t size = 0; size < file.size(); ++size) {
    const Images images = imagesOf(file.substr(0, size));
    for (const std::string& image : images) EXPECT_TRUE(image.empty() || file.find(image) != std::string::npos);
    EXPECT_LE(images.size(), 2U);
  }
  EXPECT_EQ(imagesOf(file.substr(0, file.size() - 1)), (Images{"abcd", "e"}));
}

TEST(AniFile, ManyChunksAndHugeSizesEnd) {
  std::string empty;
  for (int i = 0; i < 100000; ++i) empty += chunkOf("JUNK", "");
  EXPECT_EQ(imagesOf(aniOf(empty + headerOf(2) + kTwoFrames)).size(), 2U);
  std::string huge = aniOf(headerOf(2) + kTwoFrames);
  huge.replace(huge.find("LIST") + 4, 4, u32Text(0xFFFFFFFF));
  huge.replace(huge.find("icon") + 4, 4, u32Text(0xFFFFFFFF));
  EXPECT_EQ(imagesOf(huge).size(), 1U);
}

}  // namespace
}  // namespace gp::test
