// The about screen: the picture that stands while the program starts, and the modal form that tells about program and
// machine. Both have the title by which a second instance finds and closes them.
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
  // The form; the ports must outlive it.
  frmGPAbout(SystemInfo& system, MessageBoxes& boxes, QWidget* parent);

  // Shows the start-up picture without a modal state, painted before this returns where the desktop allows it.
  void showAtStart();

 private:
  void addButtons(SystemInfo& system, MessageBoxes& boxes);
};

}  // namespace gp
