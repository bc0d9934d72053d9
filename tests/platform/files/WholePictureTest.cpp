#include "platform/files/WholePicture.h"

#include <gtest/gtest.h>
#include <string>
#include <string_view>

namespace gp {
namespace {

using Judge = bool (*)(std::span<const std::uint8_t>);
using namespace std::string_literals;

bool judge(Judge isWhole, std::string_view text) {
  return isWhole({reinterpret_cast<const std::uint8_t*>(text.data()), text.size()});
}

void expectWholeOnlyAtItsEnd(Judge isWhole, const std::string& whole) {
  EXPECT_TRUE(judge(isWhole, whole));
  EXPECT_TRUE(judge(isWhole, whole + "behind it"));
  for (std::size_t cut = 0; cut < whole.size(); ++cut) EXPECT_FALSE(judge(isWhole, whole.substr(0, cut))) << cut;
}

// Two pixels, with a comment before them; without the last byte of the file, which only says that no picture follows.
const std::string kGif = "GIF89a\2\0\1\0\x80\0\0\xFF\0\0\0\0\xFF"s +  // screen with two colours
                         "!\xFE\3abc\0"s +                            // comment
                         ",\0\0\0\0\2\0\1\0\x80\1\2\3\4\5\6\2"s +     // picture with two colours of its own
                         "\2\x44\x0A\0"s;

TEST(WholePicture, AGifIsWholeWithTheLastBlockOfItsFirstPicture) { expectWholeOnlyAtItsEnd(isWholeGif, kGif); }

TEST(WholePicture, AGifWithoutAPictureIsNotWhole) { EXPECT_FALSE(judge(isWholeGif, kGif.substr(0, 26) + ";")); }

TEST(WholePicture, AJpegIsWholeWithTheMarkBehindItsScans) {
  // The first segment holds a preview with its own end mark.
  expectWholeOnlyAtItsEnd(isWholeJpeg,
                          "\xFF\xD8"s + "\xFF\xE1\0\6\xFF\xD9\1\2"s + "\xFF\xFF\xDA\0\2\1\2\xFF\0\xFF\xD9"s);
}

TEST(WholePicture, AJpegWhoseSegmentsLeadNowhereIsNotWhole) {
  EXPECT_FALSE(judge(isWholeJpeg, "\xFF\xD8\xFF\xE1\xFF\xFF\xFF\xD9"s));
  EXPECT_FALSE(judge(isWholeJpeg, "\xFF\xD8zz\xFF\xD9"s));
}

TEST(WholePicture, APngIsWholeWithTheCheckSumOfItsLastChunk) {
  expectWholeOnlyAtItsEnd(isWholePng, "\x89PNG\r\n\x1A\n"s + "\0\0\0\2IDATxxcrc1"s + "\0\0\0\0IENDcrc2"s);
}

TEST(WholePicture, APngWithAChunkBeyondAllMeasureIsNotWhole) {
  EXPECT_FALSE(judge(isWholePng, "\x89PNG\r\n\x1A\n\xFF\xFF\xFF\xFFIENDcrc2"s));
}

}  // namespace
}  // namespace gp
