#include "effects/ui/ThemePanelView.h"

#include "colour/ui/ColorSample.h"
#include "document/ui/Lists.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>

namespace gp {
namespace {

constexpr int kGap = 8;

}  // namespace

ThemePanelView::ThemePanelView(QWidget* parent, ThemePanel& panel) : EffectPanelView(parent, panel), panel_(panel) {
  QWidget* button = addColor();
  addPercent();
  addRow("lblColorTheme(2)", "(The percentage acts on a theme of hue 0 only, such as gray or pure red)");
  addSamples({{"picColorTheme(0)", "Sample", panel_.sample()}});
  setFirstControl(button);
  refresh();
}

QWidget* ThemePanelView::addColor() {
  auto* place = new QWidget(rows());
  auto* columns = new QHBoxLayout(place);
  columns->setContentsMargins(0, 0, 0, 0);
  columns->setSpacing(kGap);
  auto* button = new QPushButton("Pi&ck color ....", place);
  button->setObjectName("cmdColorTheme");
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, [this] { panel_.pickColor(); });
  swatch_ = new ColorSample(place, "picColorTheme(1)", "Color of the theme", panel_.color());
  lblColor_ = new QLabel(place);
  lblColor_->setObjectName("lblColorTheme(3)");
  columns->addWidget(button);
  columns->addWidget(swatch_);
  columns->addWidget(lblColor_, 1);
  addWide(place);
  return button;
}

void ThemePanelView::addPercent() {
  percent_ = makeList(rows(), "cboColorTheme", "Saturation in percent");
  connect(percent_, &QComboBox::activated, this, [this](int index) { panel_.pickPercent(index); });
  addRow("lblColorTheme(1)", "&Saturation in percent:", percent_);
}

void ThemePanelView::refresh() {
  const bool isPicked = panel_.color() != kNoColor;
  lblColor_->setText(isPicked ? swatch_->accessibleValue() : QString());
  swatch_->setVisible(isPicked);
  swatch_->refresh();
  percent_->setCurrentIndex(panel_.cboColorTheme());
  percent_->setEnabled(panel_.usesPercent());
}

}  // namespace gp
