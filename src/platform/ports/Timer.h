// The port for a timer on the program's thread.
#pragma once

#include <functional>

namespace gp {

class Timer {
 public:
  virtual ~Timer() = default;
  // Calls `tick` once after that many milliseconds, during a later processing of events. Replaces a tick that has not
  // come yet.
  virtual void start(int milliseconds, std::function<void()> tick) = 0;
  // No tick comes until the next start.
  virtual void stop() = 0;
};

}  // namespace gp
