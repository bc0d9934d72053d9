#include "shell/ui/PanelStack.h"

#include "colour/ui/ColorPanel.h"
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
  auto* panel = new ColorPanel(parent, shell.state(), shell.colors());
  QObject::connect(panel, &ColorPanel::brushChosen, panel, [&shell](int index) { shell.tools().setBrush(index); });
  for (const DisplayPart part : {DisplayPart::ColorPanel, DisplayPart::Tools})
    display.listen(part, [panel] { panel->refresh(); });
  display.requests().focusColorValue = [panel] { panel->focusColorValue(); };
  return panel;
}

struct PanelWidget {
  int number;
  QWidget* (*make)(QWidget* parent, Shell& shell, QtDisplay& display);
};

constexpr std::array kPanelWidgets = {
    PanelWidget{kColorPanel, makeColorPanel},
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
  stack_->addWidget(widget);
  made_.emplace(number, widget);
  return widget;
}

void PanelStack::showPanel(int number) {
  if (QWidget* widget = panel(number)) stack_->setCurrentWidget(widget);
}

}  // namespace gp
