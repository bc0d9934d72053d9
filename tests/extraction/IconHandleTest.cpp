#include "extraction/LibraryBytes.h"
#include "extraction/format/IconHandle.h"
#include "support/NeBytes.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

constexpr Rgb kRed{255, 0, 0, 255}, kGreen{0, 255, 0, 255};
constexpr Color kDrawnGreen = rgb(0, 255, 0), kDrawnRed = rgb(255, 0, 0);

Color drawnColor(const std::vector<LibraryImage>& images, int size = kLargeIcon) {
  const auto handle = handleOf(images, size);
  return handle ? handle->image.GetPixel(0, 0) : kNoColor;
}

TEST(IconHandle, TheImageNearestToTheSizeIsTaken) {
  for (const int other : {8, 16, 24, 48, 64, 128}) {
    EXPECT_EQ(drawnColor({plainImage(other, kRed), plainImage(32, kGreen)}), kDrawnGreen) << other;
    EXPECT_EQ(drawnColor({plainImage(32, kGreen), plainImage(other, kRed)}), kDrawnGreen) << other;
  }
  EXPECT_EQ(drawnColor({plainImage(32, kRed), plainImage(16, kGreen)}, kSmallIcon), kDrawnGreen);
  EXPECT_EQ(drawnColor({plainImage(48, kRed), plainImage(32, kGreen)}, kSmallIcon), kDrawnGreen);
  // 6 + 4 pixels are nearer than 8 + 8.
  Picture wide = plainPicture(38, kGreen);
  wide.height = 28;
  EXPECT_EQ(drawnColor({plainImage(24, kRed), imageOf(wide)}), kDrawnGreen);
}

TEST(IconHandle, OfSeveralAsNearTheDeepestIsTakenThenTheFirst) {
  EXPECT_EQ(drawnColor({plainImage(32, kRed), plainImage(32, kGreen, 32)}), kDrawnGreen);
  EXPECT_EQ(drawnColor({plainImage(32, kGreen, 32), plainImage(32, kRed)}), kDrawnGreen);
  EXPECT_EQ(drawnColor({plainImage(32, kGreen), plainImage(32, kRed)}), kDrawnGreen);
  EXPECT_EQ(drawnColor({plainImage(40, kRed), plainImage(24, kGreen, 32)}), kDrawnGreen);
}

TEST(IconHandle, TheDirectoryOfTheGroupIsBelievedInTheChoice) {
  LibraryImage liar = plainImage(16, kGreen);
  liar.stated.width = liar.stated.height = 32;
  EXPECT_EQ(drawnColor({plainImage(24, kRed), liar}), kDrawnGreen);
  liar = plainImage(32, kGreen, 24);
  liar.stated.bits = 64;
  EXPECT_EQ(drawnColor({plainImage(32, kRed, 32), liar}), kDrawnGreen);
  // 0 states 256.
  liar = plainImage(32, kRed);
  liar.stated.width = liar.stated.height = 0;
  EXPECT_EQ(drawnColor({liar, plainImage(64, kGreen)}), kDrawnGreen);
}

TEST(IconHandle, AnImageIsDecodedByItsOwnHeader) {
  Picture p = plainPicture(16, kGreen);
  p.index = [](int x, int) { return x; };
  p.bits = 4;
  LibraryImage image = imageOf(p);
  image.stated = {48, 48, 2, 1, 32};
  const auto handle = handleOf({image}, 16);
  ASSERT_TRUE(handle);
  for (int x = 0; x < 16; ++x) EXPECT_EQ(handle->image.GetPixel(x, 0), rgb(x, 2 * x, 255 - x));
}

LibraryImage damaged(int size = 32) { return {{size, size, 0, 1, 32}, Bytes(50, 0xEE)}; }

TEST(IconHandle, AnImageThatCannotBeDecodedGivesWayToTheNextBestOne) {
  EXPECT_EQ(drawnColor({damaged(), plainImage(48, kRed), plainImage(24, kGreen)}), kDrawnGreen);
  EXPECT_EQ(drawnColor({damaged()}), kNoColor);
  EXPECT_EQ(drawnColor({}), kNoColor);
  std::vector<Resource> missing = iconWith({plainImage(32, kRed), plainImage(16, kGreen)});
  missing.erase(missing.begin());
  const auto handle = firstIconOf(peWith(missing));
  ASSERT_TRUE(handle);
  EXPECT_EQ(handle->image.GetPixel(0, 0), kDrawnGreen);
}

TEST(IconHandle, SixteenImagesAreTriedAndSharedOnesOnce) {
  std::vector<LibraryImage> images(15, damaged());
  images.push_back(plainImage(48, kGreen));
  EXPECT_EQ(drawnColor(images), kDrawnGreen);
  images.insert(images.begin(), damaged());
  EXPECT_EQ(drawnColor(images), kNoColor);
  std::vector<GroupEntry> shared(200, GroupEntry{32, 32, 0, 1, 32, 0, 1});
  shared.push_back({48, 48, 0, 1, 24, 0, 2});
  const auto handle =
      firstIconOf(peWith({iconOf(1, Bytes(50, 0xEE)), iconOf(2, plainImage(48, kGreen).bytes), groupOf(1, shared)}));
  ASSERT_TRUE(handle);
  EXPECT_EQ(handle->image.GetPixel(0, 0), kDrawnGreen);
}

// 20 images in different places, but without bytes, before one with bytes.
TEST(IconHandle, MissingImagesAreNotAmongThoseThatAreTried) {
  std::vector<LibraryImage> images(20, damaged());
  images.push_back(plainImage(48, kGreen));
  Bytes section = ResourceSection(iconWith(images), 0x2000).bytes();
  // The sizes of the first 20 data entries, behind the directories of types and of names; each follows that of its
  // language.
  for (std::size_t i = 0; i < 20; ++i) set32(section, 32 + 16 + 21 * 8 + i * 40 + 24 + 4, 0);
  const auto handle = firstIconOf(peFile(section));
  ASSERT_TRUE(handle);
  EXPECT_EQ(handle->image.GetPixel(0, 0), kDrawnGreen);
}

TEST(IconHandle, AnNeImageIsTheSame) {
  const auto handle = firstIconOf(neWith(iconWith({plainImage(16, kRed), plainImage(32, kGreen)}), {.shift = 9}));
  ASSERT_TRUE(handle);
  EXPECT_EQ(handle->image.GetPixel(31, 31), kDrawnGreen);
  EXPECT_EQ(handle->mask.GetPixel(31, 31), kBlack);
  EXPECT_EQ(handle->width(), 32);
  EXPECT_FALSE(handle->hasAlphaValues());
}

TEST(IconHandle, FilesOfIconsAndCursorsAreChosenFromInTheSameWay) {
  const std::vector<Entry> entries{plainEntry(16, kRed), plainEntry(32, kRed), plainEntry(32, kGreen, 32)};
  for (const Bytes& file : {build({entries, 0, 1, {}}), cursorFile(entries)}) {
    EXPECT_EQ(fileIcon(file, 32).value().image.GetPixel(0, 0), kDrawnGreen);
    EXPECT_EQ(fileIcon(file, 16).value().image.GetPixel(0, 0), kDrawnRed);
    EXPECT_EQ(fileIcon(file, 16).value().width(), 16);
  }
  EXPECT_FALSE(fileIcon({}, 32));
  EXPECT_FALSE(fileIcon(Bytes(100, 0), 32));
}

TEST(IconHandle, AnotherSizeIsScaledByDroppingAndRepeatingPixels) {
  Picture p = plainPicture(64, kRed, 32);
  p.color = [](int x, int y) { return Rgb{x * 3, y * 3, 9, (x + y) % 256}; };
  p.transparent = [](int x, int y) { return (x + y) % 3 == 0; };
  const IconImage handle = handleOf({imageOf(p)}).value();
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x) {
      // Of two columns the last, of two rows the first.
      const int fromX = 2 * x + 1, fromY = 2 * y;
      ASSERT_EQ(handle.image.GetPixel(x, y), rgb(fromX * 3, fromY * 3, 9));
      ASSERT_EQ(handle.alpha.at(x, y), (fromX + fromY) % 256);
      ASSERT_EQ(handle.mask.GetPixel(x, y), (fromX + fromY) % 3 == 0 ? kWhite : kBlack);
    }
  Picture small = plainPicture(16, kRed);
  small.color = [](int x, int y) { return Rgb{x * 9, y * 9, 9, 255}; };
  const IconImage large = handleOf({imageOf(small)}).value();
  for (int y = 0; y < 32; ++y)
    for (int x = 0; x < 32; ++x) ASSERT_EQ(large.image.GetPixel(x, y), rgb(x / 2 * 9, y / 2 * 9, 9));
}

// An icon of 32 bits with a column for each case: alpha 0 and 255 without and with the mask, and 100.
Picture alphaPicture() {
  Picture p = plainPicture(32, kRed, 32);
  p.color = [](int x, int) { return Rgb{200, 100, 50, x < 2 ? 0 : x < 4 ? 255 : 100}; };
  p.transparent = [](int x, int) { return x % 2 == 1; };
  return p;
}

int blendedOn(int ground, int channel, int alpha) { return (channel * alpha + ground * (255 - alpha) + 127) / 255; }
Color blendedOn(Color ground, int alpha) {
  return rgb(blendedOn(redOf(ground), 200, alpha), blendedOn(greenOf(ground), 100, alpha),
             blendedOn(blueOf(ground), 50, alpha));
}

TEST(IconHandle, AlphaIsBlendedWithTheGroundWithoutTheMask) {
  const IconImage handle = handleOf({imageOf(alphaPicture())}).value();
  ASSERT_TRUE(handle.hasAlphaValues());
  for (const Color ground : {kBlack, kWhite, kGround, rgb(1, 99, 254)}) {
    const Surface drawn = drawnOn(handle, ground);
    for (int x = 0; x < 6; ++x)
      EXPECT_EQ(drawn.GetPixel(x, 5), blendedOn(ground, x < 2 ? 0 : x < 4 ? 255 : 100)) << x << ' ' << ground;
  }
}

TEST(IconHandle, WithoutAlphaTheMaskKeepsTheGroundAndColorsInvertIt) {
  Picture p = plainPicture(32, kRed);
  p.color = [](int x, int) { return x < 2 ? Rgb{0, 0, 0} : Rgb{0x10, 0x20, 0xFF}; };
  p.transparent = [](int x, int) { return x % 2 == 1; };
  const Surface drawn = drawnOn(handleOf({imageOf(p)}).value(), kGround);
  EXPECT_EQ(drawn.GetPixel(0, 0), kBlack);
  EXPECT_EQ(drawn.GetPixel(1, 0), kGround);
  EXPECT_EQ(drawn.GetPixel(2, 0), rgb(0x10, 0x20, 0xFF));
  EXPECT_EQ(drawn.GetPixel(3, 0), rgb(0xD0, 0xE0, 0x3F));
}

TEST(IconHandle, SurfacesKeepAlphaAndAreBlackWhereTheyAreTransparent) {
  const IconImage icon = surfacesOf(handleOf({imageOf(alphaPicture())}).value());
  ASSERT_TRUE(icon.hasAlphaValues());
  for (const int x : {0, 1, 3, 5}) {
    EXPECT_EQ(icon.mask.GetPixel(x, 0), kWhite) << x;
    EXPECT_EQ(icon.image.GetPixel(x, 0), kBlack) << x;
  }
  EXPECT_EQ(icon.mask.GetPixel(2, 0), kBlack);
  EXPECT_EQ(icon.mask.GetPixel(4, 0), kBlack);
  EXPECT_EQ(icon.image.GetPixel(4, 0), rgb(200, 100, 50));
  EXPECT_EQ(icon.alpha.at(2, 0), 255);
  EXPECT_EQ(icon.alpha.at(4, 0), 100);
  EXPECT_EQ(icon.alpha.at(0, 0), kOpaqueAlpha) << "a pixel that is painted later is opaque";
}

TEST(IconHandle, OneAlphaValueAboveZeroIsAlpha) {
  Picture p = plainPicture(32, {9, 9, 9, 0}, 32);
  p.transparent = [](int x, int) { return x > 0; };
  const IconImage without = handleOf({imageOf(p)}).value();
  EXPECT_FALSE(without.hasAlphaValues());
  EXPECT_EQ(without.alpha, AlphaMatrix());
  EXPECT_EQ(without.mask.GetPixel(0, 0), kBlack);
  EXPECT_EQ(without.image.GetPixel(1, 0), rgb(9, 9, 9)) << "an inverting pixel stays";
  EXPECT_EQ(surfacesOf(without).image.GetPixel(1, 0), rgb(9, 9, 9));
  p.color = [](int x, int y) { return Rgb{9, 9, 9, x == 31 && y == 31 ? 1 : 0}; };
  p.transparent = [](int, int) { return false; };
  const IconImage icon = surfacesOf(handleOf({imageOf(p)}).value());
  EXPECT_TRUE(icon.hasAlphaValues());
  EXPECT_EQ(icon.mask.GetPixel(0, 0), kWhite);
  EXPECT_EQ(icon.mask.GetPixel(31, 31), kBlack);
  EXPECT_EQ(icon.alpha.at(31, 31), 1);
}

TEST(IconHandle, ImageAndMaskAloneAreDrawnOnBlackAndKeepTheMask) {
  const IconImage icon = surfacesWithoutAlpha(handleOf({imageOf(alphaPicture())}).value());
  EXPECT_EQ(icon.alpha, AlphaMatrix());
  for (int x = 0; x < 6; ++x) {
    EXPECT_EQ(icon.image.GetPixel(x, 0), blendedOn(kBlack, x < 2 ? 0 : x < 4 ? 255 : 100)) << x;
    EXPECT_EQ(icon.mask.GetPixel(x, 0), x % 2 == 1 ? kWhite : kBlack) << x;
  }
  Picture plain = plainPicture(32, kRed);
  plain.transparent = [](int, int) { return true; };
  const IconImage inverting = surfacesWithoutAlpha(handleOf({imageOf(plain)}).value());
  EXPECT_EQ(inverting.image.GetPixel(0, 0), kDrawnRed) << "colours are copied";
  EXPECT_EQ(inverting.mask.GetPixel(0, 0), kWhite);
}

PngFile pngWithAlpha(int side = 32) {
  PngFile file{.width = static_cast<std::uint32_t>(side), .height = static_cast<std::uint32_t>(side)};
  file.samples = [](int x, int) {
    return std::vector<int>{200, 100, 50, x == 0 ? 0 : x == 1 ? 127 : x == 2 ? 128 : 255};
  };
  return file;
}

TEST(IconHandle, APngPictureHasNoMaskAndIsTransparentByItsAlpha) {
  const IconImage handle = handleOf({pngImage(pngWithAlpha())}).value();
  EXPECT_EQ(handle.mask.width(), 0);
  const IconImage kept = surfacesOf(handle), plain = surfacesWithoutAlpha(handle);
  const Color white = kWhite, black = kBlack;
  EXPECT_EQ(kept.mask.GetPixel(0, 3), white);
  EXPECT_EQ(kept.image.GetPixel(0, 3), black);
  for (const int x : {1, 2, 3}) EXPECT_EQ(kept.mask.GetPixel(x, 3), black) << x;
  EXPECT_EQ(kept.alpha.at(1, 3), 127);
  EXPECT_EQ(plain.mask.GetPixel(1, 3), white);
  EXPECT_EQ(plain.mask.GetPixel(2, 3), black);
  EXPECT_EQ(plain.image.GetPixel(2, 3), blendedOn(kBlack, 128));
}

TEST(IconHandle, APngPictureWithoutAlphaIsOpaqueAndAnInvisibleOneEmpty) {
  PngFile opaque{.width = 32, .height = 32};
  opaque.colorType = png::kRgb;
  opaque.samples = [](int, int) { return std::vector<int>{1, 2, 3}; };
  const IconImage handle = handleOf({pngImage(opaque)}).value();
  EXPECT_FALSE(handle.hasAlphaValues());
  EXPECT_EQ(handle.mask.GetPixel(0, 0), kBlack);
  EXPECT_EQ(handle.image.GetPixel(0, 0), rgb(1, 2, 3));
  PngFile invisible{.width = 32, .height = 32};
  invisible.samples = [](int, int) { return std::vector<int>{1, 2, 3, 0}; };
  const IconImage empty = handleOf({pngImage(invisible)}).value();
  EXPECT_FALSE(empty.hasAlphaValues());
  EXPECT_EQ(empty.mask.GetPixel(0, 0), kWhite);
  EXPECT_EQ(empty.image.GetPixel(0, 0), kBlack);
}

TEST(IconHandle, AMaskThatIsCutOffIsThatOfTheAlphaValues) {
  LibraryImage image = imageOf(alphaPicture());
  image.bytes.resize(image.bytes.size() - 1);
  const IconImage handle = handleOf({image}).value();
  EXPECT_EQ(handle.mask.width(), 0);
  EXPECT_EQ(surfacesOf(handle).mask.GetPixel(5, 0), kBlack);
  EXPECT_EQ(surfacesWithoutAlpha(handle).mask.GetPixel(4, 0), kWhite);
}

TEST(IconHandle, ThePictureOnAKeyColorIsBlackWhereThatShowsThroughTheMask) {
  IconImage icon{Surface(3, 1, kWhite), Surface(3, 1, kWhite), AlphaMatrix()};
  icon.mask.SetPixelV(1, 0, kBlack);
  icon.image.SetPixelV(2, 0, rgb(255, 255, 254));
  blackenKey(icon, kWhite);
  EXPECT_EQ(icon.image.GetPixel(0, 0), kBlack);
  EXPECT_EQ(icon.image.GetPixel(1, 0), kWhite);
  EXPECT_EQ(icon.image.GetPixel(2, 0), rgb(255, 255, 254));
}

}  // namespace
}  // namespace gp::test
