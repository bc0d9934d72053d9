#include "colour/ui/ColorButton.h"

#include "colour/ui/SwatchPainting.h"
#include "platform/qt/Accessibility.h"

#include <QKeyEvent>

namespace gp {
namespace {

constexpr int kWidth = 44, kHeight = 26;  // pixels

}  // namespace

ColorButton::ColorButton(QWidget* parent, const QString& objectName, const QString& tooltip, const Color& shown)
    : QAbstractButton(parent), shown_(shown) {
  setObjectName(objectName);
  setAccessibleName(tooltip);
  setToolTip(tooltip);
  setFocusPolicy(Qt::StrongFocus);
  setFixedSize(kWidth, kHeight);
  refresh();
}

void ColorButton::refresh() {
  setDescription(this, colorText(shown_));
  update();
}

void ColorButton::paintEvent(QPaintEvent*) { paintSwatch(*this, shown_); }

void ColorButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
    click();
  else
    QAbstractButton::keyPressEvent(event);
}

}  // namespace gp
