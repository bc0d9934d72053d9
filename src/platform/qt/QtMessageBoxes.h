// Message boxes on the desktop. They require a QApplication and no main form. The parent of a box is the open modal
// window, otherwise the active window.
#pragma once

#include "platform/ports/MessageBoxes.h"

class QMessageBox;

namespace gp {

class QtMessageBoxes final : public MessageBoxes {
 public:
  BoxAnswer show(const std::string& text, BoxButtons buttons, BoxIcon icon, BoxAnswer suggested) override;

  // Sets up a box without showing it.
  static void prepare(QMessageBox& box, const std::string& text, BoxButtons buttons, BoxIcon icon, BoxAnswer suggested);
};

}  // namespace gp
