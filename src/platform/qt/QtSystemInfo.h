// Facts about the machine as the desktop reports them. Sizes are in device-independent pixels of the primary screen, as
// for window positions; the depth is rounded up to 4, 8, 16, 24 or 32.
#pragma once

#include "platform/ports/SystemInfo.h"

namespace gp {

class QtSystemInfo final : public SystemInfo {
 public:
  int GetScreenBPP() override;
  int screenWidth() override;
  int screenHeight() override;
  int physicalScreenWidth() override;
  int physicalScreenHeight() override;
  int GetPixelsPerInch() override;
  long long totalMemoryKb() override;
  std::string windowsDirectory() override;
  std::string systemDirectory() override;
  // Ends with a separator.
  std::string tempDirectory() override;
  std::string desktopDirectory() override;
};

}  // namespace gp
