#include "effects/ui/ShadesPanelView.h"

#include "effects/ShadesPanel.h"

#include <QCheckBox>
#include <QLabel>
#include <QSignalBlocker>
#include <QVBoxLayout>

namespace gp {
namespace {

// In two lines, as the panel is not wide enough for one.
constexpr const char* kUseSelectedColor = "&Use currently selected color\n(otherwise black)";

}  // namespace

ShadesPanelView::ShadesPanelView(QWidget* parent, ShadesPanel& panel)
    : EffectPanelView(parent, panel), panel_(panel), ckbUseSelectedColor_(makeUseSelectedColor()) {
  rows()->addWidget(ckbUseSelectedColor_);
  rows()->addStretch(1);
  lblEffectsSample_ = addSamples({{"picEffectsSample", "Sample", panel_.picEffectsSample()}}).front();
  lblEffectsSample_->setObjectName("lblEffectsSample");
  refresh();
}

QCheckBox* ShadesPanelView::makeUseSelectedColor() {
  auto* box = new QCheckBox(kUseSelectedColor, this);
  box->setObjectName("ckbUseSelectedColor");
  box->setAccessibleName("Use currently selected color (otherwise black)");
  connect(box, &QCheckBox::toggled, this, [this](bool on) { panel_.setUseSelectedColor(on); });
  return box;
}

void ShadesPanelView::refresh() {
  const QSignalBlocker quiet(ckbUseSelectedColor_);
  ckbUseSelectedColor_->setChecked(panel_.ckbUseSelectedColor());
  ckbUseSelectedColor_->setVisible(panel_.asksForColor());
  setFirstControl(panel_.asksForColor() ? ckbUseSelectedColor_ : proceedButton());
  lblEffectsSample_->setText(panel_.lblEffectsSample());
}

}  // namespace gp
