// The timer by Qt, precise to about a millisecond.
#pragma once

#include "platform/ports/Timer.h"

#include <QTimer>

namespace gp {

class QtTimer : public Timer {
 public:
  QtTimer();
  void start(int milliseconds, std::function<void()> tick) override;
  void stop() override;

 private:
  QTimer timer_;
  std::function<void()> tick_;
};

}  // namespace gp
