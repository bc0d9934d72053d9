#include "alpha/ui/AlphaAreaView.h"

#include "platform/qt/FocusRing.h"

#include <QPainter>
#include <QVBoxLayout>

namespace gp {
namespace {

constexpr int kBorder = kFocusRing + 1;  // the ring, and a line around the picture

}  // namespace

AlphaPictureView::AlphaPictureView(QWidget* parent, const MagnifiedPicture& picture)
    : MagnifiedView(parent, QStringLiteral("picDisp"), QStringLiteral("Alpha values of the icon"), picture) {
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

// The ring around the view belongs to its parent.
void AlphaPictureView::focusInEvent(QFocusEvent* event) {
  MagnifiedView::focusInEvent(event);
  parentWidget()->update();
}

void AlphaPictureView::focusOutEvent(QFocusEvent* event) {
  MagnifiedView::focusOutEvent(event);
  parentWidget()->update();
}

AlphaAreaView::AlphaAreaView(QWidget* parent, const MagnifiedPicture& picture)
    : QWidget(parent), view_(new AlphaPictureView(this, picture)) {
  auto* inside = new QVBoxLayout(this);
  inside->setContentsMargins(kBorder, kBorder, kBorder, kBorder);
  inside->addWidget(view_);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void AlphaAreaView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  paintRing(painter, rect().adjusted(kFocusRing, kFocusRing, -kFocusRing, -kFocusRing), palette().color(QPalette::Mid),
            1);
  if (view_->hasFocus()) paintFocusRing(painter, rect(), accentOn(palette()));
}

}  // namespace gp
