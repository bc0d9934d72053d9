#include "document/ui/ReadoutsView.h"

#include "platform/qt/Accessibility.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/TextCell.h"

#include <QHBoxLayout>

namespace gp {
namespace {

struct Cell {
  const char* name;
  const char* widest;  // the longest text of the cell; the region's cell fills the rest of the row
};

constexpr std::array<Cell, kReadoutCount> kCells = {
    {{"Position", "X=48  Y=48 "}, {"Color of pixel", "RGB: 255, 255, 255 "}, {"Region", ""}, {"Size", "48 x 48 "}}};

}  // namespace

QString spokenPixel(QString text) { return text.replace("N/A", "transparent"); }

ReadoutsView::ReadoutsView(QWidget* parent, const ScreenState& screen) : QWidget(parent), screen_(screen) {
  auto* row = new QHBoxLayout(this);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(0);
  makeGroup(this, "Readouts");
  for (std::size_t i = 0; i < kCells.size(); ++i) {
    auto* cell = new TextCell(this, QString("lblDispXY(%1)").arg(i), kCells[i].name);
    cell->setText(kCells[i].widest);
    cell->setMinimumSize(cell->sizeHint());
    row->addWidget(cell, i == static_cast<std::size_t>(Readout::Region) ? 1 : 0);
    lblDispXY_[i] = cell;
  }
  refresh();
}

void ReadoutsView::refresh() {
  for (std::size_t i = 0; i < lblDispXY_.size(); ++i) {
    const QString text = toText(screen_.lblDispXY[i]);
    lblDispXY_[i]->setText(text, spokenPixel(text));
  }
  lblDispXY_[static_cast<std::size_t>(Readout::PixelRgb)]->setVisible(screen_.pixelRgbVisible);
}

}  // namespace gp
