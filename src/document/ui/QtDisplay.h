// Notifies the views of changed parts of the screen. It exists before the main form and outlives it. Until a view
// listens, changes are dropped.
#pragma once

#include "document/Display.h"

#include <QObject>

#include <functional>

namespace gp {

class QtDisplay final : public QObject, public Display {
  Q_OBJECT

 public:
  // Requests that need an action of the main form, not a refresh.
  struct Requests {
    std::function<void(int x, int y, int width, int height)> repaintEditingArea;
    std::function<void()> showPopUpMenu;
    std::function<void()> nudgeMousePointer;
    std::function<void()> focusColorValue;
    std::function<void(const std::string& text)> announce;
  };

  // Calls the listener at each change of the part, for as long as the view lives.
  void listen(DisplayPart part, QObject* view, std::function<void()> listener);
  Requests& requests() { return requests_; }
  // Drops all listeners and requests, before the main form is destroyed.
  void forgetAll();

  void changed(DisplayPart part) override;
  void repaintEditingArea(int x, int y, int width, int height) override;
  void showPopUpMenu() override;
  void nudgeMousePointer() override;
  void focusColorValue() override;
  void announce(const std::string& text) override;

 signals:
  void partChanged(gp::DisplayPart part);

 private:
  Requests requests_;
};

}  // namespace gp
