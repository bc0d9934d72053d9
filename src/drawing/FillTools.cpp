#include "drawing/FillTools.h"

#include "document/AlphaGreys.h"
#include "document/EditState.h"
#include "document/EditingArea.h"
#include "drawing/UndoHistory.h"
#include "platform/gdi/FloodFill.h"

namespace gp {

namespace {

// Colours that mark a filled area when the current colour equals its own.
constexpr Color kMark = 0x0000FF;
constexpr Color kOtherMark = 0x00FFFF;

struct PixelPair {
  Color image;
  Color mask;
};
constexpr PixelPair kTransparentPixel = {kBlack, kWhite};

PixelPair opaquePixel(Color color) { return {color, kBlack}; }

bool isTransparent(const EditState& state, int x, int y) {
  return state.picImage.GetPixel(x, y) == kBlack && state.picMask.GetPixel(x, y) == kWhite;
}

void setPixel(EditState& state, int x, int y, const PixelPair& pixel) {
  state.picImage.SetPixelV(x, y, pixel.image);
  state.picMask.SetPixelV(x, y, pixel.mask);
  state.picAlpha.SetPixelV(x, y, kOpaqueGrey);
}

template <typename Condition>
void setPixelsWhere(EditState& state, const PixelPair& pixel, const Condition& condition) {
  const int size = state.current().size;
  for (int y = 0; y < size; ++y)
    for (int x = 0; x < size; ++x)
      if (condition(x, y)) setPixel(state, x, y, pixel);
}

// A copy of the visible picture with the area around a pixel filled.
class FilledCopy {
 public:
  FilledCopy(const Surface& seen, int x, int y, Color color) : seen_(seen), filled_(seen) {
    filled_.fillColor = color;
    ExtFloodFill(filled_, x, y, filled_.GetPixel(x, y));
  }

  bool differsAt(int x, int y) const { return filled_.GetPixel(x, y) != seen_.GetPixel(x, y); }

 private:
  const Surface& seen_;
  Surface filled_;
};

void showStep(EditingArea& editingArea, UndoHistory& history) {
  editingArea.showChangedIcon();
  history.recordUndo();
}

}  // namespace

void FillTool::release(const ToolMouse& mouse) {
  if (mouse.modifiers == 0)
    fill(mouse.pixelX, mouse.pixelY);
  else
    fillTransparent(mouse.pixelX, mouse.pixelY);
  showStep(editingArea_, history_);
}

void FillTool::fill(int x, int y) {
  const Color color = state_.mCurrentColor;
  const bool fromTransparent = isTransparent(state_, x, y);
  const FilledCopy filled(state_.PicIcon, x, y, color);
  // The mark makes a transparent area visible even where the current colour is that of the ground.
  const FilledCopy marked(state_.PicIcon, x, y, kMark);
  setPixelsWhere(state_, opaquePixel(color), [&](int i, int j) {
    const bool isReached = filled.differsAt(i, j) || (fromTransparent && marked.differsAt(i, j));
    return isReached && isTransparent(state_, i, j) == fromTransparent;
  });
}

void FillTool::fillTransparent(int x, int y) {
  if (isTransparent(state_, x, y)) return;
  Color mark = state_.mCurrentColor;
  if (mark == state_.picImage.GetPixel(x, y)) mark = mark != kMark ? kMark : kOtherMark;
  const FilledCopy filled(state_.PicIcon, x, y, mark);
  setPixelsWhere(state_, kTransparentPixel,
                 [&](int i, int j) { return filled.differsAt(i, j) && !isTransparent(state_, i, j); });
}

void ReplaceTool::release(const ToolMouse& mouse) {
  const Color target = state_.PicIcon.GetPixel(mouse.pixelX, mouse.pixelY);
  // Intended: when the ground's colour is clicked, the icon's top left pixel, not the clicked one, determines whether
  // opaque or transparent pixels are replaced.
  const Color wantedMask = state_.picMask.GetPixel(0, 0) == kWhite ? kBlack : kWhite;
  const PixelPair pixel = mouse.modifiers == 0 ? opaquePixel(state_.mCurrentColor) : kTransparentPixel;
  setPixelsWhere(state_, pixel, [&, isGround = target == kGround](int x, int y) {
    return state_.PicIcon.GetPixel(x, y) == target && (!isGround || state_.picMask.GetPixel(x, y) == wantedMask);
  });
  showStep(editingArea_, history_);
}

}  // namespace gp
