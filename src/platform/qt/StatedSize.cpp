#include "platform/qt/StatedSize.h"

#include "platform/files/BitmapFile.h"

#include <QImageReader>

namespace gp {

QSize statedSize(const QImageReader& reader, std::span<const std::uint8_t> bytes) {
  const QSize size = reader.size();
  if (reader.format() != "bmp" || size.height() >= 0) return size;
  return {size.width(), rowsFromTheTop(bytes)};
}

}  // namespace gp
