// Sets a flag for the lifetime of this object and then restores its former value, so that uses can be nested.
#pragma once

#include <utility>

namespace gp {

class FlagFor {
 public:
  // The flag must outlive this object.
  explicit FlagFor(bool& flag) : flag_(flag), before_(std::exchange(flag, true)) {}
  ~FlagFor() { flag_ = before_; }
  FlagFor(const FlagFor&) = delete;
  FlagFor& operator=(const FlagFor&) = delete;

 private:
  bool& flag_;
  const bool before_;
};

}  // namespace gp
