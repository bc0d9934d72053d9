#include "files/ui/CursorPanelView.h"

#include "document/PanelNumbers.h"
#include "document/ui/Lists.h"
#include "files/cursor/CursorFiles.h"

#include <QComboBox>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace gp {
namespace {

constexpr const char* kHint = "Choose the hot spot here, or click its pixel in the Editing Area.";
constexpr int kRowGap = 8;

}  // namespace

CursorPanelView::CursorPanelView(QWidget* parent, CursorFiles& cursors)
    : PanelFrame(parent, kCursorPanel), cursors_(cursors) {
  auto* hint = new QLabel(kHint, this);
  hint->setObjectName("lblCursorHotSpot");
  hint->setWordWrap(true);
  rows()->addWidget(hint);
  rows()->addLayout(makeLists());
  rows()->addWidget(makeShowButton());
  rows()->addStretch(1);
  addButtons();
  setFirstControl(cboCursorHotSpot_[0]);
  refresh();
}

// The access keys are those that no menu of the form uses.
QGridLayout* CursorPanelView::makeLists() {
  auto* grid = new QGridLayout;
  grid->setSpacing(kRowGap);
  grid->setColumnStretch(1, 1);
  addList(grid, 0, "Hot &spot X:", "Hot spot X");
  addList(grid, 1, "Hot spot &Y:", "Hot spot Y");
  return grid;
}

void CursorPanelView::addList(QGridLayout* grid, int index, const QString& caption, const QString& name) {
  auto* list = cboCursorHotSpot_[static_cast<std::size_t>(index)] =
      makeList(this, QString("cboCursorHotSpot(%1)").arg(index), name);
  connect(list, &QComboBox::activated, this,
          [this, index](int value) { index == 0 ? cursors_.setHotspotX(value) : cursors_.setHotspotY(value); });
  auto* label = new QLabel(caption, this);
  label->setBuddy(list);
  grid->addWidget(label, index, 0);
  grid->addWidget(list, index, 1);
}

QWidget* CursorPanelView::makeShowButton() {
  auto* button = new QPushButton("Sho&w hotspot", this);
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
