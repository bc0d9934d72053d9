#include "shell/ui/ToolbarView.h"

#include "platform/qt/Accessibility.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/PictureButton.h"
#include "platform/qt/widgets/RovingFocus.h"
#include "shell/Shell.h"

#include <QKeySequence>
#include <QPainter>

namespace gp {
namespace {

QString nativeKey(const char* key) { return QKeySequence(key).toString(QKeySequence::NativeText); }

constexpr int kButtonSide = 24;
constexpr int kButtonGap = 2;
constexpr int kSeparatorWidth = 7;
constexpr int kEdge = 4;
constexpr int kVertical = 3;  // above and below the buttons

}  // namespace

ToolbarView::ToolbarView(QWidget* parent, Shell& shell) : QWidget(parent), shell_(shell) {
  setObjectName("picToolbar");
  makeGroup(this, "Toolbar", QAccessible::ToolBar);
  setFixedHeight(kButtonSide + 2 * kVertical);
  auto* focus = new RovingFocus(this, static_cast<int>(toolbarTable().size()));
  int x = kEdge;
  for (const ToolbarButton& row : toolbarTable()) {
    const Command* command = findCommand(row.control, row.commandIndex);
    if (row.separatorBefore) {
      separators_.push_back(x + kSeparatorWidth / 2 - kButtonGap / 2);
      x += kSeparatorWidth;
    }
    auto* button = new PictureButton(this, QString("cmdTB(%1)").arg(row.index),
                                     {command ? command->picture : "", toText(row.tooltip), kButtonSide});
    if (command) button->setKey(nativeKey(command->key));
    button->move(x, kVertical);
    x += kButtonSide + kButtonGap;
    connect(button, &PictureButton::clicked, this, [this, &row] { shell_.runToolbar(row); });
    entries_.push_back({command, button});
    focus->add(button);
  }
}

void ToolbarView::refresh() {
  for (const auto& [command, button] : entries_) button->setEnabled(command && gp::isEnabled(*command, shell_));
}

void ToolbarView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  for (const int x : separators_) painter.drawLine(x, kVertical + 2, x, height() - kVertical - 3);
}

}  // namespace gp
