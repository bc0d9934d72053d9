#include "extraction/ui/IconsListStrip.h"

#include "extraction/ui/IconsListSurface.h"
#include "extraction/ui/ListEvents.h"

#include <QApplication>
#include <QHBoxLayout>
#include <QScrollBar>
#include <QSignalBlocker>
#include <QWheelEvent>

#include <algorithm>

namespace gp {
namespace {

constexpr int kStep = 16;  // pixels, for a click on an arrow of the bar

}  // namespace

IconsListStrip::IconsListStrip(QWidget* parent, const ListEvents& events)
    : QWidget(parent),
      events_(events),
      picIconsList_(new IconsListSurface(this, events)),
      VsrIconsList_(new QScrollBar(Qt::Vertical, this)) {
  setObjectName(QStringLiteral("picIconsListBase"));
  VsrIconsList_->setObjectName(QStringLiteral("VsrIconsList"));
  VsrIconsList_->setAccessibleName(QStringLiteral("Scroll icons"));
  connect(VsrIconsList_, &QScrollBar::valueChanged, this,
          [this](int value) { events_.guarded("VsrIconsList_Change", [&] { events_.list.scrollTo(value); }); });
  connect(picIconsList_, &IconsListSurface::gridChanged, this, &IconsListStrip::refreshBar);
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  row->addWidget(picIconsList_, 1);
  row->addWidget(VsrIconsList_);
}

void IconsListStrip::refreshBar() {
  const QSignalBlocker quiet(VsrIconsList_);
  VsrIconsList_->setRange(0, events_.list.grid().scrollMaximum());
  VsrIconsList_->setSingleStep(kStep);
  VsrIconsList_->setPageStep(std::max(1, events_.list.grid().baseHeight()));
  VsrIconsList_->setValue(events_.list.scrollValue());
  VsrIconsList_->setEnabled(!events_.list.isDrawing());
}

void IconsListStrip::refresh() {
  refreshBar();
  picIconsList_->refresh();
}

// As far as the wheel turns, so that a fine one scrolls smoothly.
void IconsListStrip::wheelEvent(QWheelEvent* event) {
  const int step = VsrIconsList_->singleStep() * QApplication::wheelScrollLines();
  VsrIconsList_->setValue(VsrIconsList_->value() - event->angleDelta().y() * step / QWheelEvent::DefaultDeltasPerStep);
}

}  // namespace gp
