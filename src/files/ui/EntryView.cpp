#include "files/ui/EntryView.h"

#include "document/ui/SurfacePainting.h"
#include "platform/gdi/SurfaceOps.h"

namespace gp {
namespace {

constexpr int kOutline = 1;

// The size of a picture in a square of `side`: its own, or reduced to fit.
QSize fittedSize(const QSize& picture, int side) {
  if (picture.width() <= side && picture.height() <= side) return picture;
  return picture.scaled(side, side, Qt::KeepAspectRatio).expandedTo(QSize(1, 1));
}

class EntryPicture final : public QWidget {
 public:
  EntryPicture(QWidget* parent, const Surface& shown) : QWidget(parent), shown_(shown) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    DevicePainter painter(this);
    const QRect area = painter.toDevice(rect());
    if (shown_.width() > width() || shown_.height() > height())
      paintCentred(painter, stretchedTo(area.size()), area, 1);
    else
      paintCentred(painter, shown_, area, devicePixelRatioF());
  }

 private:
  Surface stretchedTo(const QSize& size) const {
    Surface stretched(size.width(), size.height());
    StretchbltPic(shown_, stretched, true);
    return stretched;
  }

  const Surface& shown_;
};

}  // namespace

EntryView::EntryView(QWidget* parent, const EntryViewNames& names, const Surface& shown, int side)
    : QWidget(parent), shown_(shown), picIconInFile(new EntryPicture(this, shown)) {
  setObjectName(names.frame);
  setAccessibleName(QStringLiteral("Preview"));
  picIconInFile->setObjectName(names.picture);
  setFixedSize(side + 2 * kOutline, side + 2 * kOutline);
  setAttribute(Qt::WA_OpaquePaintEvent);
  refresh();
}

void EntryView::refresh() {
  const QSize size = fittedSize(QSize(shown_.width(), shown_.height()), width() - 2 * kOutline);
  picIconInFile->resize(size);
  picIconInFile->move((width() - size.width()) / 2, (height() - size.height()) / 2);
  picIconInFile->update();
  accessibleValueChanged(this);
}

QString EntryView::accessibleValue() const {
  if (shown_.width() == 0) return QStringLiteral("none");
  return QStringLiteral("%1 by %2 pixels").arg(shown_.width()).arg(shown_.height());
}

void EntryView::paintEvent(QPaintEvent*) {
  DevicePainter painter(this);
  const QRect whole = painter.toDevice(rect());
  painter.fillRect(whole, palette().color(QPalette::Mid));
  painter.fillRect(whole.adjusted(kOutline, kOutline, -kOutline, -kOutline), QColor(toRgb(kGround)));
}

}  // namespace gp
