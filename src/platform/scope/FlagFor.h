// A flag that is up for as long as a piece of work lasts. It may be nested: the outermost takes it down.
#pragma once

#include <utility>

namespace gp {

class FlagFor {
 public:
  // The flag must outlive this.
  explicit FlagFor(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  ~FlagFor() { flag_ = before_; }
  FlagFor(const FlagFor&) = delete;
  FlagFor& operator=(const FlagFor&) = delete;

 private:
  bool& flag_;
  const bool before_;
};

}  // namespace gp
