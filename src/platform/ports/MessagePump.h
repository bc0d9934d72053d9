// The port through which long operations process pending events.
#pragma once

namespace gp {

class MessagePump {
 public:
  virtual ~MessagePump() = default;
  // Processes all pending events.
  virtual void pump() = 0;
  // Waits for a time and processes events meanwhile.
  virtual void wait(int milliseconds) = 0;
};

}  // namespace gp
