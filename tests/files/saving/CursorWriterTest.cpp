#include "document/AlphaGreys.h"
#include "document/EditState.h"
#include "document/IconContainerRec.h"
#include "files/CursorBuilder.h"
#include "files/Decoding.h"
#include "files/saving/CurrentIcon.h"

#include <array>
#include <filesystem>
#include <gtest/gtest.h>

namespace gp::test {
namespace {

namespace fs = std::filesystem;

constexpr Rgb kMonoPalette[] = {{0, 0, 0}, {255, 255, 255}};
constexpr Rgb kStandardPalette[] = {{0, 0, 0},       {128, 0, 0},   {0, 128, 0},   {128, 128, 0},
                                    {0, 0, 128},     {128, 0, 128}, {0, 128, 128}, {192, 192, 192},
                                    {128, 128, 128}, {255, 0, 0},   {0, 255, 0},   {255, 255, 0},
                                    {0, 0, 255},     {255, 0, 255}, {0, 255, 255}, {255, 255, 255}};

struct Depth {
  int bits, dirColors, colorCount;
  std::uint32_t bytesInRes;
};
constexpr Depth kDepths[] = {
    {1, 2, 2, 48 + 128 + 128},       // header and palette, rows, mask
    {4, 16, 16, 104 + 512 + 128},    //
    {8, 256, 0, 1064 + 1024 + 128},  //
    {24, -1, 0, 40 + 3072 + 128},    //
};

// Black, white, then colours in the order of the scan from the top left; then zeros.
std::vector<Rgb> scannedPalette(int colors) {
  std::vector<Rgb> palette(256);
  palette[1] = {255, 255, 255};
  for (int i = 2; i < colors; ++i) palette[static_cast<std::size_t>(i)] = {i, 100, 255 - i};
  return palette;
}

std::vector<Rgb> paletteOf(int bits) {
  if (bits == 1) return {std::begin(kMonoPalette), std::end(kMonoPalette)};
  if (bits == 4) return {std::begin(kStandardPalette), std::end(kStandardPalette)};
  return bits == 8 ? scannedPalette(200) : std::vector<Rgb>{};
}

// A picture, and the file that the writer must produce for it.
Picture writtenPicture(int bits) {
  Picture p = anyPicture(32, bits);
  p.palette = paletteOf(bits);
  if (bits == 8) p.index = [](int x, int y) { return (x + 32 * y) % 198 + 2; };
  return p;
}

Color colorAt(const Picture& p, int x, int y) {
  return colorOf(p.bits <= 8 ? p.palette.at(static_cast<std::size_t>(p.index(x, y))) : p.color(x, y));
}

class CursorWriter : public testing::Test {
 protected:
  IconFolder folder;
  EditState state;
  const std::string path = folder.path("written.cur");

  void show(const Picture& p) {
    for (int y = 0; y < p.height; ++y) {
      for (int x = 0; x < p.width; ++x) {
        state.picImage.SetPixelV(x, y, colorAt(p, x, y));
        state.picMask.SetPixelV(x, y, p.transparent(x, y) ? kWhite : kBlack);
      }
    }
  }
  void showWithAlpha(const Picture& p) {
    show(p);
    state.current().used = true;
    state.current().dirColors = kTrueColor;
    state.current().bitCount = 32;
    state.current().hasAlpha = true;
    state.mAlphaRecs[0] = AlphaMatrix(32, 32);
    for (int y = 0; y < 32; ++y)
      for (int x = 0; x < 32; ++x) state.picAlpha.SetPixelV(x, y, greyOf(p.color(x, y).a));
  }
  Bytes written(int x, int y) {
    EXPECT_TRUE(writeCurrentCursor(state, x, y, path));
    return bytesOf(path);
  }
};

TEST_F(CursorWriter, EveryDepthIsWrittenByteForByte) {
  for (const Depth& depth : kDepths) {
    const Picture p = writtenPicture(depth.bits);
    show(p);
    state.current().dirColors = depth.dirColors;
    CursorFile expected = cursorOf(p, 5, 31);
    expected.colorCount = depth.colorCount;
    expected.bytesInRes = depth.bytesInRes;
    EXPECT_EQ(written(5, 31), build(expected)) << depth.bits << " bits";
  }
}

TEST_F(CursorWriter, AlphaIsWrittenInFourBytesWhileTheByteCountStaysThatOfThree) {
  const Picture p = anyPicture(32, 32);
  showWithAlpha(p);
  Picture truth = p;  // transparent pixels lose their alpha
  truth.color = [&](int x, int y) {
    Rgb c = p.color(x, y);
    if (p.transparent(x, y)) c.a = 0;
    return c;
  };
  CursorFile expected = cursorOf(truth, 31, 0);
  expected.bytesInRes = 40 + 3072 + 128;
  EXPECT_EQ(written(31, 0), build(expected));
  EXPECT_EQ(fs::file_size(path), 22u + 40 + 4096 + 128);
}

TEST_F(CursorWriter, APaintedPixelOfAlpha0IsWrittenAs1) {
  Picture p = anyPicture(32, 32);
  p.color = [](int x, int y) { return Rgb{x, y, 7, 0}; };
  showWithAlpha(p);
  Picture expected = p;
  expected.color = [&p](int x, int y) { return Rgb{x, y, 7, p.transparent(x, y) ? 0 : 1}; };
  CursorFile file = cursorOf(expected, 4, 5);
  file.bytesInRes = 40 + 3072 + 128;
  EXPECT_EQ(written(4, 5), build(file));
}

TEST_F(CursorWriter, TheDepthFollowsFromTheColorsOnThePicture) {
  state.current().dirColors = 256;
  show(writtenPicture(1));
  EXPECT_EQ(written(0, 0)[36], 1);
  show(writtenPicture(4));
  EXPECT_EQ(written(0, 0)[36], 4);
}

TEST_F(CursorWriter, ATrueColorIconStaysTrueColorWithTwoColorsOnIt) {
  state.current().dirColors = kTrueColor;
  show(writtenPicture(1));
  EXPECT_EQ(written(0, 0)[36], 24);
  EXPECT_EQ(bytesOf(path)[8], 0);
}

TEST_F(CursorWriter, MoreColorsThanAPaletteHoldsAreWrittenInTrueColor) {
  state.current().dirColors = 16;
  Picture p = anyPicture(32, 24);
  p.color = [](int x, int y) { return Rgb{x, y, 7}; };
  show(p);
  EXPECT_EQ(written(2, 3), build(cursorOf(p, 2, 3)));
}

TEST_F(CursorWriter, AlphaThatTheColorsLeaveNoRoomForDoesNotStopThePaletteCursor) {
  state.current().dirColors = 16;
  state.current().hasAlpha = true;
  show(writtenPicture(4));
  EXPECT_EQ(written(0, 0)[36], 4);
}

TEST_F(CursorWriter, AnAlphaMatrixOfAnotherSizeIsAFailureAndTheFileStays) {
  showWithAlpha(anyPicture(32, 32));
  state.mAlphaRecs[0] = AlphaMatrix(16, 16);
  folder.write("written.cur", {1, 2, 3});
  EXPECT_FALSE(writeCurrentCursor(state, 0, 0, path));
  EXPECT_EQ(bytesOf(path), (Bytes{1, 2, 3}));
}

TEST_F(CursorWriter, AnExistingFileIsReplaced) {
  folder.write("written.cur", Bytes(100000, 7));
  show(writtenPicture(1));
  EXPECT_EQ(written(0, 0).size(), 22u + 48 + 128 + 128);
}

TEST_F(CursorWriter, AReadOnlyFileAndAMissingFolderAreFailures) {
  folder.write("written.cur", {1, 2, 3});
  fs::permissions(path, fs::perms::owner_read);
  EXPECT_FALSE(writeCurrentCursor(state, 0, 0, path));
  EXPECT_EQ(bytesOf(path), (Bytes{1, 2, 3}));
  EXPECT_FALSE(writeCurrentCursor(state, 0, 0, folder.path("no/such.cur")));
}

TEST_F(CursorWriter, TheRecordAndTheSurfacesAreNotTouched) {
  show(writtenPicture(4));
  state.current().modified = true;
  const Surface image = state.picImage, mask = state.picMask;
  written(1, 2);
  EXPECT_TRUE(state.current().modified);
  EXPECT_FALSE(state.current().isCursor);
  EXPECT_EQ(state.current().path.trimmed(), "");
  EXPECT_TRUE(samePixels(state.picImage, image) && samePixels(state.picMask, mask));
}

}  // namespace
}  // namespace gp::test
