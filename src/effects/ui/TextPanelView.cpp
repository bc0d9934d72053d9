#include "effects/ui/TextPanelView.h"

#include "colour/ui/ColorButton.h"
#include "document/ui/Lists.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/PictureButton.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QSignalBlocker>
#include <QSlider>

namespace gp {
namespace {

constexpr int kGap = 4;
constexpr int kButtonSide = 28;
constexpr int kLeastNameLetters = 8;  // of a family that is visible in any case
constexpr int kSliderPage = 15;
constexpr const char* kPointsTip = "Size in points";

struct FontStyleLook {
  const char* picture;
  const char* tooltip;
};
constexpr std::array<FontStyleLook, TextPanel::kFontStyles> kFontStyleLooks{
    {{"bold", "Bold"}, {"italic", "Italic"}, {"underline", "Underline"}, {"strikeout", "Strikeout"}}};

QString angleText(int angle) { return QString("%1\u00B0").arg(angle); }

QHBoxLayout* rowIn(QWidget* place) {
  auto* row = new QHBoxLayout(place);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kGap);
  return row;
}

}  // namespace

TextPanelView::TextPanelView(QWidget* parent, TextPanel& panel) : EffectPanelView(parent, panel), panel_(panel) {
  addRow("lblWriteText", "&Write:", makeText());
  addRow("lblFontName", "Fam&ily:", makeFamilies());
  addRow("lblTextSize", "Si&ze:", makeSizes())->setBuddy(cboTextSize_);
  addRow("lblFontStyle", "Look:", makeFontStyles());
  addRow("lblTextWriteStyle", "St&yle:", cboTextWriteStyle_ = makeList(rows(), "cboTextWriteStyle", "Style"));
  addRow("lblTextColor", "Co&lor:", makeColor());
  addRow("lblTextWriteAngle", "An&gle:", makeAngle())->setBuddy(hsrTextWriteSampleAngle_);
  addSamples({{"lblTextSample", "Sample", panel_.sample()},
              {"picTextWriteAngleSample", "Angle", panel_.picTextWriteAngleSample()}});
  connect(cboTextWriteStyle_, &QComboBox::activated, this, [this](int index) { panel_.pickStyle(index); });
  setFirstControl(txbWriteText_);
  refresh();
}

QWidget* TextPanelView::makeText() {
  auto* text = txbWriteText_ = new QLineEdit(rows());
  text->setObjectName("txbWriteText");
  text->setAccessibleName("Text");
  connect(text, &QLineEdit::textEdited, this, [this](const QString& typed) { panel_.setText(typed.toStdString()); });
  return text;
}

// A long name is elided, so that the panel keeps its width; the tooltip shows it whole.
QComboBox* TextPanelView::makeFamilies() {
  auto* list = cboFontName_ = makeList(rows(), FilledList{"cboFontName", {}, 0}, "Font");
  list->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
  list->setMinimumContentsLength(kLeastNameLetters);
  connect(list, &QComboBox::activated, this, [this](int index) { panel_.pickFamily(index); });
  return list;
}

// A size that fits the icon, or a number of points. The label of the row is no sibling of the lists, so each has its
// hidden one.
QWidget* TextPanelView::makeSizes() {
  auto* place = new QWidget(rows());
  QHBoxLayout* row = rowIn(place);
  row->addWidget(cboTextSize_ = makeUnlabelledList(place, "cboTextSize", "Size"), 2);
  row->addWidget(cboFontSize_ = makeUnlabelledList(place, "cboFontSize", kPointsTip), 1);
  cboFontSize_->setToolTip(kPointsTip);
  connect(cboTextSize_, &QComboBox::activated, this, [this](int index) { panel_.pickSize(index); });
  connect(cboFontSize_, &QComboBox::activated, this, [this](int index) { panel_.pickPoints(index); });
  return place;
}

QWidget* TextPanelView::makeFontStyles() {
  auto* place = new QWidget(rows());
  QHBoxLayout* row = rowIn(place);
  for (int i = 0; i < TextPanel::kFontStyles; ++i) row->addWidget(makeFontStyle(place, i));
  row->addStretch();
  return place;
}

PictureButton* TextPanelView::makeFontStyle(QWidget* parent, int i) {
  const FontStyleLook& look = kFontStyleLooks.at(static_cast<std::size_t>(i));
  auto* button =
      new PictureButton(parent, QString("imgFontStyle(%1)").arg(i), {look.picture, look.tooltip, kButtonSide});
  button->setToggle();
  connect(button, &PictureButton::clicked, this, [this, i] { panel_.toggleFontStyle(i); });
  imgFontStyle_.at(static_cast<std::size_t>(i)) = button;
  return button;
}

ColorButton* TextPanelView::makeColor() {
  cmdTextColor_ = new ColorButton(rows(), "cmdTextColor", "Click to select text color", panel_.color());
  connect(cmdTextColor_, &QAbstractButton::clicked, this, [this] { panel_.chooseColor(); });
  return cmdTextColor_;
}

QWidget* TextPanelView::makeAngle() {
  auto* place = new QWidget(rows());
  auto* slider = hsrTextWriteSampleAngle_ = new QSlider(Qt::Horizontal, place);
  slider->setObjectName("hsrTextWriteSampleAngle");
  slider->setAccessibleName("Text angle");
  slider->setRange(-kLargestTextAngle, kLargestTextAngle);
  slider->setPageStep(kSliderPage);
  connect(slider, &QSlider::valueChanged, this, [this](int angle) { panel_.setAngle(angle); });
  lblTextAngle_ = new QLabel(place);
  lblTextAngle_->setObjectName("lblTextAngle");
  lblTextAngle_->setAlignment(Qt::AlignRight | Qt::AlignVCenter);
  // The slider keeps its place whatever the angle.
  lblTextAngle_->setMinimumWidth(fontMetrics().horizontalAdvance(angleText(-kLargestTextAngle)));
  QHBoxLayout* row = rowIn(place);
  row->addWidget(slider, 1);
  row->addWidget(lblTextAngle_);
  return place;
}

// Only choices of the user reach the panel: `activated` and `textEdited` are not emitted when a control is set here.
void TextPanelView::refresh() {
  refreshText();
  refreshFamilies();
  cboTextSize_->setCurrentIndex(panel_.sizeIndex());
  cboFontSize_->setCurrentIndex(panel_.pointsIndex());
  cboTextWriteStyle_->setCurrentIndex(panel_.styleIndex());
  for (int i = 0; i < TextPanel::kFontStyles; ++i)
    imgFontStyle_.at(static_cast<std::size_t>(i))->setChecked(panel_.hasFontStyle(i));
  cmdTextColor_->refresh();
  refreshAngle();
}

// Leaves a text alone that is being typed.
void TextPanelView::refreshText() {
  if (txbWriteText_->text().toStdString() != panel_.text()) txbWriteText_->setText(toText(panel_.text()));
}

void TextPanelView::refreshFamilies() {
  const QSignalBlocker quiet(cboFontName_);
  if (shownFamilies_ != panel_.families()) {
    shownFamilies_ = panel_.families();
    cboFontName_->clear();
    for (const std::string& family : shownFamilies_) cboFontName_->addItem(toText(family));
  }
  cboFontName_->setEnabled(!shownFamilies_.empty());
  cboFontName_->setCurrentIndex(panel_.familyIndex());
  cboFontName_->setToolTip(cboFontName_->currentText());
}

void TextPanelView::refreshAngle() {
  const QSignalBlocker quiet(hsrTextWriteSampleAngle_);
  hsrTextWriteSampleAngle_->setValue(panel_.angle());
  lblTextAngle_->setText(angleText(panel_.angle()));
  lblTextAngle_->setAccessibleName(QString("%1 degrees").arg(panel_.angle()));
}

}  // namespace gp
