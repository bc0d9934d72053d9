// What the logic asks of the screen. The views store no state: when a part of the screen changes, they read
// the state of their subsystem again.
#pragma once

#include <string>

namespace gp {

enum class DisplayPart {
  EditingArea,  // size of picDisp, or all of its pixels
  IconsPanel,   // the six containers, their labels, PicIcon
  StatusBar,    // panels and progress
  Readouts,     // lblDispXY
  Tools,        // tool frames, selected tool, picker, brush
  Pointer,      // pointer over the Editing Area, hourglass
  Panel,        // which fraPanel is up
  SidePanel,    // what the side panel shows
  ModalForm,    // what the modal form of files shows
  AniPane,      // the film, buttons and texts of the animated cursor session
  AniTest,      // the picture of the test of its film
  ColorPanel,   // frames, picColorToUse, direct entry
  Commands,     // enabling and ticks of menus and toolbar
  History,      // entries of the history menus
};

class Display {
 public:
  virtual ~Display() = default;
  virtual void changed(DisplayPart part) = 0;
  // Pixels of picDisp changed in a rectangle, in Editing Area pixels; the rest is as it was.
  virtual void repaintEditingArea(int x, int y, int width, int height) = 0;
  // Shows the pop-up menu at the mouse pointer.
  virtual void showPopUpMenu() = 0;
  // Moves the mouse pointer one pixel and back, so that its shape is brought up to date.
  virtual void nudgeMousePointer() = 0;
  // The input focus goes to txbDirectEntryColorValue.
  virtual void focusColorValue() = 0;
  // Shows a short text for some seconds and has it spoken: what a command has done, or why it cannot run, where neither
  // a message box nor the control with the focus says so.
  virtual void announce(const std::string& text) = 0;
};

}  // namespace gp
