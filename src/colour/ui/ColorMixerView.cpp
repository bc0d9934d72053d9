#include "colour/ui/ColorMixerView.h"

#include "colour/ColorMixer.h"
#include "colour/PaletteFile.h"
#include "colour/ui/MixGradientView.h"
#include "colour/ui/MixSwatch.h"
#include "document/ui/Lists.h"
#include "platform/qt/Accessibility.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/PictureButton.h"
#include "platform/qt/widgets/TextCell.h"

#include <QComboBox>
#include <QHBoxLayout>
#include <QMouseEvent>
#include <QSignalBlocker>
#include <QSlider>
#include <QVBoxLayout>

namespace gp {
namespace {

constexpr int kGap = 6;
constexpr int kButtonSide = 28;
constexpr int kChannelHeight = 24;
constexpr int kSwatchWidth = 28;
constexpr const char* kWidestValue = "000 / DD";
constexpr int kSlack = 2;  // letter widths are not whole pixels
constexpr int kSliderPage = 16;

constexpr std::array<const char*, kMixChannels> kChannelNames = {"Red", "Green", "Blue"};

struct AdjustButton {
  const char* picture;
  const char* tooltip;
};

// Ordered like MixChange.
constexpr std::array<AdjustButton, 3> kAdjustButtons = {
    {{"lighten", "To lighten"}, {"darken", "To darken"}, {"copy-color", "Copy currently selected color"}}};

struct FileButton {
  const char* objectName;
  const char* picture;
  const char* tooltip;
  void (PaletteFile::*run)();
};

constexpr std::array<FileButton, 2> kFileButtons = {
    {{"imgLoadPalette", "load-palette", "Load palette", &PaletteFile::imgLoadPalette},
     {"imgSavePalette", "save-palette", "Save palette", &PaletteFile::imgSavePalette}}};

QString indexed(const char* control, int index) { return QString("%1(%2)").arg(control).arg(index); }

// Tracks the mouse, so that the frame notices the pointer in the gaps between the row's widgets.
QHBoxLayout* makeRow(QWidget* row) {
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  row->setMouseTracking(true);
  return layout;
}

}  // namespace

ColorMixerView::ColorMixerView(QWidget* parent, ColorMixer& mixer, PaletteFile& files)
    : CaptionFrame(parent, "fraColorMixer", "Color Mixer"), mixer_(mixer), files_(files) {
  setMouseTracking(true);
  auto* whole = new QVBoxLayout(this);
  whole->setContentsMargins(frameMargins());
  auto* columns = new QHBoxLayout;
  columns->setSpacing(kGap);
  whole->addLayout(columns);
  whole->addStretch(1);
  auto* controls = new QVBoxLayout;
  controls->setSpacing(kGap);
  for (int channel = 0; channel < kMixChannels; ++channel) controls->addWidget(makeChannel(channel));
  controls->addWidget(makeMixed(), 1);
  controls->addWidget(makeButtons());
  controls->addWidget(makeFileButtons());
  columns->addLayout(controls, 1);
  columns->addWidget(makeGradient());
  refresh();
}

QWidget* ColorMixerView::makeChannel(int channel) {
  const auto i = static_cast<std::size_t>(channel);
  const QString name = kChannelNames.at(i);
  auto* row = new QWidget(this);
  auto* layout = makeRow(row);
  row->setFixedHeight(kChannelHeight);

  auto* slider = HsrRGB_.at(i) = new QSlider(Qt::Horizontal, row);
  slider->setObjectName(indexed("HsrRGB", channel));
  slider->setAccessibleName(name);
  setAccessibleRole(slider, QAccessible::Slider);
  slider->setToolTip(name);
  slider->setRange(0, kMostOfChannel);
  slider->setPageStep(kSliderPage);
  connect(slider, &QSlider::valueChanged, this, [=, this](int value) { mixer_.moveSlider(channel, value), refresh(); });

  PicRGB_.at(i) = new MixSwatch(row, indexed("PicRGB", channel), name + " alone");
  PicRGB_.at(i)->setToolTip(name + " alone");
  PicRGB_.at(i)->setFixedSize(kSwatchWidth, kChannelHeight);
  connect(PicRGB_.at(i), &MixSwatch::clicked, this, [=, this] { mixer_.swatchRelease(channel), refresh(); });

  lblRGB_.at(i) = new TextCell(row, indexed("lblRGB", channel), name + " value");
  lblRGB_.at(i)->setFixedWidth(fontMetrics().horizontalAdvance(kWidestValue) + 2 * TextCell::kMargin + kSlack);

  layout->addWidget(slider, 1);
  layout->addWidget(PicRGB_.at(i));
  layout->addWidget(lblRGB_.at(i));
  return row;
}

MixSwatch* ColorMixerView::makeMixed() {
  PicRGBMix_ = new MixSwatch(this, "PicRGBMix", "Mixed color");
  PicRGBMix_->setToolTip("Dithered Color");
  // Fills the height that the strip leaves, so that both columns have the same height.
  PicRGBMix_->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  connect(PicRGBMix_, &MixSwatch::hovered, this, [this] { PicRGBMix_->setToolTip(toText(mixer_.mixHover())); });
  connect(PicRGBMix_, &MixSwatch::clicked, this, [this] { mixer_.mixRelease(), refresh(); });
  return PicRGBMix_;
}

QWidget* ColorMixerView::makeButtons() {
  auto* row = new QWidget(this);
  auto* layout = makeRow(row);
  for (int index = 0; index < static_cast<int>(kAdjustButtons.size()); ++index) {
    const auto i = static_cast<std::size_t>(index);
    const AdjustButton& look = kAdjustButtons.at(i);
    auto* button = cmdAdjMix_.at(i) =
        new PictureButton(row, indexed("cmdAdjMix", index), {look.picture, look.tooltip, kButtonSide});
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &PictureButton::clicked, this,
            [=, this] { mixer_.cmdAdjMix(static_cast<MixChange>(index)), refresh(); });
    layout->addWidget(button);
  }
  cboIntervalColor_ = makeUnlabelledList(row, "cboIntervalColor", "Interval value for darken/lighten");
  cboIntervalColor_->setToolTip("Interval value for darken/lighten");
  cboIntervalColor_->setFixedHeight(kButtonSide);
  connect(cboIntervalColor_, &QComboBox::currentIndexChanged, this,
          [this](int index) { mixer_.cboIntervalColor(index); });
  layout->addWidget(cboIntervalColor_, 1);
  return row;
}

QWidget* ColorMixerView::makeFileButtons() {
  auto* row = new QWidget(this);
  auto* layout = makeRow(row);
  for (const FileButton& file : kFileButtons) {
    auto* button = new PictureButton(row, file.objectName, {file.picture, file.tooltip, kButtonSide});
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &PictureButton::clicked, this, [this, run = file.run] { (files_.*run)(), refresh(); });
    layout->addWidget(button);
  }
  lblMix_ = new TextCell(row, "lblMix", "Color on the gradient");
  layout->addWidget(lblMix_, 1);
  return row;
}

MixGradientView* ColorMixerView::makeGradient() {
  picMixGradient_ = new MixGradientView(this, mixer_);
  connect(picMixGradient_, &MixGradientView::pressed, this,
          [this](QPoint at) { mixer_.gradientPress(at.x(), at.y()), refresh(); });
  connect(picMixGradient_, &MixGradientView::moved, this,
          [this](QPoint at) { mixer_.gradientMove(at.x(), at.y()), refresh(); });
  connect(picMixGradient_, &MixGradientView::released, this,
          [this](QPoint at) { mixer_.gradientRelease(at.x(), at.y()), refresh(); });
  return picMixGradient_;
}

void ColorMixerView::refresh() {
  for (std::size_t i = 0; i < kMixChannels; ++i) {
    const int channel = static_cast<int>(i);
    const QSignalBlocker quiet(HsrRGB_.at(i));
    HsrRGB_.at(i)->setValue(mixer_.HsrRGB(channel));
    PicRGB_.at(i)->setColor(mixer_.PicRGB(channel));
    lblRGB_.at(i)->setText(toText(mixer_.lblRGB(channel)));
    cmdAdjMix_.at(i)->setEnabled(mixer_.isEnabled(static_cast<MixChange>(channel)));
  }
  PicRGBMix_->setColor(mixer_.PicRGBMix());
  cboIntervalColor_->setCurrentIndex(mixer_.intervalIndex());
  lblMix_->setText(toText(mixer_.lblMix()));
  picMixGradient_->update();
  accessibleValueChanged(picMixGradient_);
}

void ColorMixerView::mouseMoveEvent(QMouseEvent* event) {
  CaptionFrame::mouseMoveEvent(event);
  mixer_.leaveControls();
  refresh();
}

}  // namespace gp
