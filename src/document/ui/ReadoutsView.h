// lblDispXY(0..3): the position, the pixel's colour, the region and the size of what is drawn, in one row above the
// Editing Area.
#pragma once

#include "document/ScreenState.h"

#include <QWidget>

#include <array>

namespace gp {

class TextCell;

// Returns how a pixel is spoken: one that is "N/A" is transparent.
QString spokenPixel(QString text);

class ReadoutsView : public QWidget {
  Q_OBJECT

 public:
  ReadoutsView(QWidget* parent, const ScreenState& screen);
  void refresh();

 private:
  const ScreenState& screen_;
  std::array<TextCell*, kReadoutCount> lblDispXY_{};
};

}  // namespace gp
