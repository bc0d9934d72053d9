// A timer whose ticks come when the test says so.
#pragma once

#include "platform/ports/Timer.h"

#include <utility>

namespace gp::test {

class FakeTimer : public Timer {
 public:
  int milliseconds = 0;  // of the last start
  int stops = 0;

  void start(int interval, std::function<void()> tick) override { milliseconds = interval, tick_ = std::move(tick); }
  void stop() override { ++stops, tick_ = nullptr; }
  bool isRunning() const { return tick_ != nullptr; }
  // The time is over. Does nothing when the timer is not running.
  void tick() {
    if (const auto due = std::exchange(tick_, nullptr)) due();
  }

 private:
  std::function<void()> tick_;
};

}  // namespace gp::test
