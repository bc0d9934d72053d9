// The byte count of the Inquiry menu beside the length of the file that Save writes.
#include "document/CurrentIcon.h"
#include "files/CursorBuilder.h"
#include "files/FilesFixture.h"
#include "files/enquiry/IconProperties.h"

namespace gp::test {
namespace {

class ByteCount : public FilesTest {
 protected:
  std::uint32_t counted() { return bytesWhenSaved(record(), currentIcon(state)); }
  std::uint32_t saved() {
    bool ok = false;
    saver.doSaveIconTo(folder.path("saved.ico"), ok);
    EXPECT_TRUE(ok);
    return static_cast<std::uint32_t>(bytesOf(folder.path("saved.ico")).size());
  }
};

TEST_F(ByteCount, IsTheLengthOfTheSavedFileForEveryDepthAndSize) {
  for (const int size : kIconSides)
    for (const int bits : {1, 4, 8, 24, 32}) {
      given(anyEntry(size, bits));
      const std::uint32_t before = counted();
      EXPECT_EQ(before, saved()) << size << " " << bits;
      EXPECT_EQ(counted(), before) << "the saved icon";
    }
}

TEST_F(ByteCount, FollowsTheColorsOfThePicture) {
  for (const int size : kIconSides)
    for (const int bits : {4, 8}) {
      given(anyEntry(size, bits));
      // Two colours, sixteen, and more than a palette has room for beside black and white.
      for (const int colors : {2, 16, 255, 256}) {
        for (int i = 0; i < size * size; ++i)
          state.picImage.SetPixelV(i % size, i / size,
                                   colors == 2    ? (i % 2 == 0 ? kBlack : kWhite)
                                   : colors == 16 ? (i % 2 == 0 ? rgb(255, 0, 0) : rgb(0, 128, 0))
                                                  : rgb(1, i % colors, 3));
        record().setDepth({256, 8});
        EXPECT_EQ(counted(), saved()) << size << " " << colors;
      }
    }
}

TEST_F(ByteCount, OfACursorWithAlphaIsThatOfTheIconThatItBecomes) {
  state.options.flagMessageIfAlpha = false;
  bool ok = false;
  files.cursorFiles.doOpenCursorFile(folder.write("arrow.cur", build(cursorOf(anyPicture(32, 32), 3, 4))), ok);
  ASSERT_TRUE(ok && record().isCursor && record().hasAlpha);
  EXPECT_EQ(counted(), 22U + 40 + 4096 + 128);
  EXPECT_EQ(counted(), saved());
}

}  // namespace
}  // namespace gp::test
