#include "platform/qt/QtPictureLoader.h"

#include "platform/files/BitmapFile.h"
#include "platform/files/Files.h"
#include "platform/files/WholePicture.h"
#include "platform/qt/StatedSize.h"
#include "platform/qt/SurfaceImages.h"

#include <QBuffer>
#include <QImageReader>

#include <algorithm>
#include <array>

namespace gp {
namespace {

constexpr std::size_t kBytesPerPixel = 4;
// Bytes that a file may contain besides its pixels: profiles, previews, texts.
constexpr std::size_t kOtherBytes = std::size_t{16} << 20;
constexpr std::size_t kBytesPerMegabyte = std::size_t{1} << 20;
// Memory for the reader's own rows and tables.
constexpr std::size_t kSpareMegabytes = 16;

using Bytes = std::span<const std::uint8_t>;

struct Format {
  const char* name;
  // Some readers fill missing data in silently and report success.
  bool (*isWhole)(Bytes bytes);
};

bool assumeWhole(Bytes) { return true; }

constexpr std::array<Format, 7> kFormats = {{{"bmp", isWholeBitmap},
                                             {"cur", assumeWhole},
                                             {"gif", isWholeGif},
                                             {"ico", assumeWhole},
                                             {"jpeg", isWholeJpeg},
                                             {"jpg", isWholeJpeg},
                                             {"png", isWholePng}}};

const Format* formatOf(const QImageReader& reader) {
  const QByteArray name = reader.format();
  const auto found = std::ranges::find_if(kFormats, [&name](const Format& format) { return name == format.name; });
  return found == kFormats.end() ? nullptr : found;
}

// Decodes a picture whose size has been checked.
LoadedPicture decode(QImageReader& reader, QSize size) {
  QImage image;
  if (!reader.read(&image) || image.size() != size) return {};
  return {PictureProblem::None, size.width(), size.height(), surfaceOf(image, kWhite)};
}

}  // namespace

LoadedPicture QtPictureLoader::loadPicture(const std::string& path, int maxWidth, int maxHeight) {
  const std::size_t largestPicture =
      static_cast<std::size_t>(maxWidth) * static_cast<std::size_t>(maxHeight) * kBytesPerPixel;
  const auto file = readFileStart(path, largestPicture + kOtherBytes);
  if (!file) return {};
  const Bytes bytes = file->span();
  QByteArray content =
      QByteArray::fromRawData(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size()));
  QBuffer device(&content);
  device.open(QIODevice::ReadOnly);
  QImageReader reader(&device);
  reader.setAutoDetectImageFormat(true);
  QImageReader::setAllocationLimit(static_cast<int>(largestPicture / kBytesPerMegabyte + kSpareMegabytes));

  const Format* format = formatOf(reader);
  const QSize size = format ? statedSize(reader, bytes) : QSize();
  if (size.isEmpty()) return {};
  if (size.width() > maxWidth || size.height() > maxHeight)
    return {PictureProblem::TooLarge, size.width(), size.height(), Surface(0, 0)};
  return format->isWhole(bytes) ? decode(reader, size) : LoadedPicture();
}

}  // namespace gp
