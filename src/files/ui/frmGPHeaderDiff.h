// Compares what an icon file's directory, its bitmap headers and its pixels state, and salvages the file by the
// headers. The form shows the state of a HeaderDiff and forwards input to it.
#pragma once

#include "files/browser/HeaderDiff.h"

#include <QDialog>

#include <array>

class QBoxLayout;
class QPushButton;
class QRadioButton;

namespace gp {

class EntryView;
class QtDisplay;
class TabbedList;
class TextCell;

class frmGPHeaderDiff final : public QDialog {
  Q_OBJECT

 public:
  // The file is that of MultiIconExchange. The objects that the context refers to must outlive the form.
  frmGPHeaderDiff(const FilesContext& context, QtDisplay& display, QWidget* parent);

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  void makeControls();
  QWidget* makeTable();
  void layOut();
  QBoxLayout* makeListColumn();
  QBoxLayout* makeEntryColumn();
  QBoxLayout* makeButtonRow();
  void connectControls();
  void refresh();

  HeaderDiff diff_;
  bool activated_ = false;

  TextCell* lblFileSpec = nullptr;
  TabbedList* lisIcons = nullptr;
  EntryView* lblIconInFile = nullptr;
  std::array<QRadioButton*, 2> optBase{};
  QWidget* fraEnquiry = nullptr;
  std::array<TextCell*, 6> enquiryCells_{};
  QPushButton* cmdSalvage = nullptr;
  QPushButton* cmdExit = nullptr;
};

}  // namespace gp
