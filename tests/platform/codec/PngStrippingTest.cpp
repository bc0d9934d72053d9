// What is left of a PNG picture without the chunks and colours that no pixel needs.
#include "platform/codec/Png.h"
#include "support/PngBuilder.h"

#include <gtest/gtest.h>

namespace gp {
namespace {

using test::anyPng;
using test::PngBytes;
using test::PngChunk;
using test::PngFile;
namespace png = test::png;

PngBytes stripped(const PngFile& file) { return strippedPng(build(file), kPngPicture); }

PngBytes colors(int count) {
  PngBytes bytes;
  for (int i = 0; i < count; ++i)
    for (const int value : {i, 255 - i, i / 2}) bytes.push_back(static_cast<std::uint8_t>(value));
  return bytes;
}

PngFile paletteFile(int highest, int bitDepth, int entries, int alphas) {
  PngFile file = anyPng(16, png::kPalette);
  file.bitDepth = bitDepth;
  file.samples = [=](int x, int y) { return std::vector<int>{(x + y) % (highest + 1)}; };
  file.beforeData = {{"PLTE", colors(entries), true, {}}};
  if (alphas > 0) file.beforeData.push_back({"tRNS", PngBytes(static_cast<std::size_t>(alphas), 90), true, {}});
  return file;
}

TEST(PngStripping, ChunksThatChangeNoPixelAreLeftOut) {
  const PngFile bare = anyPng(32);
  PngFile full = bare;
  full.beforeData = {{"gAMA", {0, 0, 1, 2}, true, {}},
                     {"tEXt", {'A', 0, 'b'}, true, {}},
                     {"acTL", {0, 0, 0, 1, 0, 0, 0, 0}, true, {}},
                     {"PLTE", colors(4), true, {}}};
  full.afterData = {{"tIME", {7, 230, 1, 2, 3, 4, 5}, true, {}}, {"fdAT", {0, 0, 0, 1, 9}, true, {}}};
  EXPECT_EQ(stripped(full), build(bare));
  EXPECT_EQ(stripped(bare), build(bare));
}

TEST(PngStripping, BytesBehindTheLastChunkAreLeftOut) {
  PngBytes bytes = build(anyPng(16));
  const PngBytes bare = bytes;
  bytes.insert(bytes.end(), 100, 7);
  EXPECT_EQ(strippedPng(bytes, kPngPicture), bare);
}

TEST(PngStripping, ColorsBehindTheLastUsedOneAreLeftOut) {
  for (const int bitDepth : {2, 4, 8}) {
    const int entries = 1 << bitDepth;
    EXPECT_EQ(stripped(paletteFile(1, bitDepth, entries, entries)), build(paletteFile(1, bitDepth, 2, 2)));
    EXPECT_EQ(stripped(paletteFile(1, bitDepth, entries, 1)), build(paletteFile(1, bitDepth, 2, 1)));
    const PngFile full = paletteFile(std::min(entries - 1, 30), bitDepth, std::min(entries, 31), 0);
    EXPECT_EQ(stripped(full), build(full));
  }
  PngFile interlaced = paletteFile(3, 8, 256, 0), kept = paletteFile(3, 8, 4, 0);
  interlaced.isInterlaced = kept.isInterlaced = true;
  EXPECT_EQ(stripped(interlaced), build(kept));
}

TEST(PngStripping, TheTransparentColorOfAPictureWithoutPaletteStays) {
  PngFile file = anyPng(16, png::kRgb);
  file.beforeData = {{"tRNS", {0, 5, 0, 0, 0, 1}, true, {}}};
  EXPECT_EQ(stripped(file), build(file));
}

TEST(PngStripping, ThePixelsStayTheSame) {
  for (const PngFile& file : {paletteFile(2, 8, 200, 3), anyPng(32), anyPng(20, png::kGray)})
    EXPECT_EQ(decodePng(stripped(file), kPngPicture).picture.rgba, decodePng(build(file), kPngPicture).picture.rgba);
}

TEST(PngStripping, WhatCannotBeDecodedGivesNothing) {
  PngFile file = anyPng(16);
  file.hasRightDataCrc = false;
  EXPECT_TRUE(stripped(file).empty());
  EXPECT_TRUE(strippedPng({}, kPngPicture).empty());
  EXPECT_TRUE(strippedPng(build(anyPng(17)), {16, 16}).empty());
  const PngBytes whole = build(paletteFile(2, 8, 200, 3));
  for (std::size_t size = 0; size < whole.size(); ++size)
    EXPECT_TRUE(strippedPng(std::span(whole).first(size), kPngPicture).empty()) << size;
}

}  // namespace
}  // namespace gp
