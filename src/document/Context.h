// What every subsystem uses: the shared state, the operations of subsystems to its right, the screen, and the two ports
// that nearly all of them need. All five must outlive the subsystems; a Context can be copied freely.
#pragma once

namespace gp {

class Display;
class Editor;
class MessageBoxes;
class MessagePump;
struct EditState;

struct Context {
  EditState& state;
  Editor& editor;
  Display& display;
  MessageBoxes& boxes;
  MessagePump& pump;
};

}  // namespace gp
