// A loop over the icons of a list that shows its progress, lets events in, and can be stopped at each step. Meanwhile
// the containers are held.
#pragma once

#include "files/FilesContext.h"

#include <chrono>
#include <functional>

namespace gp {

class ListWork {
 public:
  explicit ListWork(const FilesContext& context) : context_(context) {}

  // Runs the steps 0 to count - 1, until one returns false. Returns true when all have run. Not to be nested.
  bool run(int count, const std::function<bool(int)>& step);
  bool isRunning() const { return isRunning_; }
  // Ends the loop before its next step.
  void stop() { isStopped_ = true; }
  void setEventInterval(std::chrono::milliseconds interval) { interval_ = interval; }

 private:
  using Clock = std::chrono::steady_clock;
  // Events are looked for so often, not for each cheap step.
  static constexpr std::chrono::milliseconds kInterval{15};

  bool runSteps(int count, const std::function<bool(int)>& step);
  void showProgress(int percent);
  void letEventsIn();

  FilesContext context_;
  std::chrono::milliseconds interval_ = kInterval;
  Clock::time_point lastEvents_;
  bool isRunning_ = false;
  bool isStopped_ = false;
};

}  // namespace gp
