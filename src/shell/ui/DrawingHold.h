// While the Icons List is being drawn, keeps mouse and keys from the main form. Esc stops the drawing. Disabling the
// form instead would flicker and move the focus.
#pragma once

#include <QObject>

class QWindow;

namespace gp {

class Shell;

class DrawingHold final : public QObject {
  Q_OBJECT

 public:
  // The window of the main form owns this object. The shell must outlive it.
  DrawingHold(QWindow& window, Shell& shell);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  Shell& shell_;
};

}  // namespace gp
