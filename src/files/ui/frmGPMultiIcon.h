// The browser of files with several icons, and the form that adds an icon to one. The form shows the state of a
// MultiIconBrowser and forwards input to it.
#pragma once

#include "files/browser/MultiIconBrowser.h"

#include <QDialog>

class QStackedWidget;

namespace gp {

class BrowserFaceView;
class RepositionView;
class QtDisplay;
class TabbedList;

class frmGPMultiIcon final : public QDialog {
  Q_OBJECT

 public:
  // The objects that the context refers to must outlive the form.
  frmGPMultiIcon(const FilesContext& context, QtDisplay& display, QWidget* parent);

  // Shows the form until it is closed. Does nothing for a file that cannot be read.
  void run();
  // Reads the file and shows the form; false when the file cannot be read.
  bool comeUp();
  // Esc closes the pane for repositioning if it is open, otherwise the form.
  void reject() override;

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void closeEvent(QCloseEvent* event) override;

 private:
  void browserChanged();
  QWidget* makeOtherIcons();
  void makeControls();
  void makeButtonsEqual();
  void refresh();
  void showPane();
  void showOtherSizes(bool shown);
  void resizeOnScreen(int width, int height);

  MultiIconBrowser browser_;
  const MultiIconExchange& exchange_;
  bool unloaded_ = false;
  QStackedWidget* panes_ = nullptr;
  BrowserFaceView* faceView_ = nullptr;
  RepositionView* repositionView_ = nullptr;
  QWidget* fraOtherIcons_ = nullptr;
  TabbedList* lisOtherIcons_ = nullptr;
};

}  // namespace gp
