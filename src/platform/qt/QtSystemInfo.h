// The machine as the desktop reports it. Sizes are in device-independent pixels of the primary screen, the measure in
// which windows are placed; the depth is rounded up to 4, 8, 16, 24 or 32.
#pragma once

#include "platform/ports/SystemInfo.h"

namespace gp {

class QtSystemInfo final : public SystemInfo {
 public:
  int GetScreenBPP() override;
  int screenWidth() override;
  int screenHeight() override;
  int GetPixelsPerInch() override;
  long long totalMemoryKb() override;
  std::string windowsDirectory() override;
  std::string systemDirectory() override;
  // With a separator at its end.
  std::string tempDirectory() override;
  std::string desktopDirectory() override;
};

}  // namespace gp
