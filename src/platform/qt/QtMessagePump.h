// Processes pending events of the desktop while the program works or waits.
#pragma once

#include "platform/ports/MessagePump.h"

namespace gp {

class QtMessagePump final : public MessagePump {
 public:
  void pump() override;
  void wait(int milliseconds) override;
};

}  // namespace gp
