#include "animation/XcursorBytes.h"
#include "animation/format/AniFile.h"
#include "animation/format/AniSteps.h"
#include "animation/format/FrameImages.h"
#include "animation/format/FromXcursor.h"
#include "animation/format/Premultiplied.h"
#include "animation/format/ToXcursor.h"
#include "animation/format/Xcursor.h"
#include "files/IcoBuilder.h"
#include "support/PngBuilder.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

// An image of one colour.
Picture plain(int width, int height, int bits, Rgb color) {
  Picture picture;
  picture.width = width;
  picture.height = height;
  picture.bits = bits;
  picture.color = [color](int, int) { return color; };
  return picture;
}

// A cursor file; the hot spot of image i is (i + 1, i + 2).
Bytes cursorOf(const std::vector<Picture>& pictures) {
  IcoFile file{{}, 0, 2, {}};
  for (const Picture& picture : pictures) file.entries.push_back(entryOf(picture));
  Bytes bytes = build(file);
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    bytes[6 + 16 * i + 4] = static_cast<std::uint8_t>(i + 1);
    bytes[6 + 16 * i + 6] = static_cast<std::uint8_t>(i + 2);
  }
  return bytes;
}
std::string textOf(const Bytes& bytes) { return {bytes.begin(), bytes.end()}; }
Bytes aniBytes(const std::string& chunks) { return bytesOfText(aniOf(chunks)); }
std::string frames(const std::vector<Bytes>& files) {
  std::string chunks;
  for (const Bytes& file : files) chunks += padded(chunkOf("icon", textOf(file)));
  return listOf("fram", chunks);
}
Bytes dot(int red) { return cursorOf({plain(4, 4, 32, {red, 0, 0, 255})}); }

// An image of a converted file in short.
struct Made {
  std::uint32_t nominalSize = 0, delayMs = 0;
  int width = 0, height = 0, hotspotX = 0, hotspotY = 0;
  std::uint32_t firstPixel = 0;

  bool operator==(const Made&) const = default;
};
void PrintTo(const Made& made, std::ostream* out) {
  *out << made.nominalSize << " " << made.delayMs << " ms " << made.width << "x" << made.height << " at "
       << made.hotspotX << "," << made.hotspotY << " " << std::hex << made.firstPixel << std::dec;
}

std::vector<Made> madeOf(const Bytes& file) {
  const ConvertedCursor converted = toXcursor(file);
  EXPECT_EQ(converted.refusal, "");
  std::vector<Made> all;
  for (const XcursorEntry& entry : readXcursor(converted.bytes).entries) {
    const XcursorFacts& facts = entry.facts;
    all.push_back({facts.nominalSize, facts.delayMs, facts.width, facts.height, facts.hotspotX, facts.hotspotY,
                   pixelsOf(converted.bytes, entry).front()});
  }
  return all;
}
PremultipliedPixels pixelsOfFirst(const ConvertedCursor& converted) {
  return pixelsOf(converted.bytes, readXcursor(converted.bytes).entries.at(0));
}

TEST(Premultiplied, EveryProductComesBack) {
  for (int alpha = 1; alpha <= 255; ++alpha)
    for (int product = 0; product <= alpha; ++product)
      ASSERT_EQ(premultiplied(unpremultiplied(product, alpha), alpha), product) << alpha;
  EXPECT_EQ(unpremultiplied(200, 100), 255);
  EXPECT_EQ(unpremultiplied(5, 0), 0);
}

TEST(ToXcursor, EveryImageOfACursorIsKeptWithItsHotSpot) {
  const Bytes file = cursorOf({plain(48, 48, 24, {1, 2, 3}), plain(16, 16, 32, {200, 100, 0, 128})});
  EXPECT_EQ(madeOf(file), (std::vector<Made>{{16, 50, 16, 16, 2, 3, 0x80643200}, {48, 50, 48, 48, 1, 2, 0xFF010203}}));
}

TEST(ToXcursor, PngPicturesAndIconsAreConverted) {
  Entry large;
  large.width = large.height = 0;
  large.image = build(anyPng(256));
  const std::vector<Made> made = madeOf(build(IcoFile{{large}, 0, 1, {}}));
  ASSERT_EQ(made.size(), 1U);
  EXPECT_EQ(made[0].nominalSize, 256U);
  EXPECT_EQ(made[0].hotspotX, 0);
}

TEST(ToXcursor, WithoutAlphaTheMaskDecidesAndInvertedPixelsAreAsOnWhite) {
  Picture picture = plain(4, 1, 24, {});
  picture.color = [](int x, int) { return x % 2 == 0 ? Rgb{0, 0, 0} : Rgb{255, 128, 0}; };
  picture.transparent = [](int x, int) { return x >= 2; };
  EXPECT_EQ(pixelsOfFirst(toXcursor(cursorOf({picture}))),
            (PremultipliedPixels{0xFF000000, 0xFFFF8000, 0, 0xFF007FFF}));
}

TEST(ToXcursor, WithAlphaTheMaskHasNoPart) {
  Picture picture = plain(3, 1, 32, {});
  picture.color = [](int x, int) { return Rgb{255, 255, 255, x * 100}; };
  picture.transparent = [](int, int) { return true; };
  EXPECT_EQ(pixelsOfFirst(toXcursor(cursorOf({picture}))), (PremultipliedPixels{0, 0x64646464, 0xC8C8C8C8}));
}

TEST(ToXcursor, AlphaThatIsZeroEverywhereCountsAsNone) {
  EXPECT_EQ(pixelsOfFirst(toXcursor(cursorOf({plain(1, 2, 32, {9, 8, 7, 0})}))),
            (PremultipliedPixels{0xFF090807, 0xFF090807}));
}

TEST(ToXcursor, AnImageOfOnePixelHasItsMask) {
  Picture picture = plain(1, 1, 24, {});
  picture.transparent = [](int, int) { return true; };
  EXPECT_EQ(pixelsOfFirst(toXcursor(cursorOf({picture}))), PremultipliedPixels{0});
}

TEST(ToXcursor, OfSeveralImagesOfOneSizeTheDeepestIsKept) {
  const Bytes file = cursorOf({plain(32, 32, 24, {1, 1, 1}), plain(32, 32, 32, {2, 2, 2, 255}), anyPicture(32, 8)});
  EXPECT_EQ(madeOf(file), (std::vector<Made>{{32, 50, 32, 32, 2, 3, 0xFF020202}}));
}

TEST(ToXcursor, NoTwoImagesOfAStepHaveOneNominalSize) {
  const Bytes file = cursorOf({plain(32, 24, 24, {1, 1, 1}), plain(24, 32, 24, {2, 2, 2}), plain(33, 33, 24, {3, 3, 3}),
                               plain(40, 40, 24, {4, 4, 4}), plain(40, 40, 24, {5, 5, 5})});
  EXPECT_EQ(madeOf(file), (std::vector<Made>{{32, 50, 24, 32, 2, 3, 0xFF020202},
                                             {33, 50, 32, 24, 1, 2, 0xFF010101},
                                             {34, 50, 33, 33, 3, 4, 0xFF030303},
                                             {40, 50, 40, 40, 4, 5, 0xFF040404},
                                             {41, 50, 40, 40, 5, 6, 0xFF050505}}));
}

TEST(ToXcursor, AHotSpotOutsideGoesToTheEdge) {
  Bytes file = cursorOf({plain(8, 6, 24, {})});
  file[10] = 200;
  file[13] = 1;  // 258
  EXPECT_EQ(madeOf(file).at(0).hotspotX, 7);
  EXPECT_EQ(madeOf(file).at(0).hotspotY, 5);
}

TEST(ToXcursor, StepsAreWrittenAsTheyArePlayed) {
  const std::string content = frames({dot(1), dot(2)});
  const std::string tables = chunkOf("rate", numbersOf({60, 600, 3})) + chunkOf("seq ", numbersOf({1, 0, 1}));
  const auto stepOf = [](std::uint32_t delay, std::uint32_t red) {
    return Made{4, delay, 4, 4, 1, 2, 0xFF000000 | red << 16};
  };
  EXPECT_EQ(madeOf(aniBytes(chunkOf("anih", numbersOf({36, 2, 3, 0, 0, 0, 0, 10, 3})) + tables + content)),
            (std::vector<Made>{stepOf(1000, 2), stepOf(10000, 1), stepOf(50, 2)}));
  // Without the flag the sequence has no part.
  EXPECT_EQ(madeOf(aniBytes(headerOf(2) + tables + content)), (std::vector<Made>{stepOf(1000, 1), stepOf(10000, 2)}));
  // Without rates all steps have that of the header.
  EXPECT_EQ(madeOf(aniBytes(headerOf(2, 6) + content)), (std::vector<Made>{stepOf(100, 1), stepOf(100, 2)}));
}

TEST(ToXcursor, TheLimitsOfTheEditorHaveNoPart) {
  const std::string content = frames(std::vector<Bytes>(200, dot(7)));
  EXPECT_EQ(madeOf(aniBytes(headerOf(200, 60) + content)).size(), 200U);
}

TEST(ToXcursor, AFrameThatLacksASizeHasTheOthers) {
  const Bytes both = cursorOf({plain(4, 4, 24, {1, 0, 0}), plain(8, 8, 24, {2, 0, 0})});
  const std::vector<Made> made = madeOf(aniBytes(headerOf(2, 6) + frames({both, dot(3)})));
  ASSERT_EQ(made.size(), 3U);
  EXPECT_EQ(made[1].firstPixel, 0xFF030000U);
  EXPECT_EQ(made[2].nominalSize, 8U);
}

TEST(ToXcursor, StepsThatAreCutToSmallerSidesAreStillOneSize) {
  const Bytes first = cursorOf({plain(8, 8, 24, {1, 0, 0}), plain(20, 10, 24, {2, 0, 0})});
  const Bytes second = cursorOf({plain(6, 9, 24, {3, 0, 0}), plain(12, 12, 24, {4, 0, 0})});
  EXPECT_EQ(madeOf(aniBytes(headerOf(2, 6) + frames({first, second}))),
            (std::vector<Made>{{9, 100, 8, 8, 1, 2, 0xFF010000},
                               {9, 100, 6, 9, 1, 2, 0xFF030000},
                               {20, 100, 20, 10, 2, 3, 0xFF020000},
                               {20, 100, 12, 12, 2, 3, 0xFF040000}}));
}

TEST(ToXcursor, WhatCannotBeReadIsRefused) {
  EXPECT_EQ(toXcursor({}).refusal, "no image that can be read");
  EXPECT_EQ(toXcursor(bytesOfText("RIFF")).refusal, "Failed to read this ANI file");
  EXPECT_EQ(toXcursor(aniBytes(frames({dot(1)}))).refusal, "Failed to read jiffies info of file.");
  EXPECT_EQ(toXcursor(aniBytes(headerOf(2) + frames({dot(1), Bytes(22)}))).refusal,
            "Failed to retrieve one of the frames, i.e. 1");
  const std::string header = chunkOf("anih", numbersOf({36, 1, 2, 0, 0, 0, 0, 10, 3}));
  EXPECT_EQ(toXcursor(aniBytes(header + chunkOf("seq ", numbersOf({0, 1})) + frames({dot(1)}))).refusal,
            "Failed to retrieve one of the frames, i.e. 1");
}

TEST(ToXcursor, AFileThatWouldBecomeHugeIsRefused) {
  const std::string frame = frames({cursorOf({plain(256, 256, 8, {})})});
  const auto shownTimes = [&](std::uint32_t times) {
    const std::string header = chunkOf("anih", numbersOf({36, 1, times, 0, 0, 0, 0, 10, 3}));
    return toXcursor(aniBytes(header + chunkOf("seq ", numbersOf(std::vector<std::uint32_t>(times, 0))) + frame))
        .refusal;
  };
  EXPECT_EQ(shownTimes(256), "");
  EXPECT_EQ(shownTimes(257), "too large for an X cursor file");
  const std::string header = chunkOf("anih", numbersOf({36, 1, 65537, 0, 0, 0, 0, 10, 3}));
  const std::string sequence = chunkOf("seq ", numbersOf(std::vector<std::uint32_t>(65537, 0)));
  EXPECT_EQ(toXcursor(aniBytes(header + sequence + frames({dot(1)}))).refusal, "too large for an X cursor file");
}

TEST(ToXcursor, AFileThatIsCutAnywhereIsRefusedOrWhole) {
  const Bytes file = aniBytes(headerOf(2) + chunkOf("rate", numbersOf({1, 2})) + frames({dot(1), dot(2)}));
  for (std::size_t size = 0; size < file.size(); ++size) {
    const ConvertedCursor made = toXcursor(std::span(file).first(size));
    EXPECT_EQ(made.isConverted(), !made.bytes.empty()) << size;
  }
}

// The way back
// ---------------------------------------------------------------------------------------------------------

ConvertedCursor still(const std::string& text, std::optional<int> size = {}) {
  return fromXcursor(bytesOfText(text), CursorKind::Still, size);
}
ConvertedCursor moving(const std::string& text, std::optional<int> size = {}) {
  return fromXcursor(bytesOfText(text), CursorKind::Animated, size);
}

TEST(FromXcursor, AStillCursorHasAllSizesWithAlphaAndTheirHotSpots) {
  const std::string text = xcursorOf({{.hotspotX = 1}, {.nominalSize = 32, .width = 1, .height = 2, .hotspotY = 2}});
  const ConvertedCursor made = still(text);
  const std::vector<FrameImageFacts> images = frameImages(made.bytes);
  ASSERT_EQ(images.size(), 2U);
  EXPECT_EQ((std::vector{images[0].width, images[0].height, images[0].bits, images[0].hotspotX, images[0].hotspotY}),
            (std::vector{2, 1, 32, 1, 0}));
  EXPECT_EQ((std::vector{images[1].width, images[1].height, images[1].bits, images[1].hotspotX, images[1].hotspotY}),
            (std::vector{1, 2, 32, 0, 2}));
  EXPECT_FALSE(images[0].isPng);
  EXPECT_EQ(made.bytes[2], 2);
  const auto icon = decodeFrameImage(made.bytes, images[0]);
  ASSERT_TRUE(icon);
  EXPECT_EQ(icon->image.GetPixel(0, 0), rgb(0x11, 0x22, 0x33));
  EXPECT_EQ(icon->image.GetPixel(1, 0), rgb(0x80, 0x40, 0x20));  // twice the product, at half the alpha
  EXPECT_EQ(icon->alphaAt(1, 0), 0x80);
}

TEST(FromXcursor, ALargeImageIsABitmapToo) {
  const XcursorPart large{
      .nominalSize = 256, .width = 256, .height = 256, .pixels = std::vector<std::uint32_t>(65536, 0xFF000000)};
  EXPECT_FALSE(frameImages(still(xcursorOf({large})).bytes).at(0).isPng);
}

TEST(FromXcursor, OneSizeCanBeChosen) {
  const std::string text = xcursorOf({{}, {.nominalSize = 48, .width = 1, .height = 2}});
  EXPECT_EQ(frameImages(still(text, 40).bytes).size(), 1U);
  EXPECT_EQ(frameImages(still(text, 40).bytes).at(0).height, 2);
  EXPECT_EQ(frameImages(still(text, 1).bytes).at(0).height, 1);
}

TEST(FromXcursor, AMovingCursorHasAFrameForEachStep) {
  const std::string text = xcursorOf({{.delayMs = 100},
                                      {.delayMs = 30},
                                      {.nominalSize = 32, .hotspotX = 1, .delayMs = 100},
                                      {.nominalSize = 32, .hotspotX = 2, .delayMs = 30}});
  const ConvertedCursor made = moving(text);
  const AniReading reading = readAniFile(made.bytes);
  ASSERT_TRUE(reading.isRead());
  EXPECT_EQ(reading.file.rates, (std::vector<std::uint32_t>{6, 2}));
  EXPECT_EQ(reading.file.delaysMs, (std::vector<std::uint32_t>{100, 30}));
  ASSERT_EQ(reading.file.images.size(), 2U);
  const AniImage& second = reading.file.images[1];
  const std::vector<FrameImageFacts> images = frameImages(std::span(made.bytes).subspan(second.offset, second.size));
  ASSERT_EQ(images.size(), 2U);
  EXPECT_EQ(images[1].hotspotX, 2);
  // The size that the rule of RIFF gives.
  EXPECT_EQ(made.bytes[4] | made.bytes[5] << 8, static_cast<int>(made.bytes.size()) - 8);
}

TEST(FromXcursor, StandardOutputGetsWhatTheContentNeeds) {
  const auto kind = [](const std::vector<XcursorPart>& parts) {
    return fromXcursor(bytesOfText(xcursorOf(parts)), CursorKind::ByContent, {}).bytes.front();
  };
  EXPECT_EQ(kind({{}, {.nominalSize = 32}}), 0);
  EXPECT_EQ(kind({{}, {}}), 'R');
}

TEST(FromXcursor, WhatTheFormatsCannotHoldIsRefused) {
  EXPECT_EQ(still(xcursorOf({{}, {}})).refusal, "a moving cursor, which only an .ani file can hold");
  EXPECT_EQ(moving(xcursorOf({{}, {}, {.nominalSize = 32}})).refusal,
            "sizes with different times, of which --size chooses one");
  EXPECT_EQ(moving(xcursorOf({{.delayMs = 1}, {.nominalSize = 32, .delayMs = 2}})).refusal,
            "sizes with different times, of which --size chooses one");
  EXPECT_EQ(moving(xcursorOf({{.delayMs = 1}, {.nominalSize = 32, .delayMs = 2}}), 32).refusal, "");
  const XcursorPart wide{.nominalSize = 300, .width = 257, .height = 1, .pixels = std::vector<std::uint32_t>(257)};
  EXPECT_EQ(still(xcursorOf({{}, wide})).refusal, "an image of 257x1 pixels, more than 256x256");
  EXPECT_EQ(still(xcursorOf({{}, wide}), 24).refusal, "");
  EXPECT_EQ(still("Xcur").refusal, "not an X cursor file");
}

TEST(FromXcursor, ImagesThatShareTheirBytesCannotBecomeHuge) {
  XcursorPart first{.width = 256, .height = 256, .pixels = std::vector<std::uint32_t>(65536)};
  std::vector<XcursorPart> parts(257, XcursorPart{.width = 256, .height = 256, .pixels = {}});
  parts[0] = first;
  for (XcursorPart& part : parts) part.position = 16 + 12 * 257;
  EXPECT_EQ(moving(xcursorOf(parts)).refusal, "too large to be converted");
}

TEST(FromXcursor, ImagesHotSpotsAndTimesComeBack) {
  XcursorPart part{.width = 16, .height = 16, .hotspotX = 15, .hotspotY = 3, .pixels = {}};
  for (std::uint32_t i = 0; i < 256; ++i) part.pixels.push_back(i << 24 | i << 16 | i / 2 << 8 | i / 7);
  part.nominalSize = 16;
  for (const std::uint32_t delay : {1U, 16U, 30U, 33U, 50U, 999U}) {
    part.delayMs = delay;
    const std::string text = xcursorOf({part, part, part});
    EXPECT_EQ(toXcursor(moving(text).bytes).bytes, bytesOfText(text)) << delay;
  }
  part.delayMs = kStillDelayMs;
  EXPECT_EQ(toXcursor(still(xcursorOf({part})).bytes).bytes, bytesOfText(xcursorOf({part})));
}

TEST(FromXcursor, TimesThatAnotherProgramChangedHold) {
  Bytes file = moving(xcursorOf({{.delayMs = 30}, {.delayMs = 30}})).bytes;
  const std::string text = textOf(file);
  file[text.find("rate") + 8] = 6;
  EXPECT_EQ(madeOf(file).at(0).delayMs, 100U);
}

}  // namespace
}  // namespace gp::test
