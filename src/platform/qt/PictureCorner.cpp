#include "platform/qt/PictureCorner.h"

#include "platform/files/BitmapFile.h"
#include "platform/files/WholePicture.h"
#include "platform/qt/StatedSize.h"
#include "platform/qt/SurfaceImages.h"

#include <QBuffer>
#include <QImageReader>
#include <QtEndian>

#include <algorithm>
#include <array>
#include <span>

namespace gp {
namespace {

// The memory limit for decoding a picture that can only be read whole.
constexpr int kLargestMegabytes = 48;

using Bytes = std::span<const std::uint8_t>;

struct Format {
  const char* name;
  bool (*isWhole)(Bytes bytes);
};

constexpr std::array<Format, 4> kFormats = {
    {{"png", isWholePng}, {"bmp", isWholeBitmap}, {"jpeg", isWholeJpeg}, {"gif", isWholeGif}}};

Bytes spanOf(const QByteArray& bytes) {
  return {reinterpret_cast<const std::uint8_t*>(bytes.constData()), static_cast<std::size_t>(bytes.size())};
}

bool isWhole(const QByteArray& bytes, const QByteArray& format) {
  const auto found = std::ranges::find_if(kFormats, [&](const Format& each) { return format == each.name; });
  return found != kFormats.end() && found->isWhole(spanOf(bytes));
}

namespace png {
constexpr int kHeaderType = 12;   // offset of the header chunk's type, the first byte under the checksum
constexpr int kHeaderWords = 17;  // number of bytes under the checksum
constexpr int kHeight = 20;
constexpr int kInterlace = 28;
constexpr int kCheckSum = 29;
constexpr int kHeaderEnd = 33;

std::uint32_t checkSum(const char* bytes, int count) {
  constexpr std::uint32_t kPolynomial = 0xEDB88320;
  constexpr int kBitsPerByte = 8;
  std::uint32_t sum = 0xFFFFFFFF;
  for (int i = 0; i < count; ++i) {
    sum ^= static_cast<std::uint8_t>(bytes[i]);
    for (int bit = 0; bit < kBitsPerByte; ++bit) sum = sum >> 1 ^ (sum & 1 ? kPolynomial : 0);
  }
  return ~sum;
}

// Unless they are interlaced, the rows follow one another from the top. With a smaller height in the header, the reader
// stops after those rows.
QByteArray withFewerRows(const QByteArray& bytes, int rows) {
  if (bytes.size() < kHeaderEnd || bytes[kInterlace] != 0) return bytes;
  QByteArray fewer = bytes;
  qToBigEndian(static_cast<std::uint32_t>(rows), fewer.data() + kHeight);
  qToBigEndian(checkSum(fewer.constData() + kHeaderType, kHeaderWords), fewer.data() + kCheckSum);
  return fewer;
}
}  // namespace png

// A reader of bytes in memory, with the memory limit set.
class BytesReader : public QImageReader {
 public:
  BytesReader(const QByteArray& bytes, const QByteArray& format) {
    device_.setData(bytes);
    device_.open(QIODevice::ReadOnly);
    setAllocationLimit(kLargestMegabytes);
    setAutoDetectImageFormat(false);
    setFormat(format);
    setDevice(&device_);
  }

 private:
  QBuffer device_;
};

}  // namespace

bool readPictureCorner(const QByteArray& bytes, const QByteArray& format, int limit, ClipboardImage& image) {
  if (!isWhole(bytes, format)) return false;
  const QSize size = statedSize(BytesReader(bytes, format), spanOf(bytes));
  if (size.isEmpty()) return false;
  const QSize corner = size.boundedTo(QSize(limit, limit));
  const bool isCut = format == "png" && size.height() > corner.height();
  BytesReader reader(isCut ? png::withFewerRows(bytes, corner.height()) : bytes, format);
  reader.setClipRect(QRect(QPoint(0, 0), corner));
  const QImage picture = reader.read();
  if (picture.size() != corner) return false;
  image = {size.width(), size.height(), surfaceOf(picture, kGround)};
  if (!picture.hasAlphaChannel()) return true;
  image.colors = colorsOf(picture, kGround);
  image.alpha = alphaGreysOf(picture);
  return true;
}

}  // namespace gp
