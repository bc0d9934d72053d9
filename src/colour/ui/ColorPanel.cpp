#include "colour/ui/ColorPanel.h"

#include "colour/ColorSelection.h"
#include "colour/ui/ColorChartView.h"
#include "colour/ui/ColorMixerView.h"
#include "colour/ui/DirectEntryView.h"
#include "document/EditState.h"
#include "document/ui/Lists.h"
#include "document/ui/SurfacePainting.h"
#include "platform/qt/Accessibility.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/CaptionFrame.h"
#include "platform/qt/widgets/PictureButton.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QStackedLayout>
#include <QVBoxLayout>

#include <array>

namespace gp {
namespace {

constexpr int kFrameGap = 8;
constexpr int kButtonSide = 28;
constexpr int kSwatchWidth = 64;
constexpr int kSwatchHeight = 28;
constexpr int kChartWidth = 240;
constexpr int kChartHeight = 90;

// Captions of fraofColorPanel, by index.
constexpr std::array<const char*, 6> kFrameCaptions = {
    "Brush", "S.Color", "Color", "16-Color Palette", "256-Color Palette", "Direct entry of color value"};
constexpr int kBrushFrame = 0;
constexpr int kScreenColorFrame = 1;
constexpr int kColorFrame = 2;

QString frameName(int index) { return QString("fraofColorPanel(%1)").arg(index); }

CaptionFrame* makeFrame(QWidget* parent, int index) {
  return new CaptionFrame(parent, frameName(index), kFrameCaptions.at(static_cast<std::size_t>(index)));
}

// Puts a widget into a frame and returns the frame.
CaptionFrame* framed(CaptionFrame* frame, QWidget* content) {
  auto* layout = new QHBoxLayout(frame);
  layout->setContentsMargins(frame->frameMargins());
  layout->addWidget(content);
  return frame;
}

struct ChartButton {
  const char* objectName;
  const char* picture;
  const char* tooltip;
  void (ColorSelection::*run)();
};

constexpr std::array<ChartButton, 5> kChartButtons = {{
    {"imgGet16ColorChart", "chart-16", "Show 16-color palette", &ColorSelection::imgGet16ColorChart},
    {"imgGet256ColorChart", "chart-256", "Show 256-color palette", &ColorSelection::imgGet256ColorChart},
    {"imgGetDirectEntryColor", "direct-entry", "Type a color value", &ColorSelection::imgGetDirectEntryColor},
    {"imgReturnTo256ColorChart", "return-256", "Return to 256-color palette",
     &ColorSelection::imgReturnTo256ColorChart},
    {"imgPopColorChart", "color-dialog", "Select color from color dialog", &ColorSelection::imgPopColorChart},
}};

// picColorToUse: a button that shows only its colour.
class ColorSwatch : public QAbstractButton {
 public:
  ColorSwatch(QWidget* parent, const Color& shown) : QAbstractButton(parent), shown_(shown) {
    setObjectName("picColorToUse");
    setAccessibleName("Color to use");
    setToolTip("Color to use");
    setFixedHeight(kSwatchHeight);
    setMinimumWidth(kSwatchWidth);
    setFocusPolicy(Qt::TabFocus);
  }

 protected:
  void paintEvent(QPaintEvent*) override {
    DevicePainter painter(this);
    const int line = hasFocus() ? 2 : 1;
    const QRect whole = painter.toDevice(rect());
    painter.fillRect(whole, palette().color(hasFocus() ? QPalette::Highlight : QPalette::WindowText));
    painter.fillRect(whole.adjusted(line, line, -line, -line), QColor(toRgb(shown_)));
  }
  void keyPressEvent(QKeyEvent* event) override {
    if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
      click();
    else
      QAbstractButton::keyPressEvent(event);
  }

 private:
  const Color& shown_;
};

}  // namespace

ColorPanel::ColorPanel(QWidget* parent, const EditState& state, ColorSelection& colors, ColorMixer& mixer,
                       PaletteFile& palette)
    : QWidget(parent), state_(state), colors_(colors), mixer_(mixer), palette_(palette) {
  setObjectName("fraPanel(0)");
  makeGroup(this, "Color panel");
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(kFrameGap);
  column->addWidget(makeTopRow());

  auto* place = new QWidget(this);
  frames_ = new QStackedLayout(place);
  frameDirect_ =
      new DirectEntryView(place, frameName(static_cast<int>(ColorFrame::DirectEntry)), kFrameCaptions.back(), colors_);
  // Ordered like ColorFrame.
  frames_->addWidget(makeChartFrame(ChartKind::Chart16));
  frames_->addWidget(makeChartFrame(ChartKind::Chart256));
  frames_->addWidget(frameDirect_);
  column->addWidget(place);
  column->addWidget(makeButtonRow());

  mixerPlace_ = new QWidget(this);
  auto* mixerColumn = new QVBoxLayout(mixerPlace_);
  mixerColumn->setContentsMargins(0, 0, 0, 0);
  column->addWidget(mixerPlace_, 1);
  refresh();
}

QWidget* ColorPanel::makeTopRow() {
  auto* top = new QWidget(this);
  auto* row = new QHBoxLayout(top);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kFrameGap);
  row->addWidget(makeColorFrame(), 1);
  row->addWidget(makeScreenColorFrame());
  row->addWidget(makeBrushFrame());
  return top;
}

QWidget* ColorPanel::makeColorFrame() {
  CaptionFrame* frame = makeFrame(this, kColorFrame);
  picColorToUse_ = new ColorSwatch(frame, state_.mCurrentColor);
  connect(picColorToUse_, &QAbstractButton::clicked, this, [this] { colors_.showCurrentColor(); });
  return framed(frame, picColorToUse_);
}

QWidget* ColorPanel::makeScreenColorFrame() {
  CaptionFrame* frame = makeFrame(this, kScreenColorFrame);
  frame->setAccessibleName("Screen color");
  auto* button = new PictureButton(frame, "imgScreenColor", {"screen-color", "Screen Color", kSwatchHeight});
  // Disabled: there is no copy of the screen from which it could take a colour.
  button->setEnabled(false);
  button->setFocusPolicy(Qt::TabFocus);
  return framed(frame, button);
}

QWidget* ColorPanel::makeBrushFrame() {
  CaptionFrame* frame = makeFrame(this, kBrushFrame);
  cboBrushSize_ = makeUnlabelledList(frame, "cboBrushSize", "Brush");
  cboBrushSize_->setFixedHeight(kSwatchHeight);
  connect(cboBrushSize_, &QComboBox::activated, this, &ColorPanel::brushChosen);
  return framed(frame, cboBrushSize_);
}

QWidget* ColorPanel::makeChartFrame(ChartKind chart) {
  const ColorFrame index = chart == ChartKind::Chart16 ? ColorFrame::Chart16 : ColorFrame::Chart256;
  CaptionFrame* frame = makeFrame(this, static_cast<int>(index));
  frame->setAccessibleName("Palette");  // its only control has the caption as name
  auto* view = new ColorChartView(frame, chart);
  view->setFixedSize(kChartWidth, kChartHeight);
  connect(view, &ColorChartView::hovered, this,
          [=, this](QPointF at) { view->setToolTip(toText(colors_.chartHover(chart, at.x(), at.y()))); });
  connect(view, &ColorChartView::released, this,
          [=, this](QPointF at) { colors_.chartRelease(chart, at.x(), at.y()); });
  return framed(frame, view);
}

QWidget* ColorPanel::makeButtonRow() {
  auto* buttons = new QWidget(this);
  auto* row = new QHBoxLayout(buttons);
  row->setContentsMargins(0, 0, 0, 0);
  row->setSpacing(kFrameGap);
  for (const ChartButton& chart : kChartButtons) {
    auto* button = new PictureButton(buttons, chart.objectName, {chart.picture, chart.tooltip, kButtonSide});
    button->setFocusPolicy(Qt::TabFocus);
    connect(button, &PictureButton::clicked, this, [this, run = chart.run] { (colors_.*run)(); });
    row->addWidget(button);
  }
  row->addStretch(1);
  return buttons;
}

void ColorPanel::refresh() {
  const ScreenState& screen = state_.screen;
  frames_->setCurrentIndex(static_cast<int>(screen.colorFrame) - static_cast<int>(ColorFrame::Chart16));
  frameDirect_->refresh();
  showMixer(screen.fraColorMixerVisible);
  cboBrushSize_->setCurrentIndex(screen.brushIndex);
  const Color color = state_.mCurrentColor;
  setDescription(picColorToUse_, QString("RGB: %1, %2, %3").arg(redOf(color)).arg(greenOf(color)).arg(blueOf(color)));
  picColorToUse_->update();
}

void ColorPanel::showMixer(bool shown) {
  if (shown && !fraColorMixer_) {
    fraColorMixer_ = new ColorMixerView(mixerPlace_, mixer_, palette_);
    auto* column = static_cast<QVBoxLayout*>(mixerPlace_->layout());
    column->addWidget(fraColorMixer_);
    column->addStretch(1);
  }
  if (!fraColorMixer_) return;
  fraColorMixer_->setVisible(shown);
  if (shown) fraColorMixer_->refresh();
}

void ColorPanel::focusColorValue() { frameDirect_->focusValue(); }

}  // namespace gp
