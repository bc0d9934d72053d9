#include "alpha/ui/AlphaValueView.h"

#include "alpha/AlphaEditor.h"
#include "colour/ui/ColorSample.h"
#include "document/AlphaGreys.h"
#include "document/ui/Lists.h"
#include "platform/qt/Accessibility.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/PictureButton.h"
#include "platform/qt/widgets/TextCell.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPushButton>
#include <QSlider>

#include <array>

namespace gp {
namespace {

constexpr int kGap = 6;
constexpr int kButtonSide = 28;
constexpr int kSliderPage = 17;
constexpr const char* kWidestValue = "255";

struct StepButton {
  const char* picture;
  const char* tooltip;
  void (AlphaEditor::*step)();
};

constexpr std::array<StepButton, 2> kSteps{{{"step-down", "Step alpha value down", &AlphaEditor::stepDown},
                                            {"step-up", "Step alpha value up", &AlphaEditor::stepUp}}};

// A list behind its label.
QComboBox* addList(QHBoxLayout* row, QWidget* parent, const char* name, const char* caption) {
  auto* list = makeList(parent, QLatin1String(name), QString());
  auto* label = new QLabel(QLatin1String(caption), parent);
  label->setBuddy(list);
  row->addWidget(label);
  row->addWidget(list);
  return list;
}

}  // namespace

AlphaValueView::AlphaValueView(QWidget* parent, AlphaEditor& editor)
    : CaptionFrame(parent, QStringLiteral("fraAlphaValuePanel"), QStringLiteral("Edit alpha value")), editor_(editor) {
  auto* rows = new QVBoxLayout(this);
  rows->setContentsMargins(frameMargins());
  rows->setSpacing(kGap);
  rows->addLayout(makeValueRow());
  rows->addWidget(makeSlider());
  rows->addLayout(makeBrushRow());
  rows->addWidget(makeRestore());
  refresh();
}

QHBoxLayout* AlphaValueView::makeValueRow() {
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  cboAlphaValue_ = addList(row, this, "cboAlphaValue", "&Value:");
  connect(cboAlphaValue_, &QComboBox::currentIndexChanged, this, &AlphaValueView::setValue);
  for (int index = 0; index < static_cast<int>(kSteps.size()); ++index) row->addWidget(makeStep(index));
  row->addStretch();
  row->addWidget(picAlphaValue_ = new ColorSample(this, QStringLiteral("picAlphaValue"),
                                                  QStringLiteral("Shade of the value"), editor_.picAlphaValue()));
  lblAlpha_ = new TextCell(this, QStringLiteral("lblAlpha"), QStringLiteral("Value to paint"));
  lblAlpha_->setText(QLatin1String(kWidestValue));
  lblAlpha_->setMinimumSize(lblAlpha_->sizeHint());
  row->addWidget(lblAlpha_);
  return row;
}

QWidget* AlphaValueView::makeStep(int index) {
  const StepButton& look = kSteps.at(static_cast<std::size_t>(index));
  auto* button = new PictureButton(this, QStringLiteral("imgIncDecAlpha(%1)").arg(index),
                                   {look.picture, QLatin1String(look.tooltip), kButtonSide});
  button->setFocusPolicy(Qt::TabFocus);
  button->setAutoRepeat(true);
  connect(button, &PictureButton::clicked, this, [this, step = look.step] { (editor_.*step)(), refresh(); });
  return button;
}

QSlider* AlphaValueView::makeSlider() {
  hsrAlphaValue_ = new QSlider(Qt::Horizontal, this);
  hsrAlphaValue_->setObjectName(QStringLiteral("hsrAlphaValue"));
  hsrAlphaValue_->setAccessibleName(QStringLiteral("Alpha value"));
  setAccessibleRole(hsrAlphaValue_, QAccessible::Slider);
  hsrAlphaValue_->setRange(0, kOpaqueAlpha);
  hsrAlphaValue_->setPageStep(kSliderPage);
  connect(hsrAlphaValue_, &QSlider::valueChanged, this, &AlphaValueView::setValue);
  return hsrAlphaValue_;
}

QHBoxLayout* AlphaValueView::makeBrushRow() {
  auto* row = new QHBoxLayout;
  row->setSpacing(kGap);
  QComboBox* list = addList(row, this, "cboBrushSize", "&Brush:");
  list->setToolTip(QStringLiteral("Side of the brush in pixels; Shift paints a straight line"));
  connect(list, &QComboBox::currentIndexChanged, this, [this](int index) { editor_.setBrush(index); });
  row->addStretch();
  return row;
}

QPushButton* AlphaValueView::makeRestore() {
  auto* button = new QPushButton(QStringLiteral("&Restore to original alpha values"), this);
  button->setObjectName(QStringLiteral("cmdRestoreAlpha"));
  button->setAutoDefault(false);
  connect(button, &QPushButton::clicked, this, &AlphaValueView::restoreRequested);
  return button;
}

void AlphaValueView::setValue(int value) {
  editor_.setValue(value);
  refresh();
}

void AlphaValueView::refresh() {
  cboAlphaValue_->setCurrentIndex(editor_.value());
  hsrAlphaValue_->setValue(editor_.value());
  picAlphaValue_->refresh();
  lblAlpha_->setText(toText(editor_.lblAlpha()));
}

}  // namespace gp
