#include "shell/ui/PanelStack.h"

#include "colour/ui/ColorPanel.h"
#include "document/ScreenState.h"
#include "document/ui/QtDisplay.h"
#include "drawing/ui/RotatePanelView.h"
#include "effects/ui/EffectPanelView.h"
#include "effects/ui/EffectViews.h"
#include "extraction/ui/IconsListView.h"
#include "extraction/ui/SearchPanelView.h"
#include "files/ui/CursorPanelView.h"
#include "output/ui/PreviewPanelView.h"
#include "shell/PanelTable.h"
#include "shell/Shell.h"

#include <QStackedLayout>

#include <algorithm>
#include <array>

namespace gp {
namespace {

// The width for small fonts, pixels, and for large ones, in lines of text.
constexpr int kLeastWidth = 264;
constexpr int kWidthInLines = 17;

QWidget* makeColorPanel(QWidget* parent, Shell& shell, QtDisplay& display) {
  auto* panel =
      new ColorPanel(parent, shell.state(), shell.colour().selection, shell.colour().mixer, shell.colour().paletteFile);
  QObject::connect(panel, &ColorPanel::brushChosen, panel,
                   [&shell](int index) { shell.drawing().tools.setBrush(index); });
  for (const DisplayPart part : {DisplayPart::ColorPanel, DisplayPart::Tools})
    display.listen(part, panel, [panel] { panel->refresh(); });
  display.requests().focusColorValue = [panel] { panel->focusColorValue(); };
  return panel;
}

QWidget* makeRotatePanel(QWidget* parent, Shell& shell, QtDisplay& display) {
  auto* panel = new RotatePanelView(parent, shell.drawing().rotatePanel);
  display.listen(DisplayPart::IconsPanel, panel, [panel] { panel->follow(); });
  display.listen(DisplayPart::SidePanel, panel, [panel] { panel->refresh(); });
  return panel;
}

QWidget* makeCursorPanel(QWidget* parent, Shell& shell, QtDisplay& display) {
  auto* panel = new CursorPanelView(parent, shell.files().cursorFiles);
  QObject::connect(panel, &CursorPanelView::showHotspotRequested, panel, [&shell] {
    shell.guarded("cmdShowHotspot_Click", [&shell] { shell.files().cursorFiles.showHotspot(); });
  });
  for (const DisplayPart part : {DisplayPart::IconsPanel, DisplayPart::SidePanel})
    display.listen(part, panel, [panel] { panel->refresh(); });
  return panel;
}

QWidget* makePreviewPanel(QWidget* parent, Shell& shell, QtDisplay& display) {
  PreviewPanel& preview = shell.output().previewPanel;
  auto* panel = new PreviewPanelView(parent, preview);
  QObject::connect(panel, &PreviewPanelView::editAlphaRequested, panel, [&shell, &preview] {
    shell.guarded("cmdEditAlphaChannel_Click", [&preview] { preview.editAlphaChannel(); });
  });
  display.listen(DisplayPart::IconsPanel, panel, [panel] { panel->follow(); });
  display.listen(DisplayPart::SidePanel, panel, [panel] { panel->refresh(); });
  return panel;
}

QWidget* makeIconsList(QWidget* parent, Shell& shell, QtDisplay& display) {
  const auto guarded = [&shell](const char* event, const std::function<void()>& handler) {
    shell.guarded(event, handler);
  };
  auto* panel = new IconsListView(parent, {shell.extraction().list, guarded});
  display.listen(DisplayPart::SidePanel, panel, [panel] { panel->refresh(); });
  return panel;
}

QWidget* makeSearchPanel(QWidget* parent, Shell& shell, QtDisplay& display) {
  auto* panel = new SearchPanelView(
      parent, shell.extraction().search,
      [&shell](const char* event, const std::function<void()>& handler) { shell.guarded(event, handler); });
  display.listen(DisplayPart::SidePanel, panel, [panel] { panel->refresh(); });
  return panel;
}

// An effect's samples depend on the icon and the current colour, which can change while the panel is open.
QWidget* makeEffectPanel(int number, QWidget* parent, Shell& shell, QtDisplay& display) {
  EffectPanelView* view = makeEffectView(number, parent, shell.effects());
  if (!view) return nullptr;
  for (const DisplayPart part : {DisplayPart::IconsPanel, DisplayPart::ColorPanel})
    display.listen(part, view, [view] { view->follow(); });
  display.listen(DisplayPart::SidePanel, view, [view] { view->refreshAll(); });
  return view;
}

struct PanelWidget {
  int number;
  QWidget* (*make)(QWidget* parent, Shell& shell, QtDisplay& display);
};

// Sets the caption, unless the panel has one already, and the actions of Proceed and Close from the table of panels.
void completeFrame(PanelFrame* panel, int number, Shell& shell) {
  if (panel->caption().isEmpty()) panel->setCaption(findPanel(number)->caption);
  QObject::connect(panel, &PanelFrame::proceed, panel,
                   [&shell] { shell.guarded("cmdProceed_Click", [&shell] { shell.cmdProceed(); }); });
  QObject::connect(panel, &PanelFrame::closeRequested, panel,
                   [&shell] { shell.guarded("cmdCancel_Click", [&shell] { shell.cmdCancel(); }); });
}

constexpr std::array kPanelWidgets = {
    PanelWidget{kColorPanel, makeColorPanel},           PanelWidget{kIconsListPanel, makeIconsList},
    PanelWidget{kCursorPanel, makeCursorPanel},         PanelWidget{kRotatePanel, makeRotatePanel},
    PanelWidget{SearchPanel::kNumber, makeSearchPanel}, PanelWidget{PreviewPanel::kNumber, makePreviewPanel},
};

// Returns null for a panel that is not implemented yet.
QWidget* makePanel(int number, QWidget* parent, Shell& shell, QtDisplay& display) {
  const auto* row = std::ranges::find(kPanelWidgets, number, &PanelWidget::number);
  return row == kPanelWidgets.end() ? makeEffectPanel(number, parent, shell, display)
                                    : row->make(parent, shell, display);
}

}  // namespace

PanelStack::PanelStack(QWidget* parent, Shell& shell, QtDisplay& display)
    : QWidget(parent), shell_(shell), display_(display), stack_(new QStackedLayout(this)) {
  setFixedWidth(std::max(kLeastWidth, kWidthInLines * fontMetrics().height()));
  showPanel(shell_.screen().mActivePanel);
}

QWidget* PanelStack::panel(int number) {
  if (const auto made = made_.find(number); made != made_.end()) return made->second;
  QWidget* widget = makePanel(number, this, shell_, display_);
  if (!widget) return nullptr;
  if (auto* frame = qobject_cast<PanelFrame*>(widget)) completeFrame(frame, number, shell_);
  stack_->addWidget(widget);
  made_.emplace(number, widget);
  return widget;
}

void PanelStack::showPanel(int number) {
  QWidget* widget = panel(number);
  if (!widget) return;
  // The form's own focus widget: during a drop another program has the keyboard focus.
  const bool hadFocus = stack_->currentWidget() && stack_->currentWidget()->isAncestorOf(window()->focusWidget());
  const bool closes = number == kColorPanel && stack_->currentWidget() != widget;
  stack_->setCurrentWidget(widget);
  // A side panel takes the keyboard focus at once; the colour panel does not take it.
  if (auto* frame = qobject_cast<PanelFrame*>(widget)) {
    frame->focusFirstControl();
    display_.announce(frame->title().toStdString());
  }
  if (closes && hadFocus) emit focusGivenBack();
}

}  // namespace gp
