// The Inquiry menu: what the program tells of the Current Icon. It changes nothing of the icon itself.
#pragma once

#include "document/EditState.h"
#include "document/Editor.h"
#include "files/CursorFiles.h"
#include "files/IconForms.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/ports/MessagePump.h"

#include <string>

namespace gp {

class Enquiry {
 public:
  Enquiry(EditState& state, Editor& editor, MessageBoxes& boxes, MessagePump& pump, IconForms& forms,
          CursorFiles& cursors);

  // A click on mnuEnquiryCurrent: 5 the headers of the original file, 9 the icons in it, 11 the hot spot of the
  // original cursor. Says so when there is no icon. Nothing for other indices, and where the record has nothing of the
  // kind.
  void mnuEnquiryCurrent(int index);

 private:
  void showOriginalHeaders();
  void showIconsInFile();
  void revealHotspot();
  bool originalIsThere(const std::string& path);

  EditState& state_;
  Editor& editor_;
  MessageBoxes& boxes_;
  MessagePump& pump_;
  IconForms& forms_;
  CursorFiles& cursors_;
};

}  // namespace gp
