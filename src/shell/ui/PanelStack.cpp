#include "shell/ui/PanelStack.h"

#include "colour/ui/ColorPanel.h"
#include "drawing/ui/RotatePanelView.h"
#include "effects/ui/ButtonizePanelView.h"
#include "effects/ui/ConfinePanelView.h"
#include "effects/ui/DisabledImagePanelView.h"
#include "effects/ui/ShadesPanelView.h"
#include "files/ui/CursorPanelView.h"
#include "shell/PanelTable.h"
#include "shell/Shell.h"
#include "shell/ui/QtDisplay.h"

#include <QStackedLayout>

#include <algorithm>
#include <array>

namespace gp {
namespace {

constexpr int kPanelWidth = 264;

QWidget* makeColorPanel(QWidget* parent, Shell& shell, QtDisplay& display) {
  auto* panel = new ColorPanel(parent, shell.state(), shell.colors(), shell.mixer(), shell.paletteFile());
  QObject::connect(panel, &ColorPanel::brushChosen, panel, [&shell](int index) { shell.tools().setBrush(index); });
  for (const DisplayPart part : {DisplayPart::ColorPanel, DisplayPart::Tools})
    display.listen(part, [panel] { panel->refresh(); });
  display.requests().focusColorValue = [panel] { panel->focusColorValue(); };
  return panel;
}

QWidget* makeRotatePanel(QWidget* parent, Shell& shell, QtDisplay&) {
  return new RotatePanelView(parent, shell.drawing().rotatePanel);
}

QWidget* makeCursorPanel(QWidget* parent, Shell& shell, QtDisplay&) {
  auto* panel = new CursorPanelView(parent, shell.cursorFiles());
  QObject::connect(panel, &CursorPanelView::showHotspotRequested, panel, [&shell] {
    shell.guarded("cmdShowHotspot_Click", [&shell] { shell.cursorFiles().showHotspot(); });
  });
  return panel;
}

// The samples of an effect follow the icon and the current colour: others may come while the panel is up.
template <class View, auto member>
QWidget* makeEffectPanel(QWidget* parent, Shell& shell, QtDisplay& display) {
  auto& logic = shell.effects().*member;
  for (const DisplayPart part : {DisplayPart::IconsPanel, DisplayPart::ColorPanel})
    display.listen(part, [&logic] { logic.preview(); });
  return new View(parent, logic);
}

struct PanelWidget {
  int number;
  QWidget* (*make)(QWidget* parent, Shell& shell, QtDisplay& display);
};

// Title, Proceed and Close come from the table of panels.
void completeFrame(PanelFrame* panel, int number, Shell& shell) {
  panel->setTitle(findPanel(number)->caption);
  QObject::connect(panel, &PanelFrame::proceed, panel,
                   [&shell] { shell.guarded("cmdProceed_Click", [&shell] { shell.cmdProceed(); }); });
  QObject::connect(panel, &PanelFrame::closeRequested, panel,
                   [&shell] { shell.guarded("cmdCancel_Click", [&shell] { shell.cmdCancel(); }); });
}

constexpr std::array kPanelWidgets = {
    PanelWidget{kColorPanel, makeColorPanel},
    PanelWidget{kCursorPanel, makeCursorPanel},
    PanelWidget{kRotatePanel, makeRotatePanel},
    PanelWidget{kButtonizePanel, makeEffectPanel<ButtonizePanelView, &Effects::buttonize>},
    PanelWidget{kShadesPanel, makeEffectPanel<ShadesPanelView, &Effects::shades>},
    PanelWidget{kDisabledImagePanel, makeEffectPanel<DisabledImagePanelView, &Effects::disabledImage>},
    PanelWidget{kConfinePanel, makeEffectPanel<ConfinePanelView, &Effects::confine>},
};

}  // namespace

PanelStack::PanelStack(QWidget* parent, Shell& shell, QtDisplay& display)
    : QWidget(parent), shell_(shell), display_(display), stack_(new QStackedLayout(this)) {
  setFixedWidth(kPanelWidth);
  showPanel(shell_.state().screen.mActivePanel);
}

QWidget* PanelStack::panel(int number) {
  if (const auto made = made_.find(number); made != made_.end()) return made->second;
  const auto row = std::ranges::find(kPanelWidgets, number, &PanelWidget::number);
  if (row == kPanelWidgets.end()) return nullptr;
  QWidget* widget = row->make(this, shell_, display_);
  if (auto* frame = qobject_cast<PanelFrame*>(widget)) completeFrame(frame, number, shell_);
  stack_->addWidget(widget);
  made_.emplace(number, widget);
  return widget;
}

void PanelStack::showPanel(int number) {
  QWidget* widget = panel(number);
  if (!widget) return;
  // The form's own focus: during a drop the keys are with another program.
  const bool hadFocus = stack_->currentWidget() && stack_->currentWidget()->isAncestorOf(window()->focusWidget());
  const bool closes = number == kColorPanel && stack_->currentWidget() != widget;
  stack_->setCurrentWidget(widget);
  // A side panel is worked with the keyboard at once; the colour panel leaves the focus where it is.
  if (auto* frame = qobject_cast<PanelFrame*>(widget)) frame->focusFirstControl();
  if (closes && hadFocus) emit focusGivenBack();
}

}  // namespace gp
