#include "platform/qt/QtPictureLoader.h"
#include "support/ProcessUse.h"
#include "support/TempFolder.h"
#include "support/TopRowFirst.h"

#include <QBuffer>
#include <QImage>

#include <algorithm>
#include <filesystem>
#include <gtest/gtest.h>
#include <limits>
#include <sys/stat.h>

namespace gp {
namespace {

constexpr int kMax = 1024;
constexpr std::uintmax_t kHundredMegabytes = 100'000'000;
constexpr std::size_t kMostReadOfOne = 21 * test::kMegabyte;

class PictureLoaderTest : public testing::Test {
 protected:
  test::TempFolder folder;
  QtPictureLoader loader;

  static std::string encoded(const QImage& image, const char* format) {
    QByteArray bytes;
    QBuffer buffer(&bytes);
    buffer.open(QIODevice::WriteOnly);
    EXPECT_TRUE(image.save(&buffer, format)) << format;
    return bytes.toStdString();
  }
  static QImage picture(QImage::Format format = QImage::Format_RGB32) {
    QImage image(5, 3, QImage::Format_RGB32);
    image.fill(QColor(255, 0, 0));
    image.setPixelColor(4, 0, QColor(0, 0, 255));
    return image.convertToFormat(format);
  }
  LoadedPicture load(const std::string& bytes) { return loader.loadPicture(folder.write("a.pal", bytes), kMax, kMax); }
  // A file of 100 MB that begins with these bytes; it is sparse and takes no space on the disk.
  std::string stretched(const std::string& bytes) {
    const std::string path = folder.write("large.pal", bytes);
    std::filesystem::resize_file(path, kHundredMegabytes);
    return path;
  }
};

// The header of a bitmap of 24 bits, without its pixels.
std::string bitmapHeader(int width, int height) {
  std::string bytes = "BM";
  const auto u32 = [&bytes](int value) {
    for (int shift = 0; shift < 32; shift += 8) bytes += static_cast<char>(value >> shift);
  };
  for (const int value : {0, 0, 54, 40, width, height, 1 | 24 << 16, 0, 0, 0, 0, 0, 0}) u32(value);
  return bytes;
}

TEST_F(PictureLoaderTest, EveryDepthAndFormatGivesTheSamePixels) {
  const QImage::Format depths[] = {QImage::Format_Mono, QImage::Format_Indexed8, QImage::Format_RGB32};
  for (const char* format : {"bmp", "png"}) {
    for (const QImage::Format depth : depths) {
      const LoadedPicture loaded = load(encoded(picture(depth), format));
      ASSERT_EQ(loaded.problem, PictureProblem::None) << format << depth;
      EXPECT_EQ(loaded.width, 5);
      EXPECT_EQ(loaded.height, 3);
      if (depth == QImage::Format_Mono) continue;
      EXPECT_EQ(loaded.picture.GetPixel(0, 0), rgb(255, 0, 0)) << format << depth;
      EXPECT_EQ(loaded.picture.GetPixel(4, 0), rgb(0, 0, 255)) << format << depth;
      EXPECT_EQ(loaded.picture.GetPixel(4, 2), rgb(255, 0, 0)) << format << depth;
    }
  }
  EXPECT_EQ(load(encoded(picture(), "jpeg")).problem, PictureProblem::None);
}

TEST_F(PictureLoaderTest, BitmapsWithTheirTopRowFirstAreReadPixelByPixel) {
  constexpr int kWidth = 7, kHeight = 5;
  QImage whole(kWidth, kHeight, QImage::Format_RGB32);
  for (int y = 0; y < kHeight; ++y)
    for (int x = 0; x < kWidth; ++x) whole.setPixel(x, y, qRgb(x * 30, y * 50, 200));
  const std::pair<QImage::Format, int> depths[] = {
      {QImage::Format_RGB32, 24}, {QImage::Format_Indexed8, 8}, {QImage::Format_Mono, 1}};
  for (const auto& [depth, bits] : depths) {
    const std::string usual = encoded(whole.convertToFormat(depth), "bmp");
    const LoadedPicture expected = load(usual);
    ASSERT_EQ(expected.problem, PictureProblem::None) << bits;
    const std::string upright = test::topRowFirst(usual, kWidth, kHeight, bits);
    ASSERT_NE(upright, usual);
    const LoadedPicture loaded = load(upright);
    ASSERT_EQ(loaded.problem, PictureProblem::None) << bits;
    EXPECT_EQ(loaded.width, kWidth);
    EXPECT_EQ(loaded.height, kHeight);
    EXPECT_TRUE(std::ranges::equal(loaded.picture.pixels(), expected.picture.pixels())) << bits;
    if (bits == 24) {
      EXPECT_EQ(loaded.picture.GetPixel(6, 1), rgb(180, 50, 200));
    }
    EXPECT_EQ(load(upright.substr(0, upright.size() - 1)).problem, PictureProblem::Unreadable) << bits;
  }
}

TEST_F(PictureLoaderTest, TheLargestNegativeHeightsAreRefused) {
  constexpr int kLeast = std::numeric_limits<int>::min();
  for (const int width : {0, 1, 5, 16000}) {
    EXPECT_EQ(load(bitmapHeader(width, kLeast) + std::string(1000, 'x')).problem, PictureProblem::Unreadable) << width;
    EXPECT_NE(load(bitmapHeader(width, kLeast + 1) + std::string(1000, 'x')).problem, PictureProblem::None) << width;
  }
  const LoadedPicture tall = load(bitmapHeader(5, -kMax - 1));
  EXPECT_EQ(tall.problem, PictureProblem::TooLarge);
  EXPECT_EQ(tall.height, kMax + 1);
}

TEST_F(PictureLoaderTest, TransparentPartsAreWhite) {
  QImage image(2, 1, QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  image.setPixelColor(1, 0, Qt::black);
  const LoadedPicture loaded = load(encoded(image, "png"));
  EXPECT_EQ(loaded.picture.GetPixel(0, 0), kWhite);
  EXPECT_EQ(loaded.picture.GetPixel(1, 0), kBlack);
}

TEST_F(PictureLoaderTest, WhatIsNoPictureIsUnreadable) {
  EXPECT_EQ(load("").problem, PictureProblem::Unreadable);
  EXPECT_EQ(load("hello").problem, PictureProblem::Unreadable);
  EXPECT_EQ(load("BM").problem, PictureProblem::Unreadable);
  EXPECT_EQ(load("<svg xmlns='http://www.w3.org/2000/svg' width='5' height='3'/>").problem, PictureProblem::Unreadable);
  EXPECT_EQ(loader.loadPicture(folder.file("missing.pal"), kMax, kMax).problem, PictureProblem::Unreadable);
}

TEST_F(PictureLoaderTest, APictureCutShortAnywhereIsUnreadable) {
  QImage detailed(40, 200, QImage::Format_RGB32);
  for (int y = 0; y < detailed.height(); ++y)
    for (int x = 0; x < detailed.width(); ++x) detailed.setPixel(x, y, qRgb(x * 6, y, x * y));
  for (const char* format : {"bmp", "png", "jpeg"}) {
    const std::string whole = encoded(detailed, format);
    EXPECT_EQ(load(whole).problem, PictureProblem::None) << format;
    for (const std::size_t cut :
         {whole.size() - 1, whole.size() - 20, whole.size() / 2, std::size_t{60}, std::size_t{20}})
      EXPECT_EQ(load(whole.substr(0, cut)).problem, PictureProblem::Unreadable) << format << " cut at " << cut;
  }
}

TEST_F(PictureLoaderTest, AGifCutShortIsUnreadable) {
  const std::string whole("GIF89a\2\0\1\0\x80\0\0\xFF\0\0\0\0\xFF,\0\0\0\0\2\0\1\0\0\2\2\x44\x0A\0;", 35);
  const LoadedPicture loaded = load(whole);
  ASSERT_EQ(loaded.problem, PictureProblem::None);
  EXPECT_EQ(loaded.picture.GetPixel(0, 0), rgb(255, 0, 0));
  EXPECT_EQ(loaded.picture.GetPixel(1, 0), rgb(0, 0, 255));
  for (std::size_t cut = 0; cut < whole.size() - 1; ++cut)
    EXPECT_EQ(load(whole.substr(0, cut)).problem, PictureProblem::Unreadable) << cut;
}

TEST_F(PictureLoaderTest, AHugePictureTellsItsSizeAndIsNotDecoded) {
  const std::size_t before = test::peakMemory();
  const LoadedPicture loaded = load(bitmapHeader(16000, 16000));
  EXPECT_EQ(loaded.problem, PictureProblem::TooLarge);
  EXPECT_EQ(loaded.width, 16000);
  EXPECT_EQ(loaded.height, 16000);
  EXPECT_NE(load(bitmapHeader(20000, 20000)).problem, PictureProblem::None);
  EXPECT_LT(test::peakMemory() - before, 64 * test::kMegabyte);
}

TEST_F(PictureLoaderTest, OfFilesOf100MegabytesNoMoreIsReadThanAPictureCanTake) {
  const std::size_t before = test::peakMemory();
  const std::size_t read = test::bytesRead();
  EXPECT_EQ(loader.loadPicture(stretched(""), kMax, kMax).problem, PictureProblem::Unreadable);
  EXPECT_EQ(loader.loadPicture(stretched(bitmapHeader(6000, 5500)), kMax, kMax).problem, PictureProblem::TooLarge);
  EXPECT_EQ(loader.loadPicture(stretched("GIF89a"), kMax, kMax).problem, PictureProblem::Unreadable);
  EXPECT_EQ(loader.loadPicture(stretched("\x89PNG\r\n\x1A\n"), kMax, kMax).problem, PictureProblem::Unreadable);
  EXPECT_EQ(loader.loadPicture(stretched("\xFF\xD8\xFF"), kMax, kMax).problem, PictureProblem::Unreadable);
  // Bytes after a complete picture do no harm.
  EXPECT_EQ(loader.loadPicture(stretched(encoded(picture(), "bmp")), kMax, kMax).problem, PictureProblem::None);
  EXPECT_LT(test::bytesRead() - read, 6 * kMostReadOfOne);
  EXPECT_LT(test::peakMemory() - before, 64 * test::kMegabyte);
}

TEST_F(PictureLoaderTest, FoldersAndPipesAreUnreadableAndNothingWaits) {
  EXPECT_EQ(loader.loadPicture(folder.makeFolder("folder.pal"), kMax, kMax).problem, PictureProblem::Unreadable);
  ASSERT_EQ(mkfifo(folder.file("pipe.pal").c_str(), 0600), 0);
  EXPECT_EQ(loader.loadPicture(folder.file("pipe.pal"), kMax, kMax).problem, PictureProblem::Unreadable);
  EXPECT_EQ(loader.loadPicture("/dev/zero", kMax, kMax).problem, PictureProblem::Unreadable);
}

TEST_F(PictureLoaderTest, ANameThatIsNoUtf8IsReadToo) {
  const std::string path = folder.write("n\xE4me.pal", encoded(picture(), "bmp"));
  EXPECT_EQ(loader.loadPicture(path, kMax, kMax).problem, PictureProblem::None);
}

TEST_F(PictureLoaderTest, APictureAtTheLimitIsReadAndOneBeyondIsNot) {
  const std::string path = folder.write("a.pal", encoded(picture(), "bmp"));
  EXPECT_EQ(loader.loadPicture(path, 5, 3).problem, PictureProblem::None);
  EXPECT_EQ(loader.loadPicture(path, 4, 3).problem, PictureProblem::TooLarge);
  EXPECT_EQ(loader.loadPicture(path, 5, 2).problem, PictureProblem::TooLarge);
}

}  // namespace
}  // namespace gp
