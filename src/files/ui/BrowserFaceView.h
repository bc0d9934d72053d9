// One face of frmGPMultiIcon, for editing a file or for adding to it: the list of its icons with a preview, the
// selector, and the buttons of a table. It shows a MultiIconBrowser and forwards input.
#pragma once

#include "files/browser/MultiIconBrowser.h"

#include <QWidget>

#include <utility>
#include <vector>

class QBoxLayout;
class QComboBox;
class QGridLayout;
class QLabel;
class QPushButton;

namespace gp {

class EntryView;
class PictureButton;
class TabbedList;
class TextCell;

class BrowserFaceView final : public QWidget {
  Q_OBJECT

 public:
  // The browser must outlive the view and show this face.
  BrowserFaceView(QWidget* parent, MultiIconBrowser& browser, const MultiIconExchange& exchange);

  // Shows the browser's current state.
  void refresh();

 private:
  struct Button;

  QString indexed(const char* control) const;
  QLabel* makeLabel(const QString& name, const char* caption, QWidget* buddy = nullptr);
  void makeControls();
  PictureButton* makeOtherSizes(const char* name, const char* picture, const char* toolTip);
  void makeButtons();
  QGridLayout* makeHeading(const MultiIconExchange& exchange);
  QBoxLayout* makeListColumn();
  QBoxLayout* makeButtonColumn();
  QBoxLayout* makeSelectorRow();
  void connectSelector();
  void showOtherSizes(bool shown);
  void refreshList();
  void fillSelector();
  void refreshSelector();

  MultiIconBrowser& browser_;
  const BrowserFace face_;
  TextCell* path_ = nullptr;
  TabbedList* lisIcons_ = nullptr;
  EntryView* preview_ = nullptr;
  QLabel* selectorLabel_ = nullptr;
  QComboBox* selector_ = nullptr;  // cboContainerRef or cboAddToPosition
  QLabel* footnote_ = nullptr;
  PictureButton* imgShowOtherSizes_ = nullptr;
  PictureButton* imgHideOtherSizes_ = nullptr;
  std::vector<std::pair<QPushButton*, const Button*>> buttons_;
};

}  // namespace gp
