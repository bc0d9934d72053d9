// The icon framed as a button.
#pragma once

#include "document/IconImage.h"

namespace gp {

inline constexpr int kButtonPatterns = 3;

struct ButtonizeSettings {
  int pattern = 0;  // 0 one line, 1 boxed, 2 two tones; others are 0
};

// The icon under its frame, whose pixels are painted and whose four corners are transparent.
IconImage buttonize(const Surface& image, const Surface& mask, const ButtonizeSettings& settings);

}  // namespace gp
