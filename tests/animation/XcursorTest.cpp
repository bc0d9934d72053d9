#include "animation/XcursorBytes.h"
#include "animation/format/Xcursor.h"

#include <gtest/gtest.h>

namespace gp::test {
namespace {

XcursorReading read(const std::string& text) { return readXcursor(bytesOfText(text)); }
XcursorDefect defectOf(const XcursorPart& part) { return read(xcursorOf({part})).defect; }

TEST(XcursorReading, EveryFactAndPixelIsRead) {
  XcursorPart second{.nominalSize = 32, .width = 1, .height = 3, .hotspotX = 1, .hotspotY = 3, .delayMs = 0xFFFFFFFF};
  second.pixels = {1, 2, 0xFFFFFFFF};
  const std::string text = xcursorOf({{.hotspotX = 2, .hotspotY = 1, .delayMs = 16}, second});
  const XcursorReading reading = read(text);
  ASSERT_TRUE(reading.isRead());
  ASSERT_EQ(reading.entries.size(), 2U);
  const XcursorFacts &a = reading.entries[0].facts, &b = reading.entries[1].facts;
  EXPECT_EQ((std::vector{a.width, a.height, a.hotspotX, a.hotspotY}), (std::vector{2, 1, 2, 1}));
  EXPECT_EQ((std::vector{a.nominalSize, a.delayMs}), (std::vector{24U, 16U}));
  EXPECT_EQ((std::vector{b.width, b.height, b.hotspotX, b.hotspotY}), (std::vector{1, 3, 1, 3}));
  EXPECT_EQ((std::vector{b.nominalSize, b.delayMs}), (std::vector{32U, 0xFFFFFFFFU}));
  EXPECT_EQ(reading.entries[0].offset, 76U);
  EXPECT_EQ(pixelsOf(bytesOfText(text), reading.entries[0]), (PremultipliedPixels{0xFF112233, 0x80402010}));
  EXPECT_EQ(pixelsOf(bytesOfText(text), reading.entries[1]), second.pixels);
}

TEST(XcursorReading, CommentsAndUnknownEntriesArePassedOver) {
  XcursorPart comment{.nominalSize = 1, .type = 0xFFFE0001, .position = 0xFFFFFFFF};
  const XcursorReading reading = read(xcursorOf({comment, {}, {.type = 7, .headerSize = 0}}));
  ASSERT_TRUE(reading.isRead());
  EXPECT_EQ(reading.entries.size(), 1U);
  EXPECT_EQ(read(xcursorOf({comment})).defect, XcursorDefect::NoImages);
  EXPECT_EQ(read(xcursorOf({})).defect, XcursorDefect::NoImages);
}

TEST(XcursorReading, ALongerFileHeaderIsSkipped) {
  const std::string table = numbersOf({0xFFFD0002, 24, 36});
  const std::string text = "Xcur" + numbersOf({24, 0x10000, 1, 7, 7}) + table + imageText({});
  ASSERT_TRUE(read(text).isRead());
  EXPECT_EQ(pixelsOf(bytesOfText(text), read(text).entries[0])[0], 0xFF112233U);
}

TEST(XcursorReading, OtherFilesAreRefused) {
  for (const std::string& text : {std::string(), std::string("Xcur"), "Xcus" + xcursorOf({{}}).substr(4),
                                  "Xcur" + numbersOf({15, 0x10000, 0}), std::string(16, '\0')})
    EXPECT_EQ(read(text).defect, XcursorDefect::NotXcursor);
}

TEST(XcursorReading, ImagesOutsideTheLimitsAreDamage) {
  EXPECT_EQ(defectOf({}), XcursorDefect::None);
  EXPECT_EQ(defectOf({.width = 0}), XcursorDefect::Damaged);
  EXPECT_EQ(defectOf({.height = 0}), XcursorDefect::Damaged);
  EXPECT_EQ(defectOf({.width = 3}), XcursorDefect::Damaged);
  EXPECT_EQ(defectOf({.hotspotX = 3}), XcursorDefect::Damaged);
  EXPECT_EQ(defectOf({.hotspotY = 2}), XcursorDefect::Damaged);
  EXPECT_EQ(defectOf({.headerSize = 40}), XcursorDefect::Damaged);
  EXPECT_EQ(defectOf({.nominalSizeInTable = 25}), XcursorDefect::Damaged);
  for (const std::uint32_t position : {0U, 12U, 0x7FFFFFFFU, 0xFFFFFFFFU})
    EXPECT_EQ(defectOf({.position = position}), XcursorDefect::Damaged) << position;
  // Products of these wrap in 32 bits.
  EXPECT_EQ(defectOf({.width = 0x8000, .height = 0x8000}), XcursorDefect::Damaged);
  EXPECT_EQ(defectOf({.width = 0x10000, .height = 0x4000}), XcursorDefect::Damaged);
}

TEST(XcursorReading, TheLongestSideIsRead) {
  XcursorPart longest{.width = 0x7FFF, .height = 1, .pixels = std::vector<std::uint32_t>(0x7FFF, 5)};
  EXPECT_EQ(defectOf(longest), XcursorDefect::None);
  longest.width = 0x8000;
  longest.pixels.push_back(5);
  EXPECT_EQ(defectOf(longest), XcursorDefect::Damaged);
}

TEST(XcursorReading, CountsBeyondTheFileAreDamage) {
  for (const std::uint32_t count : {3U, 0x10000U, 0x10001U, 0x15555556U, 0xFFFFFFFFU})
    EXPECT_EQ(read(xcursorOf({{}}, count)).defect, count == 3 ? XcursorDefect::None : XcursorDefect::Damaged) << count;
}

TEST(XcursorReading, AFileThatIsCutAnywhereIsRefused) {
  const std::string text = xcursorOf({{}, {.nominalSize = 32}});
  for (std::size_t size = 0; size < text.size(); ++size)
    EXPECT_EQ(read(text.substr(0, size)).defect, size < 16 ? XcursorDefect::NotXcursor : XcursorDefect::Damaged)
        << size;
  EXPECT_TRUE(read(text + "more").isRead());
}

TEST(XcursorReading, EachDefectHasAReason) {
  EXPECT_STREQ(describe(XcursorDefect::None), "");
  EXPECT_STREQ(describe(XcursorDefect::NotXcursor), "not an X cursor file");
  EXPECT_STREQ(describe(XcursorDefect::Damaged), "a damaged X cursor file");
  EXPECT_STREQ(describe(XcursorDefect::NoImages), "an X cursor file without images");
}

TEST(XcursorReading, TheNearestNominalSizeIsTheFirstOfTwo) {
  const auto nearest = [](const std::vector<std::uint32_t>& sizes, int size) {
    std::vector<XcursorPart> parts;
    for (const std::uint32_t nominalSize : sizes) parts.push_back({.nominalSize = nominalSize});
    return nearestNominalSize(read(xcursorOf(parts)).entries, size);
  };
  EXPECT_EQ(nearest({24, 32, 48}, 32), 32U);
  EXPECT_EQ(nearest({24, 32, 48}, 29), 32U);
  EXPECT_EQ(nearest({24, 32, 48}, 28), 24U);
  EXPECT_EQ(nearest({48, 32, 24}, 28), 32U);
  EXPECT_EQ(nearest({24, 0xFFFFFFFF}, 2147483647), 24U);
}

TEST(XcursorWriting, TheFileIsGroupedByNominalSize) {
  const auto partOf = [](std::uint32_t size, std::uint32_t delay) {
    return XcursorPart{.nominalSize = size, .hotspotX = 1, .delayMs = delay};
  };
  const auto imageOf = [](std::uint32_t size, std::uint32_t delay) {
    return XcursorImage{{size, 2, 1, 1, 0, delay}, {0xFF112233, 0x80402010}};
  };
  const std::vector images{imageOf(48, 1), imageOf(24, 2), imageOf(48, 3), imageOf(24, 4)};
  EXPECT_EQ(composeXcursor(images),
            bytesOfText(xcursorOf({partOf(24, 2), partOf(24, 4), partOf(48, 1), partOf(48, 3)})));
}

}  // namespace
}  // namespace gp::test
