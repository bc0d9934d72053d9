#include "effects/ui/ConfinePanelView.h"

#include "document/ui/Lists.h"

#include <QComboBox>
#include <QLabel>
#include <QVBoxLayout>

namespace gp {
namespace {

constexpr std::array<const char*, kConfineRuns> kListNames{"Confine to 256 colors", "Confine to 16 colors",
                                                           "Confine to black and white"};

}  // namespace

ConfinePanelView::ConfinePanelView(QWidget* parent, ConfinePanel& panel)
    : EffectPanelView(parent, panel), panel_(panel) {
  lblRun_ = addLabel("lblConfineColors(1)", "");
  addMethods();
  addThreshold();
  // Below the space of a hidden threshold, so that the label does not move.
  rows()->addStretch(1);
  addLabel("lblConfineColors(3)", "(Remarks: Undo will not be available)");
  addSamples({{"picConfineColors(0)", "Image", panel_.picture().image},
              {"picConfineColors(1)", "Mask", panel_.picture().mask}});
  refresh();
}

void ConfinePanelView::addMethods() {
  lblConfineTo_ = addLabel("lblConfineColors(0)", "Conf&ine to");
  for (std::size_t run = 0; run < methods_.size(); ++run) {
    methods_[run] = makeList(this, QString("cboConfineColors(%1)").arg(run), kListNames[run]);
    connect(methods_[run], &QComboBox::activated, this, [this](int index) { panel_.pickMethod(index); });
    rows()->addWidget(methods_[run]);
  }
}

void ConfinePanelView::addThreshold() {
  threshold_ = makeList(this, "cboConfineColors(3)", "Threshold");
  connect(threshold_, &QComboBox::activated, this, [this](int index) { panel_.pickThreshold(index); });
  lblThreshold_ =
      addLabel("lblConfineColors(2)", "Threshol&d:    (If averaged color value below threshold, black)", threshold_);
  rows()->addWidget(threshold_);
}

// Changing a list here does not emit `activated`, which only a choice of the user does.
void ConfinePanelView::refresh() {
  lblRun_->setText(panel_.caption());
  for (int run = 0; run < kConfineRuns; ++run) {
    QComboBox* list = methods_[static_cast<std::size_t>(run)];
    list->setCurrentIndex(panel_.cboConfineColors(run));
    list->setVisible(run == panel_.run());
  }
  QComboBox* present = methods_[static_cast<std::size_t>(panel_.run())];
  lblConfineTo_->setBuddy(present);
  setFirstControl(present);
  threshold_->setCurrentIndex(panel_.thresholdIndex());
  threshold_->setVisible(panel_.showsThreshold());
  lblThreshold_->setVisible(panel_.showsThreshold());
}

}  // namespace gp
