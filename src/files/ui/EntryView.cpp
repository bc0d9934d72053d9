#include "files/ui/EntryView.h"

#include "document/ui/SurfacePainting.h"

namespace gp {
namespace {

constexpr int kOutline = 1;

class EntryPicture final : public QWidget {
 public:
  EntryPicture(QWidget* parent, const Surface& shown) : QWidget(parent), shown_(shown) {}

 protected:
  void paintEvent(QPaintEvent*) override {
    DevicePainter painter(this);
    paintCentred(painter, shown_, painter.toDevice(rect()), devicePixelRatioF());
  }

 private:
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
  picIconInFile->resize(shown_.width(), shown_.height());
  picIconInFile->move((width() - shown_.width()) / 2, (height() - shown_.height()) / 2);
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
