#include "output/ui/PreviewPanelView.h"

#include "colour/ui/ColorButton.h"
#include "colour/ui/SwatchPainting.h"
#include "output/ui/ScreenColorView.h"

#include <QGridLayout>
#include <QLabel>
#include <QPushButton>

namespace gp {
namespace {

constexpr int kGap = 8;
constexpr const char* kButtonTip = "Click to select screen color";
constexpr const char* kRemarks = "(Remarks: Alpha values are blended with each screen color)";

// The label names the colour and has the access letter of its button.
QString labelText(int i, Color color) { return QString("Screen color &%1\n%2").arg(i + 1).arg(colorText(color)); }

QString indexed(const char* control, int i) { return QString("%1(%2)").arg(control).arg(i); }

}  // namespace

PreviewPanelView::PreviewPanelView(QWidget* parent, PreviewPanel& panel)
    : PanelFrame(parent, PreviewPanel::kNumber), panel_(panel) {
  addPictures();
  addAlphaControls();
  addCloseButton();
  setFirstControl(rows_.front().button);
  refresh();
}

void PreviewPanelView::addPictures() {
  auto* place = new QWidget(rows());
  auto* grid = new QGridLayout(place);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(kGap);
  grid->setColumnStretch(0, 1);
  for (int i = 0; i < PreviewPanel::kColors; ++i) addPicture(grid, i);
  addTall(place);
}

void PreviewPanelView::addPicture(QGridLayout* grid, int i) {
  QWidget* place = grid->parentWidget();
  auto* picture =
      new ScreenColorView(place, indexed("picPreviewDiffScreenColors", i),
                          QString("Icon on screen color %1").arg(i + 1), panel_.picture(i), panel_.color(i));
  auto* button = new ColorButton(place, indexed("cmdPreviewDiffScreenColors", i), kButtonTip, panel_.color(i));
  button->setAccessibleName(QString("Screen color %1").arg(i + 1));
  connect(button, &QAbstractButton::clicked, this, [this, i] { panel_.chooseColor(i); });
  auto* label = new QLabel(place);
  label->setObjectName(indexed("lblPreviewDiffScreenColors", i));
  label->setBuddy(button);

  grid->addWidget(picture, 2 * i, 0, 2, 1);
  grid->addWidget(label, 2 * i, 1, Qt::AlignBottom);
  grid->addWidget(button, 2 * i + 1, 1, Qt::AlignTop);
  for (const int row : {2 * i, 2 * i + 1}) grid->setRowStretch(row, 1);
  rows_.at(static_cast<std::size_t>(i)) = {picture, label, button};
}

void PreviewPanelView::addAlphaControls() {
  lblRemarksAlpha_ = addRow("lblRemarksAlpha", kRemarks);
  cmdEditAlphaChannel_ = new QPushButton("E&dit Alpha Channel ....", rows());
  cmdEditAlphaChannel_->setObjectName("cmdEditAlphaChannel");
  cmdEditAlphaChannel_->setToolTip("Edit the alpha values of the current icon");
  // Enter presses it, not Close.
  cmdEditAlphaChannel_->setAutoDefault(true);
  connect(cmdEditAlphaChannel_, &QPushButton::clicked, this, &PreviewPanelView::editAlphaRequested);
  addWide(cmdEditAlphaChannel_);
}

void PreviewPanelView::follow() { panel_.follow(); }

void PreviewPanelView::refresh() {
  setCaption(panel_.caption());
  for (int i = 0; i < PreviewPanel::kColors; ++i) {
    const Row& row = rows_.at(static_cast<std::size_t>(i));
    row.picture->refresh();
    row.label->setText(labelText(i, panel_.color(i)));
    row.button->refresh();
  }
  const bool hasAlphaForm = panel_.form() == PreviewForm::AlphaEffects;
  lblRemarksAlpha_->setVisible(hasAlphaForm);
  cmdEditAlphaChannel_->setVisible(hasAlphaForm);
}

}  // namespace gp
