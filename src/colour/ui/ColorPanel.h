// fraPanel(0), the colour panel: current colour, screen colour, brush, and one of the two charts or the direct entry.
// All frames have fixed positions, so changing the chart moves nothing.
#pragma once

#include <QWidget>

#include <vector>

class QAbstractButton;
class QComboBox;
class QStackedLayout;

namespace gp {

class ColorChartView;
class ColorMixer;
class ColorMixerView;
class ColorSelection;
class DirectEntryView;
class PaletteFile;
enum class ChartKind;
struct EditState;

class ColorPanel : public QWidget {
  Q_OBJECT

 public:
  ColorPanel(QWidget* parent, const EditState& state, ColorSelection& colors, ColorMixer& mixer, PaletteFile& palette);

  // Updates the frames, the current colour, the direct entry and the brush.
  void refresh();
  void focusColorValue();

 signals:
  void brushChosen(int index);

 private:
  QWidget* makeTopRow();
  QWidget* makeBrushFrame();
  QWidget* makeColorFrame();
  QWidget* makeScreenColorFrame();
  QWidget* makeChartFrame(ChartKind chart);
  QWidget* makeButtonRow();
  void showMixer(bool shown);

  const EditState& state_;
  ColorSelection& colors_;
  ColorMixer& mixer_;
  PaletteFile& palette_;
  QComboBox* cboBrushSize_ = nullptr;
  QAbstractButton* picColorToUse_ = nullptr;
  QStackedLayout* frames_ = nullptr;
  std::vector<ColorChartView*> charts_;
  DirectEntryView* frameDirect_ = nullptr;
  QWidget* mixerPlace_ = nullptr;
  ColorMixerView* fraColorMixer_ = nullptr;  // created when it is first shown
};

}  // namespace gp
