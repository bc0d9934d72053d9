// Shows the hourglass pointer for the lifetime of this object, then restores the former one, so that uses can be
// nested.
#pragma once

#include "document/Context.h"

namespace gp {

class Hourglass {
 public:
  explicit Hourglass(const Context& context);
  ~Hourglass();
  Hourglass(const Hourglass&) = delete;
  Hourglass& operator=(const Hourglass&) = delete;

 private:
  const Context context_;
  const bool before_;
};

}  // namespace gp
