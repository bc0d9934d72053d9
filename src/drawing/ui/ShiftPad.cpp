#include "drawing/ui/ShiftPad.h"

#include "document/ScreenState.h"
#include "drawing/ToolTable.h"
#include "drawing/Tools.h"
#include "platform/qt/Accessibility.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/PictureButton.h"
#include "platform/qt/widgets/RovingFocus.h"

#include <QMouseEvent>

#include <algorithm>

namespace gp {
namespace {

constexpr int kCellsAcross = 3;
constexpr int kCellSide = ShiftPad::kSide / kCellsAcross;
constexpr const char* kPadTooltip = "Shift image (when middle square is sunken)";
constexpr const char* kPadHint = "when middle square is sunken";

struct CellLook {
  ShiftCell cell;
  const char* picture;
  const char* name;
};

// Row by row; the middle cell is the tool.
constexpr std::array<CellLook, kCellsAcross* kCellsAcross> kCells = {{
    {ShiftCell::TopLeft, "shift-nw", "Shift up left"},
    {ShiftCell::Top, "shift-n", "Shift up"},
    {ShiftCell::TopRight, "shift-ne", "Shift up right"},
    {ShiftCell::Left, "shift-w", "Shift left"},
    {ShiftCell::Rest, "shift-center", ""},
    {ShiftCell::Right, "shift-e", "Shift right"},
    {ShiftCell::BottomLeft, "shift-sw", "Shift down left"},
    {ShiftCell::Bottom, "shift-s", "Shift down"},
    {ShiftCell::BottomRight, "shift-se", "Shift down right"},
}};

std::size_t indexOf(ShiftCell cell) { return static_cast<std::size_t>(cell); }

const CellLook& lookOf(ShiftCell cell) { return *std::ranges::find(kCells, cell, &CellLook::cell); }

}  // namespace

ShiftPad::ShiftPad(QWidget* parent, const ScreenState& screen, const Tools& tools, ShiftTool& shift)
    : QWidget(parent), screen_(screen), tools_(tools), shift_(shift), focus_(new RovingFocus(this, kCellsAcross)) {
  setObjectName("imgShiftDirBase");
  makeGroup(this, "Shift image");
  setAccessibleDescription(kPadHint);
  setToolTip(kPadTooltip);
  setFixedSize(kSide, kSide);
  for (std::size_t i = 0; i < kCells.size(); ++i) {
    const ShiftCell cell = kCells.at(i).cell;
    PictureButton* button = cell == ShiftCell::Rest ? makeTool() : makeDirection(cell);
    const int column = static_cast<int>(i) % kCellsAcross;
    const int row = static_cast<int>(i) / kCellsAcross;
    button->move(column * kCellSide, row * kCellSide);
    focus_->add(button);
  }
  refresh();
}

PictureButton* ShiftPad::makeTool() {
  const QString tooltip = toText(toolRow(kShift).tooltip);
  imgTool_ = new PictureButton(this, QString("imgTool(%1)").arg(kShift),
                               {lookOf(ShiftCell::Rest).picture, tooltip, kCellSide});
  imgTool_->setChoice();
  connect(imgTool_, &PictureButton::clicked, this, [this] { emit toolChosen(kShift); });
  return imgTool_;
}

// A key released outside the button is not a click, but must reset the pressed look.
PictureButton* ShiftPad::makeDirection(ShiftCell cell) {
  const CellLook& look = lookOf(cell);
  auto* button =
      new PictureButton(this, QString("imgShiftDir(%1)").arg(indexOf(cell)), {look.picture, kPadTooltip, kCellSide});
  button->setAccessibleName(look.name);
  button->setAccessibleDescription(kPadHint);
  button->setAttribute(Qt::WA_TransparentForMouseEvents);
  connect(button, &PictureButton::pressed, this, [=, this] { press(cell); });
  connect(button, &PictureButton::released, this, [this] { press(ShiftCell::Rest); });
  connect(button, &PictureButton::clicked, this, [=, this] { release(cell); });
  imgShiftDir_.at(indexOf(cell)) = button;
  return button;
}

void ShiftPad::press(ShiftCell cell) {
  shift_.padPress(cell);
  refresh();
}

// The look is reset first, because the slots may show a message and return only when it is closed.
void ShiftPad::release(ShiftCell cell) {
  press(ShiftCell::Rest);
  emit directionReleased(cell);
}

void ShiftPad::letGo() {
  if (!held_) return;
  held_ = false;
  press(ShiftCell::Rest);
}

void ShiftPad::setKey(const QString& key) { imgTool_->setKey(key); }

void ShiftPad::refresh() {
  const bool dimmed = !screen_.fraTools[1];
  const auto shown = static_cast<std::size_t>(shift_.shownPicture());
  for (std::size_t i = 0; i < imgShiftDir_.size(); ++i) {
    PictureButton* button = imgShiftDir_.at(i);
    if (!button) continue;
    button->setDown(i == shown);
    button->setDimmed(dimmed);
  }
  imgTool_->setEnabled(tools_.isAvailable(kShift));
  imgTool_->setChecked(tools_.selectedTool() == kShift);
  imgTool_->setDimmed(dimmed);
}

void ShiftPad::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) return;
  held_ = true;
  press(shiftCellAt(event->position().x(), event->position().y(), kSide));
}

// Each click of a quick series is a step.
void ShiftPad::mouseDoubleClickEvent(QMouseEvent* event) { mousePressEvent(event); }

void ShiftPad::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || !held_) return;
  held_ = false;
  release(shiftCellAt(event->position().x(), event->position().y(), kSide));
}

void ShiftPad::hideEvent(QHideEvent* event) {
  letGo();
  QWidget::hideEvent(event);
}

// When the release goes to another window, the press has no effect.
bool ShiftPad::event(QEvent* event) {
  if (event->type() == QEvent::WindowDeactivate || event->type() == QEvent::WindowBlocked) letGo();
  return QWidget::event(event);
}

}  // namespace gp
