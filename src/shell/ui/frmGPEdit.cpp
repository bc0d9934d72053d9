#include "shell/ui/frmGPEdit.h"

#include "animation/ui/AniPane.h"
#include "document/ui/CurrentIconView.h"
#include "document/ui/EditingAreaView.h"
#include "document/ui/FileDrops.h"
#include "document/ui/IconsPanelView.h"
#include "document/ui/QtDisplay.h"
#include "document/ui/ReadoutsView.h"
#include "document/ui/StatusBarView.h"
#include "document/ui/ZoomKeys.h"
#include "drawing/ui/ShiftPad.h"
#include "drawing/ui/ToolBox.h"
#include "platform/qt/Accessibility.h"
#include "platform/qt/PathText.h"
#include "platform/qt/Pictures.h"
#include "shell/FormPlacement.h"
#include "shell/Shell.h"
#include "shell/ui/AniPaneEvents.h"
#include "shell/ui/CommandMenus.h"
#include "shell/ui/DrawingHold.h"
#include "shell/ui/EditingAreaEvents.h"
#include "shell/ui/FormTitle.h"
#include "shell/ui/MenuBar.h"
#include "shell/ui/PanelStack.h"
#include "shell/ui/PointerView.h"
#include "shell/ui/ToolKeys.h"
#include "shell/ui/ToolbarView.h"

#include <QCloseEvent>
#include <QCursor>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QTimer>
#include <QVBoxLayout>

namespace gp {
namespace {

constexpr int kEdge = 3;         // around and between the columns, pixels
constexpr int kEraseRegion = 5;  // index of mnuEditSub
constexpr int kToolColumnWidth = ShiftPad::kSide;

int pixelsOf(int twips) { return twips / kTwipsPerPixel; }
int twipsOf(int pixels) { return pixels * kTwipsPerPixel; }

}  // namespace

frmGPEdit::frmGPEdit(Shell& shell, QtDisplay& display, std::string commandLine)
    : shell_(shell), display_(display), commandLine_(std::move(commandLine)), commandsTimer_(new QTimer(this)) {
  setObjectName("frmGPEdit");
  setWindowIcon(Pictures::icon("glimmerpane"));

  auto* whole = new QWidget(this);
  auto* rows = new QVBoxLayout(whole);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(toolbar_ = new ToolbarView(whole, shell_));
  rows->addWidget(makeMiddle(whole), 1);
  rows->addWidget(statusBar_ = new StatusBarView(whole, shell_.screen()));
  setCentralWidget(whole);
  auto* bar = new MenuBar(this);
  setMenuBar(bar);
  menus_ = new CommandMenus(this, bar, shell_);

  connectEditingArea();
  connectIconsPanel();
  connectToolBox();
  const auto focusEditingArea = [this] { room_->view().setFocus(Qt::OtherFocusReason); };
  connect(panels_, &PanelStack::focusGivenBack, this, focusEditingArea);
  connect(aniPane_, &AniPane::focusGivenBack, this, focusEditingArea);
  connect(menus_, &CommandMenus::commandRan, this, &frmGPEdit::refreshCommandsSoon);
  commandsTimer_->setSingleShot(true);
  connect(commandsTimer_, &QTimer::timeout, this, &frmGPEdit::refreshCommands);
  pointer_ = std::make_unique<PointerView>(room_->view(), shell_.screen());
  listen();
  setRequests();
  refreshCommands();
  room_->view().setFocus(Qt::OtherFocusReason);
  shell_.attach(this, this, this);
}

frmGPEdit::~frmGPEdit() {
  shell_.attach(nullptr, nullptr, nullptr);
  display_.forgetAll();
}

QWidget* frmGPEdit::makeMiddle(QWidget* parent) {
  auto* middle = new QWidget(parent);
  auto* columns = new QHBoxLayout(middle);
  columns->setContentsMargins(kEdge, kEdge, kEdge, kEdge);
  columns->setSpacing(kEdge);
  columns->addWidget(iconsPanel_ = new IconsPanelView(middle, shell_.state(), shell_.document().iconsPanel));
  columns->addWidget(makeToolColumn(middle));
  columns->addWidget(makeEditingColumn(middle), 1);
  columns->addWidget(panels_ = new PanelStack(middle, shell_, display_));
  aniPane_ = makeAniPane(panels_, shell_, display_);
  return middle;
}

QWidget* frmGPEdit::makeToolColumn(QWidget* parent) {
  auto* column = new QWidget(parent);
  column->setObjectName("fraTools(0)");
  column->setFixedWidth(kToolColumnWidth);
  auto* rows = new QVBoxLayout(column);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(kEdge);
  rows->addWidget(toolBox_ = new ToolBox(column, shell_.screen(), shell_.drawing().tools, shell_.colour().selection));
  rows->addWidget(shiftPad_ = new ShiftPad(column, shell_.screen(), shell_.drawing().tools, shell_.drawing().shift), 0,
                  Qt::AlignHCenter);
  auto* label = new QLabel("1:1", column);
  label->setObjectName("lblIcon");
  hideFromAccessibility(label);  // picIcon says what it is
  label->setAlignment(Qt::AlignCenter);
  rows->addWidget(lblIcon_ = label);
  rows->addWidget(picIcon_ = new CurrentIconView(column, shell_.state()), 0, Qt::AlignHCenter);
  rows->addStretch(1);
  return column;
}

QWidget* frmGPEdit::makeEditingColumn(QWidget* parent) {
  auto* column = new QWidget(parent);
  auto* rows = new QVBoxLayout(column);
  rows->setContentsMargins(0, 0, 0, 0);
  rows->setSpacing(0);
  rows->addWidget(readouts_ = new ReadoutsView(column, shell_.screen()));
  rows->addWidget(room_ = new EditingAreaRoom(column, shell_.state()), 1);
  return column;
}

void frmGPEdit::connectEditingArea() {
  EditingAreaView& view = room_->view();
  connectTools(view, shell_);
  addZoomKeys(this, [this](ZoomStep step) { room_->zoom(step); });
  connect(room_, &EditingAreaRoom::zoomRequested, this,
          [this](ZoomStep step) { shell_.guarded("picDisp_Zoom", [&] { shell_.zoom(step); }); });
  connect(&view, &EditingAreaView::popUpRequested, this, &frmGPEdit::popUp);
  connect(room_, &EditingAreaRoom::resized, this, &frmGPEdit::resizeRoom);
  IconsPanel& icons = shell_.document().iconsPanel;
  const auto drop = [this, &icons](const std::vector<std::string>& files) {
    shell_.guarded("picDisp_OLEDragDrop", [&] { icons.AreaDrop(files); });
  };
  connect(new FileDrops(room_->viewport(), icons), &FileDrops::dropped, this, drop, Qt::QueuedConnection);
}

void frmGPEdit::connectIconsPanel() {
  connect(iconsPanel_, &IconsPanelView::containerChosen, this, [this](int container) {
    shell_.guarded("picPanelIcon_Click", [&] { shell_.document().iconsPanel.SwitchContainer(container); });
  });
  connect(iconsPanel_, &IconsPanelView::containerRightClicked, this, [this](int container) {
    shell_.guarded("picPanelIcon_MouseUp", [&] { shell_.document().iconsPanel.PanelRightClick(container); });
  });
  connect(iconsPanel_, &IconsPanelView::updateRequested, this, [this] {
    shell_.guarded("imgUpdIconsPanel_Click", [&] { shell_.document().iconsPanel.updateFromCurrent(); });
  });
  // Queued, so that the file manager need not wait for questions about the file.
  connect(
      iconsPanel_, &IconsPanelView::filesDropped, this,
      [this](int container, const std::vector<std::string>& files) {
        shell_.guarded("picPanelIcon_OLEDragDrop", [&] { shell_.document().iconsPanel.PanelDrop(container, files); });
      },
      Qt::QueuedConnection);
}

void frmGPEdit::connectToolBox() {
  showToolKeys(*toolBox_, *shiftPad_);
  connect(shiftPad_, &ShiftPad::toolChosen, this, &frmGPEdit::chooseTool);
  connect(toolBox_, &ToolBox::toolChosen, this, &frmGPEdit::chooseTool);
  connect(toolBox_, &ToolBox::colorPickerChosen, this, [this] {
    shell_.guarded("imgColorPicker_Click", [&] { shell_.chooseColorPicker(); });
    toolBox_->refresh();
  });
  connect(toolBox_, &ToolBox::clearAllChosen, this,
          [this] { shell_.guarded("imgClearAllTools_Click", [&] { shell_.drawing().tools.imgClearAllTools(); }); });
  connect(shiftPad_, &ShiftPad::directionReleased, this, [this](ShiftCell cell) {
    shell_.guarded("imgShiftDir_MouseUp", [&] { shell_.shiftTowards(cell); });
    shiftPad_->refresh();
  });
}

void frmGPEdit::chooseTool(int tool) {
  shell_.guarded("imgTool_Click", [&] { shell_.chooseTool(toolRow(tool).index); });
  toolBox_->refresh();
  shiftPad_->refresh();
}

void frmGPEdit::listen() {
  display_.listen(DisplayPart::EditingArea, this, [this] { room_->refresh(), refreshCurrentIcon(); });
  display_.listen(DisplayPart::IconsPanel, this, [this] { iconsPanel_->refresh(), refreshCurrentIcon(); });
  display_.listen(DisplayPart::StatusBar, this, [this] { statusBar_->refresh(); });
  display_.listen(DisplayPart::Readouts, this, [this] { readouts_->refresh(); });
  display_.listen(DisplayPart::Tools, this, [this] { toolBox_->refresh(), shiftPad_->refresh(); });
  display_.listen(DisplayPart::Pointer, this, [this] { pointer_->refresh(); });
  display_.listen(DisplayPart::Panel, this, [this] { panels_->showPanel(shell_.screen().mActivePanel); });
  display_.listen(DisplayPart::Commands, this, [this] { refreshCommandsSoon(); });
  display_.listen(DisplayPart::History, this, [this] { refreshCommandsSoon(); });
}

void frmGPEdit::setRequests() {
  QtDisplay::Requests& requests = display_.requests();
  requests.repaintEditingArea = [this](int x, int y, int width, int height) {
    room_->view().refreshPart(x, y, width, height);
    picIcon_->update();
  };
  requests.announce = [this](const std::string& text) { statusBar_->announce(toText(text)); };
  requests.showPopUpMenu = [this] { popUp(QCursor::pos()); };
  requests.nudgeMousePointer = [] {
    const QPoint at = QCursor::pos();
    QCursor::setPos(at.x() < 1 ? at.x() + 1 : at.x() - 1, at.y() < 1 ? at.y() + 1 : at.y() - 1);
    QCursor::setPos(at);
  };
}

// A stroke reports changed commands at every step: they are refreshed once, after pending events.
void frmGPEdit::refreshCommandsSoon() { commandsTimer_->start(0); }

void frmGPEdit::refreshCommands() {
  menus_->refresh();
  toolbar_->refresh();
  showTitle(*this, shell_.state());
}

void frmGPEdit::refreshCurrentIcon() {
  const QString tooltip = toText(shell_.colour().selection.picIconTooltip());
  for (QWidget* shown : {static_cast<QWidget*>(picIcon_), lblIcon_})
    if (shown->toolTip() != tooltip) shown->setToolTip(tooltip);
  picIcon_->update();
}

void frmGPEdit::resizeRoom(const QSize& client) {
  if (!isMinimized()) shell_.formResize(client.width(), client.height());
}

void frmGPEdit::popUp(const QPoint& at) { menus_->popUpMenu()->popup(at); }

FormPlace frmGPEdit::place() const {
  const bool maximized = isMaximized();
  const QRect normal = maximized ? normalGeometry() : geometry();
  const QPoint corner = maximized ? normal.topLeft() : pos();
  return {twipsOf(corner.x()),      twipsOf(corner.y()), twipsOf(normal.width()),
          twipsOf(normal.height()), maximized,           isMinimized()};
}

void frmGPEdit::setPlace(const FormPlace& place) {
  // With a large font the controls need more.
  setMinimumSize(QSize(pixelsOf(kFormWidth), pixelsOf(kFormHeight)).expandedTo(minimumSizeHint()));
  move(pixelsOf(place.left), pixelsOf(place.top));
  resize(pixelsOf(place.width), pixelsOf(place.height));
}

void frmGPEdit::maximize() { setWindowState(windowState() | Qt::WindowMaximized); }

void frmGPEdit::unload() { close(); }

void frmGPEdit::closeEvent(QCloseEvent* event) { event->setAccepted(shell_.queryUnload()); }

// Handles keys that no control has handled.
void frmGPEdit::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape)
    shell_.guarded("Form_KeyDown", [this] { shell_.escapeKey(); });
  else if (event->key() == Qt::Key_Delete)
    shell_.run(*findCommand("mnuEditSub", kEraseRegion));
  else
    QMainWindow::keyPressEvent(event);
}

bool frmGPEdit::event(QEvent* event) {
  const bool handled = QMainWindow::event(event);
  // Settings and files are read only after the form has been painted.
  if (event->type() == QEvent::Paint && !activated_) {
    activated_ = true;
    QTimer::singleShot(0, this, &frmGPEdit::activate);
  }
  return handled;
}

void frmGPEdit::activate() {
  new DrawingHold(*windowHandle(), shell_);
  shell_.formActivate(commandLine_);
  refreshCommands();
}

}  // namespace gp
