// The clipboard on Qt's offscreen platform, which keeps its content unchanged, so that a test can offer the exact bytes
// that other programs would.
#include "platform/qt/PictureCorner.h"
#include "platform/qt/QtClipboard.h"
#include "support/ProcessUse.h"
#include "support/TopRowFirst.h"

#include <QBuffer>
#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>
#include <QtEndian>

#include <array>
#include <gtest/gtest.h>
#include <limits>

namespace gp {
namespace {

constexpr int kLimit = 48;

// Data that another program offers.
class OfferedContent : public QMimeData {
 public:
  std::vector<std::pair<QString, QByteArray>> offers;
  bool isWithdrawn = false;

  QStringList formats() const override {
    QStringList names;
    for (const auto& offer : offers) names << offer.first;
    return names;
  }
  bool hasFormat(const QString& type) const override { return formats().contains(type); }

 protected:
  QVariant retrieveData(const QString& type, QMetaType) const override {
    if (!isWithdrawn)
      for (const auto& offer : offers)
        if (offer.first == type) return offer.second;
    return {};
  }
};

// A picture whose pixels are all different.
QImage sampleImage(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  for (int y = 0; y < height; ++y)
    for (int x = 0; x < width; ++x) image.setPixel(x, y, qRgb(x % 256, y % 256, (x + y) / 256));
  return image;
}

QByteArray encoded(const QImage& image, const char* format) {
  QByteArray bytes;
  QBuffer device(&bytes);
  device.open(QIODevice::WriteOnly);
  EXPECT_TRUE(image.save(&device, format));
  return bytes;
}

QByteArray pngChunk(const QByteArray& typeAndData) {
  quint32 sum = 0xFFFFFFFF;
  for (const char byte : typeAndData) {
    sum ^= static_cast<quint8>(byte);
    for (int bit = 0; bit < 8; ++bit) sum = sum >> 1 ^ (sum & 1 ? 0xEDB88320 : 0);
  }
  QByteArray chunk(4, 0);
  qToBigEndian(static_cast<quint32>(typeAndData.size() - 4), chunk.data());
  chunk += typeAndData;
  chunk.append(4, 0);
  qToBigEndian(~sum, chunk.data() + chunk.size() - 4);
  return chunk;
}

// A PNG of that size, opaque red, of which only the first rows are present.
QByteArray hugePng(quint32 width, quint32 height, int rows, char interlace = 0) {
  QByteArray header("IHDR");
  header.append(8, 0);
  qToBigEndian(width, header.data() + 4);
  qToBigEndian(height, header.data() + 8);
  header.append("\x08\x02\0\0", 4).append(interlace);
  QByteArray row(1, 0);
  for (quint32 x = 0; rows > 0 && x < width; ++x) row.append("\xFF\0\0", 3);
  QByteArray data("IDAT");
  data += qCompress(row.repeated(rows)).mid(4);
  return QByteArray("\x89PNG\r\n\x1A\n", 8) + pngChunk(header) + pngChunk(data) + pngChunk("IEND");
}

class QtClipboardTest : public testing::Test {
 protected:
  QtClipboard clipboard;
  ClipboardImage image{7, 9, Surface(3, 2)};

  ~QtClipboardTest() override { system().clear(); }
  static QClipboard& system() { return *QGuiApplication::clipboard(); }
  static OfferedContent* offer(std::vector<std::pair<QString, QByteArray>> offers) {
    auto* content = new OfferedContent;
    content->offers = std::move(offers);
    system().setMimeData(content);
    return content;
  }
  bool get() { return clipboard.getImage(image, kLimit); }
  void expectUntouched() const {
    EXPECT_EQ(image.width, 7);
    EXPECT_EQ(image.height, 9);
    EXPECT_EQ(image.corner.width(), 3);
  }
  void expectCorner(int width, int height, int tolerance = 0) const {
    EXPECT_EQ(image.width, width);
    EXPECT_EQ(image.height, height);
    ASSERT_EQ(image.corner.width(), std::min(width, kLimit));
    ASSERT_EQ(image.corner.height(), std::min(height, kLimit));
    for (int y = 0; y < image.corner.height(); ++y) {
      for (int x = 0; x < image.corner.width(); ++x) {
        EXPECT_NEAR(redOf(image.corner.GetPixel(x, y)), x, tolerance);
        EXPECT_NEAR(greenOf(image.corner.GetPixel(x, y)), y, tolerance);
        EXPECT_NEAR(blueOf(image.corner.GetPixel(x, y)), 0, tolerance);
      }
    }
  }
};

TEST_F(QtClipboardTest, AnEmptyClipboardHasNoImage) {
  system().clear();
  EXPECT_FALSE(clipboard.hasImage());
  EXPECT_FALSE(get());
  expectUntouched();
}

TEST_F(QtClipboardTest, OtherProgramsAreAskedOnlyWhenAskingHasStarted) {
  QtClipboard later(QtClipboard::Asking::Later);
  int changes = 0;
  later.onChange = [&changes] { ++changes; };
  offer({{"image/png", encoded(sampleImage(20, 20), "png")}});
  EXPECT_FALSE(later.hasImage());
  changes = 0;
  later.startAsking();
  EXPECT_EQ(changes, 1);
  EXPECT_TRUE(later.hasImage());
}

TEST_F(QtClipboardTest, APictureAbove64MegabytesIsNotTaken) {
  QByteArray picture = encoded(sampleImage(20, 20), "bmp");
  picture.append((qsizetype{64} << 20) - picture.size(), 0);
  offer({{"image/bmp", picture}});
  EXPECT_TRUE(get());
  image = {7, 9, Surface(3, 2)};
  offer({{"image/bmp", picture + '\0'}});
  EXPECT_FALSE(get());
  expectUntouched();
}

TEST_F(QtClipboardTest, TextAndHtmlCountAsNoImage) {
  offer({{"text/plain", "C:\\icon.png"}, {"text/html", "<img src='data:image/png;base64,iVBORw0KGgo='>"}});
  EXPECT_FALSE(clipboard.hasImage());
  EXPECT_FALSE(get());
  expectUntouched();
}

TEST_F(QtClipboardTest, HtmlBesideAnImageCountsAsTheImage) {
  offer({{"text/html", "<b>x</b>"}, {"image/png", encoded(sampleImage(20, 20), "png")}});
  EXPECT_TRUE(clipboard.hasImage());
  EXPECT_TRUE(get());
  expectCorner(20, 20);
}

TEST_F(QtClipboardTest, EachFormatOfOtherProgramsIsRead) {
  for (const auto& [type, format] :
       {std::pair("image/png", "png"), {"image/bmp", "bmp"}, {"image/x-MS-bmp", "bmp"}, {"image/jpeg", "jpg"}}) {
    for (const QSize size : {QSize(1, 1), QSize(32, 32), QSize(47, 48), QSize(49, 20), QSize(60, 70)}) {
      SCOPED_TRACE(type);
      offer({{type, encoded(sampleImage(size.width(), size.height()), format)}});
      EXPECT_TRUE(clipboard.hasImage());
      ASSERT_TRUE(get()) << size.width();
      expectCorner(size.width(), size.height(), format == std::string("jpg") ? 8 : 0);
    }
  }
}

TEST_F(QtClipboardTest, BitmapsWithTheirTopRowFirstAreReadPixelByPixel) {
  for (const char* type : {"image/bmp", "image/x-bmp", "image/x-MS-bmp", "image/x-win-bitmap"}) {
    for (const QSize size : {QSize(1, 1), QSize(32, 32), QSize(47, 48), QSize(49, 20), QSize(60, 70)}) {
      const std::string usual = encoded(sampleImage(size.width(), size.height()), "bmp").toStdString();
      offer({{type, QByteArray::fromStdString(test::topRowFirst(usual, size.width(), size.height(), 24))}});
      ASSERT_TRUE(get()) << type << size.width();
      expectCorner(size.width(), size.height());
    }
  }
}

TEST_F(QtClipboardTest, ABitmapWhoseNegativeHeightHasNoPositiveCounterpartIsRefused) {
  QByteArray bytes = encoded(sampleImage(16, 16), "bmp");
  qToLittleEndian(std::numeric_limits<qint32>::min(), bytes.data() + 22);
  offer({{"image/bmp", bytes}});
  EXPECT_FALSE(get());
  expectUntouched();
}

TEST_F(QtClipboardTest, AFormatThatKeepsEveryPixelGoesFirst) {
  offer({{"image/jpeg", "no picture"}, {"image/png", encoded(sampleImage(16, 16), "png")}});
  EXPECT_TRUE(get());
  expectCorner(16, 16);
}

TEST_F(QtClipboardTest, AFormatThatNoOneReadsIsNoImage) {
  offer({{"image/x-strange", "????"}, {"image/svg+xml", "<svg/>"}, {"application/x-color", "red"}});
  EXPECT_FALSE(clipboard.hasImage());
  EXPECT_FALSE(get());
}

TEST_F(QtClipboardTest, TransparentPixelsTakeTheGround) {
  QImage clear(16, 16, QImage::Format_ARGB32);
  clear.fill(Qt::transparent);
  clear.setPixel(3, 3, qRgba(1, 2, 3, 255));
  offer({{"image/png", encoded(clear, "png")}});
  ASSERT_TRUE(get());
  EXPECT_EQ(image.corner.GetPixel(0, 0), kGround);
  EXPECT_EQ(image.corner.GetPixel(3, 3), rgb(1, 2, 3));
}

TEST_F(QtClipboardTest, AnOwnerThatWithdrawsItsImageLeavesNone) {
  OfferedContent* content = offer({{"image/png", encoded(sampleImage(16, 16), "png")}});
  EXPECT_TRUE(clipboard.hasImage());
  content->isWithdrawn = true;
  EXPECT_FALSE(get());
  expectUntouched();
}

TEST_F(QtClipboardTest, BytesThatAreNoPictureOrCutShortAreRefused) {
  for (const auto& [type, format] : {std::pair("image/png", "png"), {"image/bmp", "bmp"}, {"image/jpeg", "jpg"}}) {
    const QByteArray whole = encoded(sampleImage(60, 60), format);
    for (qsizetype length = 0; length < whole.size(); length += whole.size() / 40) {
      offer({{type, whole.left(length)}});
      EXPECT_FALSE(get()) << type << " of " << length << " bytes";
    }
    offer({{type, QByteArray(5000, '\xAA')}});
    EXPECT_FALSE(get()) << type;
  }
  expectUntouched();
}

TEST_F(QtClipboardTest, AnotherFormatUnderTheNameOfOneIsRefused) {
  offer({{"image/png", encoded(sampleImage(16, 16), "bmp")}});
  EXPECT_FALSE(get());
  offer({{"image/bmp", encoded(sampleImage(16, 16), "png")}});
  EXPECT_FALSE(get());
}

TEST_F(QtClipboardTest, OfAHugePictureOnlyTheFirstRowsAreDecoded) {
  offer({{"image/png", hugePng(20000, 20000, 60)}});
  const std::size_t before = test::peakMemory();
  ASSERT_TRUE(get());
  EXPECT_LE(test::peakMemory() - before, 64 * test::kMegabyte);
  EXPECT_EQ(image.width, 20000);
  EXPECT_EQ(image.height, 20000);
  EXPECT_EQ(image.corner.width(), kLimit);
  EXPECT_EQ(image.corner.height(), kLimit);
  EXPECT_EQ(image.corner.GetPixel(47, 47), rgb(255, 0, 0));
}

TEST_F(QtClipboardTest, AHugePictureThatCannotBeReadInPartIsRefused) {
  const std::size_t before = test::peakMemory();
  offer({{"image/png", hugePng(20000, 20000, 10, 1)}});
  EXPECT_FALSE(get());
  offer({{"image/png", hugePng(2000000000, 2000000000, 0)}});
  EXPECT_FALSE(get());
  EXPECT_LE(test::peakMemory() - before, 64 * test::kMegabyte);
  expectUntouched();
}

TEST_F(QtClipboardTest, AnIconCopiedHereIsAnOpaqueImageForOthers) {
  Surface icon(16, 16, kGround);
  icon.SetPixelV(2, 3, rgb(10, 20, 30));
  EXPECT_TRUE(clipboard.setImage(icon, Surface()));
  EXPECT_TRUE(clipboard.hasImage());
  const QImage pasted = system().image();
  EXPECT_EQ(pasted.size(), QSize(16, 16));
  EXPECT_EQ(pasted.pixel(2, 3), qRgb(10, 20, 30));
  EXPECT_EQ(pasted.pixel(0, 0), qRgb(192, 192, 192));
  EXPECT_FALSE(pasted.hasAlphaChannel());
  ASSERT_TRUE(get());
  EXPECT_EQ(image.width, 16);
  EXPECT_EQ(image.corner.GetPixel(2, 3), rgb(10, 20, 30));
}

TEST_F(QtClipboardTest, APictureWithAlphaIsOneForOthers) {
  Surface icon(16, 16, kGround), alpha(16, 16, kBlack);
  icon.SetPixelV(2, 3, rgb(10, 20, 30));
  alpha.SetPixelV(2, 3, rgb(60, 60, 60));
  EXPECT_TRUE(clipboard.setImage(icon, alpha));
  const QImage pasted = system().image();
  EXPECT_EQ(pasted.pixel(2, 3), qRgba(10, 20, 30, 60));
  EXPECT_EQ(pasted.pixel(0, 0), qRgba(192, 192, 192, 0));
  ASSERT_TRUE(get());
  ASSERT_TRUE(image.hasAlpha());
  for (const Surface& colors : {image.corner, image.colors}) EXPECT_EQ(colors.GetPixel(2, 3), rgb(10, 20, 30));
  EXPECT_EQ(image.alpha.GetPixel(2, 3), rgb(60, 60, 60));
  EXPECT_EQ(image.alpha.GetPixel(0, 0), kBlack);
  clipboard.setImage(icon, Surface());
  ASSERT_TRUE(get());
  EXPECT_FALSE(image.hasAlpha());
}

TEST_F(QtClipboardTest, APictureOfAnotherProgramBringsItsAlpha) {
  QImage picture(20, 60, QImage::Format_ARGB32);
  picture.fill(Qt::transparent);
  picture.setPixel(1, 2, qRgba(200, 100, 0, 51));
  offer({{"image/png", encoded(picture, "png")}});
  ASSERT_TRUE(get());
  ASSERT_TRUE(image.hasAlpha());
  EXPECT_EQ(image.alpha.height(), kLimit);
  EXPECT_EQ(image.colors.GetPixel(1, 2), rgb(200, 100, 0));
  EXPECT_EQ(image.alpha.GetPixel(1, 2), rgb(51, 51, 51));
  EXPECT_NEAR(redOf(image.corner.GetPixel(1, 2)), 192 + (200 - 192) / 5, 1);
  EXPECT_NEAR(blueOf(image.corner.GetPixel(1, 2)), 192 - 192 / 5, 1);
  for (const Surface& colors : {image.corner, image.colors}) EXPECT_EQ(colors.GetPixel(0, 0), kGround);
  EXPECT_EQ(image.alpha.GetPixel(0, 0), kBlack);
  offer({{"image/png", encoded(sampleImage(16, 16), "png")}});
  ASSERT_TRUE(get());
  EXPECT_FALSE(image.hasAlpha());
}

TEST_F(QtClipboardTest, ASurfaceWithoutPixelsIsNotTaken) {
  system().setText("kept");
  EXPECT_FALSE(clipboard.setImage(Surface(0, 0), Surface()));
  EXPECT_EQ(system().text(), "kept");
}

TEST_F(QtClipboardTest, ClearLeavesNothing) {
  clipboard.setImage(Surface(16, 16), Surface());
  clipboard.clear();
  EXPECT_FALSE(clipboard.hasImage());
  EXPECT_TRUE(system().text().isEmpty());
}

TEST_F(QtClipboardTest, EachChangeIsReportedAndSeen) {
  int changes = 0;
  bool hadImage = false;
  clipboard.onChange = [&] { ++changes, hadImage = clipboard.hasImage(); };
  offer({{"image/png", encoded(sampleImage(16, 16), "png")}});
  EXPECT_EQ(changes, 1);
  EXPECT_TRUE(hadImage);
  system().setText("text");
  EXPECT_EQ(changes, 2);
  EXPECT_FALSE(hadImage);
  clipboard.setImage(Surface(16, 16), Surface());
  EXPECT_EQ(changes, 3);
  EXPECT_TRUE(hadImage);
}

TEST_F(QtClipboardTest, AClipboardThatHasGoneIsToldNothing) {
  int changes = 0;
  {
    QtClipboard gone;
    gone.onChange = [&changes] { ++changes; };
  }
  system().setText("later");
  EXPECT_EQ(changes, 0);
}

}  // namespace
}  // namespace gp
