#include "platform/qt/QtFileTypeIcons.h"

#include "platform/files/Files.h"
#include "platform/qt/PathText.h"

#include <QBuffer>
#include <QFileIconProvider>
#include <QFileInfo>
#include <QIcon>
#include <QImageReader>
#include <QMimeDatabase>
#include <QPainter>

#include <algorithm>
#include <array>

namespace gp {
namespace {

// Bytes of a file's start that decide on its type where its name does not.
constexpr std::size_t kTypeBytes = std::size_t{16} << 10;
constexpr std::size_t kLargestPictureFile = std::size_t{4} << 20;
constexpr std::size_t kLargestDrawing = std::size_t{512} << 10;  // bytes of a vector drawing
constexpr int kLargestSide = 1024;
constexpr int kMegabytesToDecode = 32;
constexpr std::array<const char*, 3> kNameEndings{".png", ".svg", ".xpm"};
// Parts of a drawing that can refer to other files, or repeat a part of it without bound.
constexpr std::array<const char*, 3> kUnsafeParts{"<image", "<use", "<!entity"};

FileTypeIcon iconOf(const QImage& image) {
  FileTypeIcon icon{Surface(image.width(), image.height(), kBlack), {}};
  icon.alpha.reserve(static_cast<std::size_t>(image.width()) * static_cast<std::size_t>(image.height()));
  for (int y = 0; y < image.height(); ++y)
    for (int x = 0; x < image.width(); ++x) {
      const QRgb pixel = image.pixel(x, y);
      icon.colors.SetPixelV(x, y, rgb(qRed(pixel), qGreen(pixel), qBlue(pixel)));
      icon.alpha.push_back(static_cast<std::uint8_t>(qAlpha(pixel)));
    }
  return icon;
}

// A smaller picture is in the middle; a larger one is made smaller.
QImage fitted(const QImage& image, int size) {
  const bool isLarge = image.width() > size || image.height() > size;
  const QImage shown = isLarge ? image.scaled(size, size, Qt::KeepAspectRatio, Qt::SmoothTransformation) : image;
  if (shown.size() == QSize(size, size)) return shown.convertToFormat(QImage::Format_ARGB32);
  QImage whole(size, size, QImage::Format_ARGB32_Premultiplied);
  whole.fill(Qt::transparent);
  QPainter painter(&whole);
  painter.drawImage((size - shown.width()) / 2, (size - shown.height()) / 2, shown);
  painter.end();
  return whole.convertToFormat(QImage::Format_ARGB32);
}

std::optional<FileTypeIcon> pictureOf(const QIcon& icon, int size) {
  const QPixmap pixmap = icon.pixmap(QSize(size, size), 1.0);
  if (pixmap.isNull()) return std::nullopt;
  return iconOf(fitted(pixmap.toImage(), size));
}

QMimeType typeOf(const QString& path, const std::string& bytesPath) {
  const QMimeDatabase types;
  const QFileInfo info(path);
  if (info.isDir()) return types.mimeTypeForName("inode/directory");
  // Only an ordinary file is opened; the bytes of a link to nothing or of a pipe are none.
  const auto start = readFileStart(bytesPath, kTypeBytes);
  if (!start) return types.mimeTypeForFile(path, QMimeDatabase::MatchExtension);
  const auto bytes = start->span();
  return types.mimeTypeForFileNameAndData(
      path, QByteArray(reinterpret_cast<const char*>(bytes.data()), static_cast<qsizetype>(bytes.size())));
}

bool isSafeDrawing(const QByteArray& bytes) {
  const QByteArray text = bytes.toLower();
  return bytes.size() <= static_cast<qsizetype>(kLargestDrawing) &&
         std::ranges::none_of(kUnsafeParts, [&text](const char* part) { return text.contains(part); });
}

// The picture in a file that a shortcut names. Its format follows from its content.
QImage readPicture(const std::string& path, int size) {
  const auto file = readFileStart(path, kLargestPictureFile + 1);
  if (!file || file->span().size() > kLargestPictureFile) return {};
  QByteArray bytes(reinterpret_cast<const char*>(file->span().data()), static_cast<qsizetype>(file->span().size()));
  QBuffer device(&bytes);
  device.open(QIODevice::ReadOnly);
  QImageReader reader(&device);
  reader.setDecideFormatFromContent(true);
  QImageReader::setAllocationLimit(kMegabytesToDecode);
  const QByteArray format = reader.format();
  const bool isDrawing = format == "svg";
  if (isDrawing ? !isSafeDrawing(bytes) : format != "png" && format != "xpm") return {};
  const QSize stated = reader.size();
  if (isDrawing)
    reader.setScaledSize(stated.isEmpty() ? QSize(size, size) : stated.scaled(size, size, Qt::KeepAspectRatio));
  else if (stated.width() > kLargestSide || stated.height() > kLargestSide)
    return {};
  return reader.read();
}

QString themeName(const std::string& name) {
  QString text = toText(name);
  for (const char* ending : kNameEndings)
    if (text.endsWith(ending, Qt::CaseInsensitive)) text.chop(4);
  return text;
}

}  // namespace

std::optional<FileTypeIcon> QtFileTypeIcons::iconOfFile(const std::string& path, int size) {
  const QString text = pathToText(path);
  const QMimeType type = typeOf(text, path);
  for (const QString& name : {type.iconName(), type.genericIconName()})
    if (auto icon = pictureOf(QIcon::fromTheme(name), size)) return icon;
  const QFileIconProvider provider;
  const bool isFolder = type.inherits("inode/directory");
  return pictureOf(provider.icon(isFolder ? QAbstractFileIconProvider::Folder : QAbstractFileIconProvider::File), size);
}

std::optional<FileTypeIcon> QtFileTypeIcons::namedIcon(const std::string& name, int size) {
  if (name.starts_with('/')) {
    const QImage picture = readPicture(name, size);
    if (picture.isNull()) return std::nullopt;
    return iconOf(fitted(picture, size));
  }
  if (name.empty() || name.find('/') != std::string::npos) return std::nullopt;
  return pictureOf(QIcon::fromTheme(themeName(name)), size);
}

}  // namespace gp
