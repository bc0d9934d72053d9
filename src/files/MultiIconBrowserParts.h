// What the source files of MultiIconBrowser share: no other file includes this.
#pragma once

#include "files/MultiIconBrowser.h"

#include <utility>

namespace gp {

// Clicks that the browser's own changes of a selection cause count for nothing as long as this lives.
class MultiIconBrowser::Busy {
 public:
  explicit Busy(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  ~Busy() { flag_ = before_; }
  Busy(const Busy&) = delete;
  Busy& operator=(const Busy&) = delete;

 private:
  bool& flag_;
  const bool before_;
};

}  // namespace gp
