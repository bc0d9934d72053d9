#include "extraction/ui/PageButton.h"

#include "document/ui/SurfacePainting.h"
#include "platform/gdi/Surface.h"
#include "platform/qt/Accessibility.h"
#include "platform/qt/FocusRing.h"

#include <QPainter>

#include <algorithm>

namespace gp {
namespace {

constexpr Color kCurrentPage = 0xFFFF80;
constexpr int kLeastSide = 24;
constexpr int kFrame = 2;
constexpr int kAroundText = 8;

}  // namespace

PageButton::PageButton(QWidget* parent, int page) : QAbstractButton(parent) {
  setObjectName(QStringLiteral("cmdPageRef(%1)").arg(page));
  setText(QString::number(page + 1));
  setToolTip(QStringLiteral("Page %1").arg(page + 1));
  setAccessibleName(toolTip());
  setCheckable(true);
  setAccessibleRole(this, QAccessible::RadioButton);
  setFocusPolicy(Qt::StrongFocus);
  QSizePolicy policy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  policy.setRetainSizeWhenHidden(true);
  setSizePolicy(policy);
}

QSize PageButton::sizeHint() const {
  const int side = std::max(kLeastSide, fontMetrics().height() + kAroundText);
  return {side, side};
}

// The texts and colours do not change with the theme. The frame of the current page differs from both grounds.
void PageButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), QColor(toRgb(isChecked() ? kCurrentPage : kGround)));
  QFont font = painter.font();
  font.setBold(isChecked());
  painter.setFont(font);
  painter.setPen(isEnabled() ? Qt::black : Qt::darkGray);
  painter.drawText(rect(), Qt::AlignCenter, text());
  if (isChecked() || isDown())
    paintRing(painter, rect(), Qt::black, kFrame);
  else
    paintRing(painter, rect(), palette().color(QPalette::Mid), 1);
  if (!hasFocus()) return;
  const QRect within = rect().adjusted(kFrame, kFrame, -kFrame, -kFrame);
  paintFocusRing(painter, within, accentOn(QColor(toRgb(kGround)), palette()));
}

}  // namespace gp
