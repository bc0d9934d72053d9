// The about screen: the picture shown while the program starts, and the modal form with information about the program
// and the machine. Both have the title by which a second instance finds and closes them.
#pragma once

#include <QDialog>

namespace gp {

class MessageBoxes;
class SystemInfo;

class frmGPAbout final : public QDialog {
  Q_OBJECT

 public:
  // The start-up picture, without buttons.
  frmGPAbout();
  // The modal form; the ports must outlive it.
  frmGPAbout(SystemInfo& system, MessageBoxes& boxes, QWidget* parent);

  // Shows the start-up picture non-modally, painted before this returns where the desktop allows it.
  void showAtStart();

 private:
  void addButtons(SystemInfo& system, MessageBoxes& boxes);
};

}  // namespace gp
