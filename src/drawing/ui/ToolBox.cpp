#include "drawing/ui/ToolBox.h"

#include "colour/ColorSelection.h"
#include "document/ScreenState.h"
#include "drawing/Tools.h"
#include "platform/qt/Accessibility.h"
#include "platform/qt/PathText.h"
#include "platform/qt/widgets/PictureButton.h"
#include "platform/qt/widgets/RovingFocus.h"

#include <QGridLayout>

namespace gp {
namespace {

constexpr int kColumns = 2;
constexpr int kButtonSide = 28;
constexpr int kClearToolsEntry = 0;  // of mnuTools

}  // namespace

ToolBox::ToolBox(QWidget* parent, const ScreenState& screen, const Tools& tools, const ColorSelection& colors)
    : QWidget(parent),
      screen_(screen),
      tools_(tools),
      colors_(colors),
      grid_(new QGridLayout(this)),
      focus_(new RovingFocus(this, kColumns)) {
  setObjectName("fraTools(1)");
  makeGroup(this, "Tools");
  grid_->setContentsMargins(0, 0, 0, 0);
  grid_->setSpacing(0);
  for (const ToolRow& row : toolTable()) {
    if (row.index == kShift) continue;  // shown on the ShiftPad
    PictureButton* button = add(QString("imgTool(%1)").arg(row.index), {row.picture, toText(row.tooltip), kButtonSide});
    button->setAccessibleName(toText(toolName(row.index)));
    button->setAccessibleDescription(toText(toolHint(row.index)));
    button->setChoice();
    button->setEnabled(tools.isAvailable(row.index));
    connect(button, &PictureButton::clicked, this, [this, tool = row.index] { emit toolChosen(tool); });
    imgTool_.at(static_cast<std::size_t>(row.index - kFirstTool)) = button;
  }
  imgClearAllTools_ = add("imgClearAllTools", {"clear-tools", "Clear all tools", kButtonSide});
  connect(imgClearAllTools_, &PictureButton::clicked, this, &ToolBox::clearAllChosen);
  imgColorPicker_ = add("imgColorPicker", {"color-picker", "Color Picker (pick color from icon)", kButtonSide});
  imgColorPicker_->setAccessibleName(kColorPickerName);
  imgColorPicker_->setAccessibleDescription("pick color from icon");
  imgColorPicker_->setChoice();
  connect(imgColorPicker_, &PictureButton::clicked, this, &ToolBox::colorPickerChosen);
  refresh();
}

PictureButton* ToolBox::add(const QString& objectName, const PictureButtonLook& look) {
  auto* button = new PictureButton(this, objectName, look);
  QSizePolicy keepsItsPlace = button->sizePolicy();
  keepsItsPlace.setRetainSizeWhenHidden(true);
  button->setSizePolicy(keepsItsPlace);
  grid_->addWidget(button, count_ / kColumns, count_ % kColumns);
  focus_->add(button);
  ++count_;
  return button;
}

PictureButton* ToolBox::button(int index) const {
  if (index == kClearToolsEntry) return imgClearAllTools_;
  if (index == kColorPickerPointer) return imgColorPicker_;
  return index >= kFirstTool && index < kShift ? imgTool_.at(static_cast<std::size_t>(index - kFirstTool)) : nullptr;
}

void ToolBox::setKey(int index, const QString& key) {
  if (PictureButton* named = button(index)) named->setKey(key);
}

void ToolBox::refresh() {
  const bool dimmed = !screen_.fraTools[1];
  for (std::size_t i = 0; i < imgTool_.size(); ++i) {
    imgTool_[i]->setChecked(tools_.selectedTool() == kFirstTool + static_cast<int>(i));
    imgTool_[i]->setDimmed(dimmed);
  }
  imgColorPicker_->setChecked(colors_.isPickerSelected());
  imgColorPicker_->setVisible(screen_.imgColorPickerVisible);
  for (PictureButton* button : {imgColorPicker_, imgClearAllTools_}) button->setDimmed(dimmed);
}

}  // namespace gp
