#include "platform/qt/QtClipboard.h"

#include "platform/qt/PictureCorner.h"
#include "platform/qt/SurfaceImages.h"

#include <QClipboard>
#include <QGuiApplication>
#include <QImage>
#include <QMimeData>

#include <algorithm>
#include <array>

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

const OfferedFormat* formatOf(const QMimeData& content) {
  const QStringList offered = content.formats();
  const auto found = std::ranges::find_if(
      kFormats, [&offered](const OfferedFormat& format) { return offered.contains(format.mimeType); });
  return found == kFormats.end() ? nullptr : found;
}

const QMimeData* currentContent() { return QGuiApplication::clipboard()->mimeData(); }

// The program's own picture needs no decoding.
bool readOurImage(const QMimeData& content, int limit, ClipboardImage& image) {
  const auto whole = qvariant_cast<QImage>(content.imageData());
  if (whole.isNull()) return false;
  const QSize corner = whole.size().boundedTo(QSize(limit, limit));
  image = {whole.width(), whole.height(), surfaceOf(whole.copy(QRect(QPoint(0, 0), corner)), kGround)};
  return true;
}

}  // namespace

QtClipboard::QtClipboard() {
  QObject::connect(QGuiApplication::clipboard(), &QClipboard::dataChanged, &listener_, [this] { changed(); });
}

void QtClipboard::changed() {
  hasImage_.reset();
  if (onChange) onChange();
}

bool QtClipboard::hasImage() {
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
  return format && readPictureCorner(content->data(format->mimeType), format->reader, limit, image);
}

bool QtClipboard::setImage(const Surface& image) {
  if (image.width() == 0 || image.height() == 0) return false;
  auto* content = new QMimeData;
  content->setImageData(opaqueImageOf(image));
  ours_ = content;
  QGuiApplication::clipboard()->setMimeData(content);
  return currentContent() == ours_;
}

void QtClipboard::clear() { QGuiApplication::clipboard()->clear(); }

}  // namespace gp
