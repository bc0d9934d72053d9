#include "effects/ui/ConfinePanelView.h"

#include "document/ui/Lists.h"

#include <QComboBox>
#include <QLabel>

namespace gp {
namespace {

constexpr std::array<const char*, kConfineRuns> kListNames{"Confine to 256 colors", "Confine to 16 colors",
                                                           "Confine to black and white"};

}  // namespace

ConfinePanelView::ConfinePanelView(QWidget* parent, ConfinePanel& panel)
    : EffectPanelView(parent, panel), panel_(panel) {
  lblRun_ = addRow("lblConfineColors(1)", "");
  addMethods();
  addThreshold();
  addRow("lblConfineColors(3)", "(Remarks: Undo will not be available)");
  addSamples({{"picConfineResult", "Result", panel_.sample()},
              {"picConfineColors(0)", "Image", panel_.picture().image},
              {"picConfineColors(1)", "Mask", panel_.picture().mask}});
  refresh();
}

void ConfinePanelView::addMethods() {
  for (std::size_t run = 0; run < methods_.size(); ++run) {
    methods_[run] = makeList(rows(), QString("cboConfineColors(%1)").arg(run), kListNames[run]);
    connect(methods_[run], &QComboBox::activated, this, [this](int index) { panel_.pickMethod(index); });
    if (run == 0)
      lblConfineTo_ = addRow("lblConfineColors(0)", "Conf&ine to", methods_[run]);
    else
      addControl(methods_[run]);
  }
}

void ConfinePanelView::addThreshold() {
  threshold_ = makeList(rows(), "cboConfineColors(3)", "Threshold");
  connect(threshold_, &QComboBox::activated, this, [this](int index) { panel_.pickThreshold(index); });
  lblThreshold_ =
      addRow("lblConfineColors(2)", "Threshol&d:    (If averaged color value below threshold, black)", threshold_);
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
