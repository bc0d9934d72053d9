// Notifies the views of changed parts of the screen. It is created before the form and outlives it; until a view
// subscribes, changes are dropped.
#pragma once

#include "document/Display.h"

#include <array>
#include <functional>
#include <vector>

namespace gp {

class QtDisplay final : public Display {
 public:
  // Requests that need an action of the main form, not a refresh.
  struct Requests {
    std::function<void(int x, int y, int width, int height)> repaintEditingArea;
    std::function<void()> showPopUpMenu;
    std::function<void()> nudgeMousePointer;
    std::function<void()> focusColorValue;
  };

  void listen(DisplayPart part, std::function<void()> listener);
  Requests& requests() { return requests_; }
  // Removes all listeners and requests. Must be called before the form is destroyed.
  void forgetAll();

  void changed(DisplayPart part) override;
  void repaintEditingArea(int x, int y, int width, int height) override;
  void showPopUpMenu() override;
  void nudgeMousePointer() override;
  void focusColorValue() override;

 private:
  static constexpr std::size_t kParts = static_cast<std::size_t>(DisplayPart::History) + 1;
  std::array<std::vector<std::function<void()>>, kParts> listeners_;
  Requests requests_;
};

}  // namespace gp
