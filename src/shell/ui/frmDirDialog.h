// The program's own folder chooser. DirChooser contains its logic; the form shows its state and forwards events.
#pragma once

#include "shell/DirChooser.h"

#include <QDialog>

#include <string>

class QBoxLayout;
class QComboBox;
class QFrame;
class QListWidget;
class QPushButton;

namespace gp {

class FolderTree;
class TextCell;

class frmDirDialog final : public QDialog {
  Q_OBJECT

 public:
  // `pattern` is, for example, "*.ICO" or "*.*". The boxes must outlive the form.
  frmDirDialog(const std::string& pattern, const std::string& startFolder, MessageBoxes& boxes,
               QWidget* parent = nullptr);

  // Shows the form modally over the active window. Returns the chosen folder, empty on Cancel.
  static std::string choose(const std::string& pattern, const std::string& startFolder, MessageBoxes& boxes);

  // The chosen folder after the form was accepted; otherwise empty.
  const std::string& result() const { return gFolderResult; }

 private:
  void makeControls();
  void makeFileControls(const std::string& pattern);
  void layOut();
  QBoxLayout* makeFolderColumn();
  QBoxLayout* makeButtonColumn();
  void connectControls();

  void openFolder(const std::string& folder);
  void showFolder();
  void showFiles();
  void okPressed();
  void setExtended(bool extended);

  DirChooser chooser_;
  MessageBoxes& boxes_;
  std::string gFolderResult;

  QComboBox* DriveListBox1 = nullptr;
  FolderTree* DirListBox1 = nullptr;
  QListWidget* FileListBox1 = nullptr;
  QComboBox* cboFilePattern = nullptr;
  TextCell* lblSelectedDir = nullptr;
  TextCell* lblIconsInDir = nullptr;
  QFrame* Frame1 = nullptr;
  QPushButton* cmdOK = nullptr;
  QPushButton* cmdCancel = nullptr;
  QPushButton* cmdShrink = nullptr;
  QPushButton* cmdExtend = nullptr;
};

}  // namespace gp
