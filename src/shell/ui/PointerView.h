// The mouse pointer: its shape over the Editing Area, and the hourglass over the whole program during long work.
#pragma once

#include "document/ScreenState.h"

class QWidget;

namespace gp {

class PointerView {
 public:
  // Both must outlive the view.
  PointerView(QWidget& editingArea, const ScreenState& screen) : editingArea_(editingArea), screen_(screen) {}
  // Removes the hourglass.
  ~PointerView();
  PointerView(const PointerView&) = delete;
  PointerView& operator=(const PointerView&) = delete;

  // Shows screen.hourglass and screen.editingPointer.
  void refresh();

 private:
  void showHourglass(bool shown);

  QWidget& editingArea_;
  const ScreenState& screen_;
  bool hourglassShown_ = false;
  int pointerShown_ = kDefaultPointer;
};

}  // namespace gp
