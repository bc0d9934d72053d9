// An open file or folder, closed at the end of this object's life.
#pragma once

#include "platform/files/SystemCalls.h"

#include <utility>

namespace gp {

class Descriptor {
 public:
  Descriptor() = default;
  // Takes what an open call returned; negative for a call that failed.
  explicit Descriptor(int number) : number_(number) {}
  Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
  Descriptor& operator=(Descriptor&& other) noexcept {
    std::swap(number_, other.number_);
    return *this;
  }
  ~Descriptor() { close(); }

  bool isOpen() const { return number_ >= 0; }
  int number() const { return number_; }
  // Returns false when bytes that were written may not be in the file; some systems report that as late as here.
  bool close() { return number_ < 0 || systemCalls().close(std::exchange(number_, -1)) == 0; }

 private:
  int number_ = -1;
};

}  // namespace gp
