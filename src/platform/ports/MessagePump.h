// The port through which long work lets pending events through.
#pragma once

namespace gp {

class MessagePump {
 public:
  virtual ~MessagePump() = default;
  // Handles all pending events.
  virtual void pump() = 0;
  // Waits, pumping all the while.
  virtual void wait(int milliseconds) = 0;
};

}  // namespace gp
