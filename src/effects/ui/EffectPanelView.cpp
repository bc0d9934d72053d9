#include "effects/ui/EffectPanelView.h"

#include "document/ui/SampleView.h"
#include "effects/EffectPanel.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace gp {
namespace {

constexpr int kGap = 8;
// Side of a single sample and of one of several: four times and twice the largest icon.
constexpr int kLargeRoom = 192;
constexpr int kSmallRoom = 96;

}  // namespace

EffectPanelView::EffectPanelView(QWidget* parent, EffectPanel& panel)
    : PanelFrame(parent, panel.number()), panel_(panel) {}

void EffectPanelView::follow() { panel_.preview(); }

void EffectPanelView::refreshAll() {
  refresh();
  for (SampleView* sample : samples_) sample->refresh();
}

QLabel* EffectPanelView::addLabel(const QString& objectName, const QString& caption, QWidget* buddy) {
  auto* label = new QLabel(caption, this);
  label->setObjectName(objectName);
  label->setWordWrap(true);
  label->setBuddy(buddy);
  rows()->addWidget(label);
  return label;
}

std::vector<QLabel*> EffectPanelView::addSamples(const std::vector<SampleRow>& samples) {
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  std::vector<QLabel*> labels;
  for (const SampleRow& sample : samples)
    labels.push_back(addSample(row, sample, samples.size() == 1 ? kLargeRoom : kSmallRoom));
  rows()->addLayout(row);
  addButtons();
  return labels;
}

QLabel* EffectPanelView::addSample(QHBoxLayout* row, const SampleRow& sample, int room) {
  auto* column = new QVBoxLayout;
  column->setSpacing(kGap);
  auto* label = new QLabel(sample.caption, this);
  auto* view = new SampleView(this, sample.objectName, sample.caption, sample.picture, room);
  label->setBuddy(view);
  column->addWidget(label, 0, Qt::AlignHCenter);
  column->addWidget(view, 0, Qt::AlignHCenter);
  row->addLayout(column);
  samples_.push_back(view);
  return label;
}

}  // namespace gp
