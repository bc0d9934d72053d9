// The "Alpha" indicator of the status bar, which flashes when an icon with an alpha channel is shown.
#pragma once

namespace gp {

class Display;
class MessagePump;
struct EditState;

// Flashes twice and ends shown. Pumps messages while it waits, for 400 ms in all.
void flashAlphaIndicator(EditState& state, Display& display, MessagePump& pump);

}  // namespace gp
