#include "effects/ui/SpherePanelView.h"

#include "colour/ui/ColorButton.h"
#include "document/ui/Lists.h"
#include "effects/ui/PointSampleView.h"

#include <QComboBox>
#include <QLabel>

namespace gp {
namespace {

constexpr int kLeastSample = 96;
// The brightest point of a new panel.
constexpr QPoint kFirstLight(11, 11);

}  // namespace

SpherePanelView::SpherePanelView(QWidget* parent, SpherePanel& panel)
    : EffectPanelView(parent, panel),
      panel_(panel),
      size_(makeList(rows(), "cboSphere(1)", "Size")),
      factor_(makeList(rows(), "cboSphere(0)", "Color adj factor")),
      color_(new ColorButton(rows(), "cmdSphereColor", "Click to select sphere color", panel.color())),
      sample_(new PointSampleView(rows(), "PicSphere(0)", "Click to set the light", panel.PicSphere(), kLeastSample,
                                  SampleRoom::Grows)) {
  addRow("lblSphere(1)", "Si&ze:", size_);
  addRow("lblSphere(0)", "Color ad&j factor:", factor_);
  addRow("lblSphereColor", "Col&or:", color_);
  addRow("lblSphere(2)", "&Light: click on the sphere")->setBuddy(sample_);
  addTall(sample_);
  addButtons();
  sample_->setPoint(kFirstLight);
  connect(color_, &QAbstractButton::clicked, this, [this] { panel_.chooseColor(); });
  connect(factor_, &QComboBox::activated, this, [this](int index) { panel_.pickFactor(index); });
  connect(size_, &QComboBox::activated, this, [this](int index) { panel_.pickSize(index); });
  connect(sample_, &PointSampleView::picked, this, [this](int x, int y) { panel_.clickSample(x, y); });
  setFirstControl(size_);
  refresh();
}

// Changing a list here does not emit `activated`, which only a choice of the user does.
void SpherePanelView::refresh() {
  color_->refresh();
  factor_->setCurrentIndex(panel_.factorIndex());
  factor_->setEnabled(panel_.usesFactor());
  size_->setCurrentIndex(panel_.sizeIndex());
  sample_->refresh();
}

}  // namespace gp
