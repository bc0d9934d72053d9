#include "files/ui/CursorPanelView.h"

#include "document/PanelNumbers.h"
#include "document/ui/Lists.h"
#include "files/cursor/CursorFiles.h"

#include <QComboBox>
#include <QPushButton>
#include <QSignalBlocker>

namespace gp {
namespace {

constexpr const char* kHint = "Choose the hot spot here, or click its pixel in the Editing Area.";
}  // namespace

CursorPanelView::CursorPanelView(QWidget* parent, CursorFiles& cursors)
    : PanelFrame(parent, kCursorPanel), cursors_(cursors) {
  addRow("lblCursorHotSpot", kHint);
  // The access keys are those that no menu of the form uses.
  addList(0, "Hot &spot X:", "Hot spot X");
  addList(1, "Hot spot &Y:", "Hot spot Y");
  addWide(makeShowButton());
  addTall(new QWidget(rows()));
  addButtons();
  setFirstControl(cboCursorHotSpot_[0]);
  refresh();
}

void CursorPanelView::addList(int index, const QString& caption, const QString& name) {
  auto* list = cboCursorHotSpot_[static_cast<std::size_t>(index)] =
      makeList(rows(), QString("cboCursorHotSpot(%1)").arg(index), name);
  connect(list, &QComboBox::activated, this,
          [this, index](int value) { index == 0 ? cursors_.setHotspotX(value) : cursors_.setHotspotY(value); });
  addRow(QString("lblCursorHotSpot(%1)").arg(index), caption, list);
}

QWidget* CursorPanelView::makeShowButton() {
  auto* button = new QPushButton("Sho&w hotspot", rows());
  button->setObjectName("cmdShowHotspot");
  button->setToolTip("Show the hot spot in the Editing Area");
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, &CursorPanelView::showHotspotRequested);
  return button;
}

void CursorPanelView::refresh() {
  const std::array<int, 2> spot{cursors_.hotspotX(), cursors_.hotspotY()};
  for (std::size_t i = 0; i < spot.size(); ++i) {
    const QSignalBlocker quiet(cboCursorHotSpot_[i]);
    cboCursorHotSpot_[i]->setCurrentIndex(spot[i]);
  }
}

}  // namespace gp
