#include "animation/FilmBuilder.h"
#include "animation/FrameExchange.h"
#include "files/PngEntries.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

TEST(PictureOfIcon, TheGroundBecomesWhite) {
  Surface composite(32, 32, kGround), mask(32, 32, kWhite);
  composite.SetPixelV(1, 0, rgb(1, 2, 3));
  mask.SetPixelV(1, 0, kBlack);
  composite.SetPixelV(2, 0, kWhite);
  mask.SetPixelV(2, 0, kBlack);
  const FramePicture picture = pictureOfIcon(composite, mask);
  const Color image[] = {kWhite, rgb(1, 2, 3), kWhite, kWhite};
  const Color wanted[] = {kWhite, kBlack, kBlack, kWhite};
  for (int x = 0; x < 4; ++x) {
    EXPECT_EQ(picture.image.GetPixel(x, 0), image[x]) << x;
    EXPECT_EQ(picture.mask.GetPixel(x, 0), wanted[x]) << x;
  }
}

TEST(PictureOfIcon, APixelOfTheGroundsColorIsLost) {
  Surface composite(32, 32, kGround), mask(32, 32, kBlack);
  composite.SetPixelV(1, 0, kGround - 1);
  const FramePicture picture = pictureOfIcon(composite, mask);
  EXPECT_EQ(picture.image.GetPixel(0, 0), kWhite);
  EXPECT_EQ(picture.image.GetPixel(1, 0), kGround - 1);
}

TEST(IconOfFrame, WhiteIsTransparentUnlessTheMaskIsBlack) {
  FramePicture picture;
  picture.image.SetPixelV(1, 0, rgb(1, 2, 3));
  picture.mask.SetPixelV(1, 0, kBlack);
  picture.mask.SetPixelV(2, 0, kBlack);
  picture.image.SetPixelV(3, 0, rgb(1, 2, 3));
  const IconImage icon = iconOfFrame(picture, 1).icon;
  const Color image[] = {kBlack, rgb(1, 2, 3), kWhite, rgb(1, 2, 3), kBlack};
  const Color mask[] = {kWhite, kBlack, kBlack, kWhite, kWhite};
  for (int x = 0; x < 5; ++x) {
    EXPECT_EQ(icon.image.GetPixel(x, 0), image[x]) << x;
    EXPECT_EQ(icon.mask.GetPixel(x, 0), mask[x]) << x;
  }
  EXPECT_FALSE(icon.hasAlphaValues());
}

TEST(IconOfFrame, TheRecordDescribesAFrame) {
  const IconContainerRec record = iconOfFrame(plainPicture(rgb(255, 0, 0)), 12).record;
  EXPECT_TRUE(record.used);
  EXPECT_TRUE(record.present);
  EXPECT_EQ(record.sourceLabel.trimmed(), "ANI frame");
  EXPECT_EQ(record.path.trimmed(), "FromAni_12");
  EXPECT_EQ(record.depth(), kStandardDepth);
  EXPECT_EQ(record.headerDepth(), kStandardDepth);
  EXPECT_FALSE(record.hasAlpha);
  EXPECT_EQ(record.size, 32);
  EXPECT_FALSE(record.fromMultiIconFile);
  EXPECT_EQ(record.multiIconIndex, 0);
  EXPECT_FALSE(record.isCursor);
  EXPECT_EQ(record.hotspotX, 0);
  EXPECT_EQ(record.hotspotY, 0);
  EXPECT_TRUE(record.neverSaved);
  EXPECT_FALSE(record.modified);
}

TEST(IconOfFrame, TheDepthIsMeasuredOnTheIcon) {
  const auto depthOf = [](const FramePicture& picture) { return iconOfFrame(picture, 1).record.depth(); };
  EXPECT_EQ(depthOf(FramePicture()), kMonoDepth);
  EXPECT_EQ(depthOf(plainPicture(rgb(1, 2, 3))), kPaletteDepth);
  FramePicture many;
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x) many.image.SetPixelV(x, y, rgb(x, y, 100));
  EXPECT_EQ(depthOf(many), (ColorDepth{-1, 24}));
}

TEST(IconOfFrame, AnIconThatWasAFrameBecomesTheSameFrame) {
  FramePicture picture;
  for (int y = 0; y < 16; ++y)
    for (int x = 0; x < 32; ++x) {
      picture.image.SetPixelV(x, y, rgb(8 * x, 8 * y, 1));
      picture.mask.SetPixelV(x, y, kBlack);
    }
  picture.image.SetPixelV(3, 3, kWhite);
  const IconImage icon = iconOfFrame(picture, 1).icon;
  Surface composite(32, 32, kGround);
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x)
      if (icon.mask.GetPixel(x, y) == kBlack) composite.SetPixelV(x, y, icon.image.GetPixel(x, y));
  EXPECT_TRUE(samePicture(pictureOfIcon(composite, icon.mask), picture));
}

class LoadIconFile : public testing::Test {
 protected:
  IconFolder folder;

  LoadedPicture load(const Bytes& bytes) const { return loadIconFile(folder.write("a.ico", bytes)); }
  std::string refusal(const Bytes& bytes) const { return load(bytes).refusal; }
  std::string path() const { return folder.path("a.ico"); }
  std::string invalid() const {
    return path() + "\nInvalid icon file or icon not a size of 16x16, 24x24, 32x32 or 48x48.";
  }
};

TEST_F(LoadIconFile, AnIconIsDrawnOnWhite) {
  for (const int bits : {1, 4, 8, 24}) {
    Picture source = anyPicture(32, bits);
    const LoadedPicture loaded = load(build(entryOf(source)));
    ASSERT_EQ(loaded.refusal, "") << bits;
    const auto colorAt = [&](int x, int y) {
      const int index = source.index(x, y);
      const Rgb c = bits == 24 ? source.color(x, y) : Rgb{index, 2 * index % 256, 255 - index};
      return rgb(c.r, c.g, c.b);
    };
    for (int y = 0; y < 32; ++y)
      for (int x = 0; x < 32; ++x) {
        const bool isOpaque = !source.transparent(x, y);
        EXPECT_EQ(loaded.picture.mask.GetPixel(x, y), isOpaque ? kBlack : kWhite);
        if (isOpaque) {
          EXPECT_EQ(loaded.picture.image.GetPixel(x, y), colorAt(x, y)) << bits << " " << x << " " << y;
        }
      }
  }
}

TEST_F(LoadIconFile, TransparentBlackIsWhiteInTheFilm) {
  Picture source = anyPicture(32, 4);
  source.palette = {{0, 0, 0}, {255, 0, 0}};
  source.index = [](int x, int) { return x < 16 ? 0 : 1; };
  source.transparent = [](int x, int) { return x < 16; };
  const LoadedPicture loaded = load(build(entryOf(source)));
  EXPECT_EQ(loaded.picture.image.GetPixel(0, 0), kWhite);
  EXPECT_EQ(loaded.picture.image.GetPixel(16, 0), rgb(255, 0, 0));
}

TEST_F(LoadIconFile, RefusesWhatIsNoIcon) {
  EXPECT_EQ(refusal({1, 2, 3}), invalid());
  EXPECT_EQ(refusal({}), invalid());
  EXPECT_EQ(refusal(build(anyEntry(20, 4))), invalid());
  EXPECT_EQ(refusal(build(IcoFile{{anyEntry(16, 4), anyEntry(48, 4)}, 0, 1, {}})), invalid()) << "none of 32 x 32";
  EXPECT_EQ(loadIconFile(folder.path("gone.ico")).refusal,
            folder.path("gone.ico") + "\nInvalid icon file or icon not a size of 16x16, 24x24, 32x32 or 48x48.");
  EXPECT_FALSE(load({}).isHint);
}

TEST_F(LoadIconFile, RefusesAFileOfSeveralIcons) {
  const std::string text = path() + "\nThis file is a multi-icon file.  Please load single-icon file only";
  EXPECT_EQ(refusal(build(IcoFile{{anyEntry(32, 4), anyEntry(16, 4)}, 0, 1, {}})), text);
  EXPECT_EQ(refusal(build(IcoFile{{anyEntry(32, 4), anyEntry(20, 4)}, 0, 1, {}})), text) << "one of them usable";
}

TEST_F(LoadIconFile, RefusesAnotherSize) {
  for (const int size : {16, 24, 48}) EXPECT_EQ(refusal(build(anyEntry(size, 4))), path() + "\n\nSize not of 32x32");
}

TEST_F(LoadIconFile, RefusesOtherTrueColorAsInformation) {
  const LoadedPicture loaded = load(build(entryOf(anyPicture(32, 24), 0, 16)));
  EXPECT_EQ(loaded.refusal, "Incoming icon is a True Color icon but not of 24 BPP or 32 BPP.");
  EXPECT_TRUE(loaded.isHint);
}

TEST_F(LoadIconFile, RefusesAlpha) {
  const std::string text = path() + "\nCannot load a 32 BPP True Color icon";
  EXPECT_EQ(refusal(build(anyEntry(32, 32))), text);
  EXPECT_EQ(refusal(build(IcoFile{{anyPngEntry(32)}, 0, 1, {}})), text);
}

TEST_F(LoadIconFile, TheSizeIsCheckedBeforeTheDepth) {
  EXPECT_EQ(refusal(build(anyEntry(48, 32))), path() + "\n\nSize not of 32x32");
  EXPECT_EQ(refusal(build(entryOf(anyPicture(16, 24), 0, 16))), path() + "\n\nSize not of 32x32");
}

}  // namespace
}  // namespace gp::test
