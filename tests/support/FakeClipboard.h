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

  void hold(const Surface& picture) { held = ClipboardImage{picture.width(), picture.height(), picture}; }
  bool hasImage() override { return held.has_value(); }
  bool getImage(ClipboardImage& image, int limit) override {
    largestLimit = std::max(largestLimit, limit);
    if (!held || isWithdrawn) return false;
    image = *held;
    return true;
  }
  bool setImage(const Surface& picture) override {
    hold(picture);
    return true;
  }
  void clear() override {
    ++clears;
    held.reset();
  }
};

}  // namespace gp::test
