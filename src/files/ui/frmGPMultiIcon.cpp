#include "files/ui/frmGPMultiIcon.h"

#include "document/ui/QtDisplay.h"
#include "files/ui/BrowserFaceView.h"
#include "files/ui/BrowserLists.h"
#include "files/ui/RepositionView.h"
#include "platform/qt/widgets/CaptionFrame.h"
#include "platform/qt/widgets/PictureButton.h"

#include <QKeyEvent>
#include <QPushButton>
#include <QScreen>
#include <QStackedWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace gp {

frmGPMultiIcon::frmGPMultiIcon(const FilesContext& context, QtDisplay& display, QWidget* parent)
    : QDialog(parent), browser_(context), exchange_(context.multiIcon) {
  setObjectName(QStringLiteral("frmGPMultiIcon"));
  setModal(true);
  display.listen(DisplayPart::ModalForm, this, [this] { browserChanged(); });
  browser_.onUnload = [this] {
    unloaded_ = true;
    done(Accepted);
  };
}

void frmGPMultiIcon::run() {
  if (comeUp()) exec();
}

bool frmGPMultiIcon::comeUp() {
  browser_.activate();
  return !unloaded_;
}

// The first notification comes when the browser has read the file. The form is shown then, before an icon is selected,
// so that messages about the icon appear over the form.
void frmGPMultiIcon::browserChanged() {
  const bool isFirst = !panes_;
  if (isFirst) makeControls();
  refresh();
  if (isFirst) show();
}

void frmGPMultiIcon::reject() {
  if (browser_.showsReposition())
    browser_.cmdRepositionAbort();
  else
    browser_.cmdClose();
}

void frmGPMultiIcon::closeEvent(QCloseEvent*) { browser_.cmdClose(); }

// Enter on a picture activates it, as on a button, and not the default button.
void frmGPMultiIcon::keyPressEvent(QKeyEvent* event) {
  auto* picture = qobject_cast<PictureButton*>(focusWidget());
  if (picture && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter))
    picture->click();
  else
    QDialog::keyPressEvent(event);
}

void frmGPMultiIcon::makeControls() {
  setWindowTitle(QLatin1String(browser_.caption()));
  panes_ = new QStackedWidget(this);
  panes_->addWidget(faceView_ = new BrowserFaceView(panes_, browser_, exchange_));
  panes_->addWidget(repositionView_ = new RepositionView(panes_, browser_));
  auto* rows = new QVBoxLayout(this);
  rows->addWidget(panes_, 1);
  rows->addWidget(fraOtherIcons_ = makeOtherIcons());
  makeButtonsEqual();
  faceView_->setFocus();
}

void frmGPMultiIcon::makeButtonsEqual() {
  const auto buttons = findChildren<QPushButton*>();
  int width = 0;
  for (const QPushButton* button : buttons) width = std::max(width, button->sizeHint().width());
  for (QPushButton* button : buttons) button->setMinimumWidth(width);
}

QWidget* frmGPMultiIcon::makeOtherIcons() {
  auto* frame =
      new CaptionFrame(this, QStringLiteral("fraOtherIcons"), QStringLiteral("Remarks:  Icons of other sizes in file"));
  auto* rows = new QVBoxLayout(frame);
  rows->setContentsMargins(frame->frameMargins());
  lisOtherIcons_ = new TabbedList(frame, QStringLiteral("lisOtherIcons"),
                                  QStringLiteral("Icons of other sizes in file"), kBrowserTabStops);
  lisOtherIcons_->setReadOnly(true);
  // The other list takes the remaining space.
  lisOtherIcons_->setFixedHeight(lisOtherIcons_->minimumSizeHint().height());
  rows->addWidget(lisOtherIcons_);
  frame->setVisible(false);
  return frame;
}

void frmGPMultiIcon::refresh() {
  faceView_->refresh();
  repositionView_->refresh();
  lisOtherIcons_->setItems(browser_.lisOtherIcons());
  showPane();
  showOtherSizes(browser_.otherSizesShown() && !browser_.showsReposition());
}

void frmGPMultiIcon::showPane() {
  QWidget* pane = browser_.showsReposition() ? static_cast<QWidget*>(repositionView_) : faceView_;
  if (panes_->currentWidget() == pane) return;
  panes_->setCurrentWidget(pane);
  pane->setFocus();
}

void frmGPMultiIcon::showOtherSizes(bool shown) {
  const bool wasShown = !fraOtherIcons_->isHidden();
  if (isVisible() && shown == wasShown) return;
  const int heightBefore = height();  // the layout may make the form higher
  fraOtherIcons_->setVisible(shown);
  // The surrounding layouts do not notice changes inside the pane by themselves.
  faceView_->layout()->activate();
  faceView_->updateGeometry();
  panes_->updateGeometry();
  layout()->activate();
  const int width = std::max(shown ? kOtherSizesShownWidth : kOtherSizesHiddenWidth, minimumSizeHint().width());
  const int room = fraOtherIcons_->sizeHint().height() + layout()->spacing();
  if (!isVisible())
    resizeOnScreen(width, sizeHint().height());
  else
    resizeOnScreen(width, shown ? heightBefore + room : heightBefore - room);
}

// Resizes the form as far as the screen has room below and beside it: the controls stay where they are. The desktop
// chooses the first position; the form moves only if its smallest size does not fit there.
void frmGPMultiIcon::resizeOnScreen(int width, int height) {
  const QRect free = screen()->availableGeometry();
  const QSize border = frameGeometry().size() - size();
  if (!isVisible()) {
    resize(std::min(width, free.width() - border.width()), std::min(height, free.height() - border.height()));
    return;
  }
  const QSize room = QSize(free.right() + 1, free.bottom() + 1) - QSize(x(), y()) - border;
  resize(QSize(width, height).boundedTo(room).expandedTo(minimumSizeHint()));
  const QRect frame = frameGeometry();
  const QPoint last = free.bottomRight() - QPoint(frame.width() - 1, frame.height() - 1);
  const QPoint place(std::max(free.left(), std::min(frame.left(), last.x())),
                     std::max(free.top(), std::min(frame.top(), last.y())));
  if (place != frame.topLeft()) move(place);
}

}  // namespace gp
