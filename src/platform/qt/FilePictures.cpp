#include "platform/qt/FilePictures.h"

#include "platform/qt/PathText.h"

#include <QIconEngine>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace gp {
namespace {

// Paints a picture in the middle, each of its pixels as the same whole number of device pixels. One that is too large
// is scaled down. Made in a thread that must not make pixmaps.
class FilePictureEngine final : public QIconEngine {
 public:
  explicit FilePictureEngine(QImage picture) : picture_(std::move(picture)) {}

  QIconEngine* clone() const override { return new FilePictureEngine(*this); }

  QPixmap pixmap(const QSize& size, QIcon::Mode, QIcon::State) override {
    QPixmap result = QPixmap(size);
    result.fill(Qt::transparent);
    QPainter painter(&result);
    paintOn(painter, result.rect());
    return result;
  }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    painter->drawPixmap(rect, pixmap((QSizeF(rect.size()) * ratio).toSize(), mode, state));
  }

 private:
  void paintOn(QPainter& painter, const QRect& area) const {
    const int side = std::max(picture_.width(), picture_.height());
    const int room = std::min(area.width(), area.height());
    const QSize size =
        side <= room ? picture_.size() * (room / side) : picture_.size().scaled(area.size(), Qt::KeepAspectRatio);
    painter.setRenderHint(QPainter::SmoothPixmapTransform, side > room);
    painter.drawImage(QRect({(area.width() - size.width()) / 2, (area.height() - size.height()) / 2}, size), picture_);
  }

  const QImage picture_;
};

}  // namespace

FilePictures::FilePictures(FilePicture pictureOf) : pictureOf_(std::move(pictureOf)) {}

QIcon FilePictures::icon(const QFileInfo& file) const {
  QImage picture;
  if (pictureOf_ && file.isFile()) picture = pictureOf_(textToPath(file.filePath()));
  return picture.isNull() ? QFileIconProvider::icon(file) : QIcon(new FilePictureEngine(std::move(picture)));
}

}  // namespace gp
