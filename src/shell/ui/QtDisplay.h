// Tells the views which part of the screen changed. It exists before the form and outlives it; until the views have
// said what they want to hear, it tells nobody.
#pragma once

#include "document/Display.h"

#include <array>
#include <functional>
#include <vector>

namespace gp {

class QtDisplay final : public Display {
 public:
  // What the main form does for those requests that are no mere news.
  struct Requests {
    std::function<void(int x, int y, int width, int height)> repaintEditingArea;
    std::function<void()> showPopUpMenu;
    std::function<void()> nudgeMousePointer;
    std::function<void()> focusColorValue;
  };

  void listen(DisplayPart part, std::function<void()> listener);
  Requests& requests() { return requests_; }
  // Before the form goes: nobody is told any more.
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
