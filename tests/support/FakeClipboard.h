// A clipboard inside this process. Its content can be withdrawn, or claim any size.
#pragma once

#include "platform/ports/Clipboard.h"

#include <algorithm>
#include <optional>

namespace gp::test {

class FakeClipboard : public Clipboard {
 public:
  std::optional<ClipboardImage> held;
  bool isWithdrawn = false;
  int clears = 0, largestLimit = 0;

  void hold(const Surface& picture, const Surface& alpha = Surface()) {
    const Surface colors = alpha.width() > 0 ? picture : Surface();
    held = ClipboardImage{picture.width(), picture.height(), picture, colors, alpha};
  }
  bool hasImage() override { return held.has_value(); }
  bool getImage(ClipboardImage& image, int limit) override {
    largestLimit = std::max(largestLimit, limit);
    if (!held || isWithdrawn) return false;
    image = *held;
    return true;
  }
  bool setImage(const Surface& picture, const Surface& alpha) override {
    hold(picture, alpha);
    return true;
  }
  void clear() override {
    ++clears;
    held.reset();
  }
};

}  // namespace gp::test
