// Message boxes on the desktop. Works from the moment a QApplication exists, with or without a main form; a box stands
// over the modal window that is up, else over the active one.
#pragma once

#include "platform/ports/MessageBoxes.h"

class QMessageBox;

namespace gp {

class QtMessageBoxes final : public MessageBoxes {
 public:
  BoxAnswer show(const std::string& text, BoxButtons buttons, BoxIcon icon, BoxAnswer suggested) override;

  // Dresses a box without showing it.
  static void prepare(QMessageBox& box, const std::string& text, BoxButtons buttons, BoxIcon icon, BoxAnswer suggested);
};

}  // namespace gp
