#include "platform/qt/QtTimer.h"

#include <utility>

namespace gp {

QtTimer::QtTimer() {
  timer_.setSingleShot(true);
  timer_.setTimerType(Qt::PreciseTimer);
  QObject::connect(&timer_, &QTimer::timeout, &timer_, [this] {
    // The tick may start the timer again.
    if (const auto tick = std::exchange(tick_, nullptr)) tick();
  });
}

void QtTimer::start(int milliseconds, std::function<void()> tick) {
  tick_ = std::move(tick);
  timer_.start(milliseconds);
}

void QtTimer::stop() {
  timer_.stop();
  tick_ = nullptr;
}

}  // namespace gp
