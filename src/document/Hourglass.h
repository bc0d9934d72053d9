// The hourglass pointer for as long as a piece of work lasts. It may be nested: the pointer returns with the outermost.
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
