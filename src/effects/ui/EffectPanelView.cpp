#include "effects/ui/EffectPanelView.h"

#include "document/ui/SampleView.h"
#include "effects/EffectPanel.h"

#include <QGridLayout>
#include <QLabel>

namespace gp {
namespace {

constexpr int kGap = 8;
// Sides of the largest icon in the first sample, at least, and in the others.
constexpr int kLeastFirst = 96;
constexpr int kOthers = 48;

}  // namespace

EffectPanelView::EffectPanelView(QWidget* parent, EffectPanel& panel)
    : PanelFrame(parent, panel.number()), panel_(panel) {}

void EffectPanelView::follow() { panel_.preview(); }

void EffectPanelView::refreshAll() {
  refresh();
  for (SampleView* sample : samples_) sample->refresh();
}

std::vector<QLabel*> EffectPanelView::addSamples(const std::vector<SampleRow>& samples) {
  auto* place = new QWidget(rows());
  auto* grid = new QGridLayout(place);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(kGap);
  grid->setColumnStretch(0, 1);
  const int others = static_cast<int>(samples.size()) - 1;
  grid->setRowStretch(2 * others + 1, 1);
  std::vector<QLabel*> labels{addSample(grid, samples.front(), {0, 0}, 2 * others + 1)};
  for (int i = 0; i < others; ++i)
    labels.push_back(addSample(grid, samples[static_cast<std::size_t>(i) + 1], {1, 2 * i}, 1));
  addTall(place);
  addButtons();
  return labels;
}

QLabel* EffectPanelView::addSample(QGridLayout* grid, const SampleRow& sample, const QPoint& cell, int rows) {
  QWidget* place = grid->parentWidget();
  auto* label = new QLabel(sample.caption, place);
  const bool isFirst = samples_.empty();
  auto* view = new SampleView(place, sample.objectName, sample.caption, sample.picture, isFirst ? kLeastFirst : kOthers,
                              isFirst ? SampleRoom::Grows : SampleRoom::Fixed);
  label->setBuddy(view);
  grid->addWidget(label, cell.y(), cell.x());
  grid->addWidget(view, cell.y() + 1, cell.x(), rows, 1);
  samples_.push_back(view);
  return label;
}

}  // namespace gp
