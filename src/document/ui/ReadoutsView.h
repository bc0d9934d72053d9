// lblDispXY(0..2): the position, the pixel's colour and the region, in one row above the Editing Area.
#pragma once

#include "document/EditState.h"

#include <QWidget>

#include <array>

namespace gp {

class TextCell;

class ReadoutsView : public QWidget {
  Q_OBJECT

 public:
  ReadoutsView(QWidget* parent, const EditState& state);
  void refresh();

 private:
  const EditState& state_;
  std::array<TextCell*, kReadoutCount> lblDispXY_{};
};

}  // namespace gp
