#include "platform/qt/QtClipboard.h"

#include "platform/qt/PictureCorner.h"
#include "platform/qt/SelectionReader.h"
#include "platform/qt/SurfaceImages.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include <algorithm>
#include <array>
#include <chrono>

namespace gp {
namespace {

struct OfferedFormat {
  const char* mimeType;
  const char* reader;
};

// The first offered format is used: lossless and compact formats come first.
constexpr std::array<OfferedFormat, 7> kFormats = {{{"image/png", "png"},
                                                    {"image/bmp", "bmp"},
                                                    {"image/x-bmp", "bmp"},
                                                    {"image/x-MS-bmp", "bmp"},
                                                    {"image/x-win-bitmap", "bmp"},
                                                    {"image/gif", "gif"},
                                                    {"image/jpeg", "jpeg"}}};

constexpr std::chrono::seconds kLongestWaitForFormats{1};
constexpr std::chrono::seconds kLongestWaitForData{10};
constexpr qsizetype kMostBytes = qsizetype{64} << 20;

// Qt waits five seconds for a program on an X server, and reads all that it sends.
bool isOnXServer() {
  return QGuiApplication::platformName() == "xcb" && !QGuiApplication::clipboard()->ownsClipboard();
}

QStringList offeredFormats(const QMimeData& content) {
  return isOnXServer() ? SelectionReader().formats(kLongestWaitForFormats) : content.formats();
}

QByteArray offeredData(const QMimeData& content, const char* format) {
  if (isOnXServer()) return SelectionReader().data(format, kLongestWaitForData, kMostBytes).value_or(QByteArray());
  const QByteArray data = content.data(format);
  return data.size() <= kMostBytes ? data : QByteArray();
}

const OfferedFormat* formatOf(const QMimeData& content) {
  const QStringList offered = offeredFormats(content);
  const auto found = std::ranges::find_if(
      kFormats, [&offered](const OfferedFormat& format) { return offered.contains(format.mimeType); });
  return found == kFormats.end() ? nullptr : found;
}

const QMimeData* currentContent() { return QGuiApplication::clipboard()->mimeData(); }

// The program's own picture needs no decoding. Its colours are those that the icon shows, so that they are not blended.
bool readOurImage(const QMimeData& content, int limit, ClipboardImage& image) {
  const auto whole = qvariant_cast<QImage>(content.imageData());
  if (whole.isNull()) return false;
  const QImage corner = whole.copy(QRect(QPoint(0, 0), whole.size().boundedTo(QSize(limit, limit))));
  const Surface colors = colorsOf(corner, kGround);
  image = {whole.width(), whole.height(), colors};
  if (!corner.hasAlphaChannel()) return true;
  image.colors = colors;
  image.alpha = alphaGreysOf(corner);
  return true;
}

}  // namespace

QtClipboard::QtClipboard(Asking asking) : isAsking_(asking == Asking::AtOnce) {
  QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &listener_, [this] { changed(); });
}

void QtClipboard::startAsking() {
  isAsking_ = true;
  changed();
}

void QtClipboard::changed() {
  hasImage_.reset();
  if (onChange) onChange();
}

bool QtClipboard::hasImage() {
  if (!isAsking_) return false;
  if (!hasImage_) {
    const QMimeData* content = currentContent();
    hasImage_ = content && (content == ours_ || formatOf(*content));
  }
  return *hasImage_;
}

bool QtClipboard::getImage(ClipboardImage& image, int limit) {
  const QMimeData* content = currentContent();
  if (!content) return false;
  if (content == ours_) return readOurImage(*content, limit, image);
  const OfferedFormat* format = formatOf(*content);
  return format && readPictureCorner(offeredData(*content, format->mimeType), format->reader, limit, image);
}

bool QtClipboard::setImage(const Surface& image, const Surface& alpha) {
  if (image.width() == 0 || image.height() == 0) return false;
  auto* content = new QMimeData;
  content->setImageData(alpha.width() == 0 ? opaqueImageOf(image) : imageWithAlpha(image, alpha));
  ours_ = content;
  QGuiApplication::clipboard()->setMimeData(content);
  return currentContent() == ours_;
}

void QtClipboard::clear() { QGuiApplication::clipboard()->clear(); }

}  // namespace gp
