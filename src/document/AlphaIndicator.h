// The "Alpha" indicator of the status bar, which flashes when an icon with an alpha channel is shown.
#pragma once

namespace gp {

class Display;
class MessagePump;
struct EditState;

// Flashes the indicator twice and leaves it shown. Takes 400 ms and processes events meanwhile.
void flashAlphaIndicator(EditState& state, Display& display, MessagePump& pump);

}  // namespace gp
