// Qt reads the files that gpicon makes of pictures as these pictures.
#include "files/making/MadeFile.h"
#include "support/SamplePictures.h"

#include <QBuffer>
#include <QImageReader>

#include <gtest/gtest.h>

namespace gp::test {
namespace {

// Qt multiplies colours by alpha when it reads an icon, so the pixels are compared in this form.
QImage multiplied(const QImage& image) { return image.convertToFormat(QImage::Format_ARGB32_Premultiplied); }

QImage imageOf(const PngPicture& picture) {
  return multiplied(
      QImage(picture.rgba.data(), picture.width, picture.height, picture.width * kRgbaBytes, QImage::Format_RGBA8888)
          .convertToFormat(QImage::Format_ARGB32));
}

PngPicture holedPicture(int side, int colors) {
  return drawn(side, side, true, [=](int x, int y) {
    const int i = (x + y * side) % colors;
    return (x + y) % 7 == 0 ? Rgba{0, 0, 0, 0} : Rgba{i % 16 * 15, i / 16 * 15, 40, 255};
  });
}

TEST(MadeIcons, QtReadsThePixelsAndAlphaOfEveryDepthAndEncoding) {
  if (!QImageReader::supportedImageFormats().contains("ico")) GTEST_SKIP() << "Qt has no reader of icons here";
  const std::vector<PngPicture> pictures{logoPicture(16),      logoPicture(200),    photoPicture(64, 64),
                                         photoPicture(65, 65), holedPicture(32, 1), holedPicture(32, 15),
                                         holedPicture(48, 200)};
  std::vector<MadeImage> images;
  for (const PngPicture& picture : pictures) images.push_back(makeImage(picture, {}));
  const std::vector<std::uint8_t> bytes = composeIconFile(images);
  QByteArray data(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
  QBuffer buffer(&data);
  ASSERT_TRUE(buffer.open(QIODevice::ReadOnly));
  QImageReader reader(&buffer, "ico");
  ASSERT_EQ(reader.imageCount(), static_cast<int>(pictures.size()));
  for (std::size_t i = 0; i < pictures.size(); ++i) {
    ASSERT_TRUE(reader.jumpToImage(static_cast<int>(i)));
    EXPECT_EQ(multiplied(reader.read()), imageOf(pictures[i])) << i << ", " << images[i].bits << " bits";
  }
}

}  // namespace
}  // namespace gp::test
