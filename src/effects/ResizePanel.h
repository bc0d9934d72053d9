// The side panel that enlarges or reduces the icon to another size. It shows the result softened and plain, of which
// the user chooses one. Resizing cannot be undone; the Undo history begins again.
#pragma once

#include "document/IconSizes.h"
#include "effects/EffectPanel.h"

#include <array>
#include <string>

namespace gp {

class ResizePanel final : public EffectPanel {
 public:
  static constexpr int kNumber = 18;
  static constexpr int kOptions = 2;  // softened and plain

  explicit ResizePanel(EffectFrame& frame) : EffectPanel(frame, kNumber) {}

  // mnuEffectsSub1 and mnuEffectsSub2: show the panel for one of three sizes, unless the icon is refused: it has no
  // larger, or smaller, size to get, it has alpha values, or its file holds icons of other sizes. Asks first about
  // unsaved changes.
  void expandTo(int index);
  void shrinkTo(int index);

  // "Expand size to 24 x 24".
  std::string caption() const;
  int mResizeTo() const { return mResizeTo_; }
  // List index of cboResizeIcon, and a choice in that list; an index outside is ignored.
  int cboResizeIcon() const { return option_; }
  void pickOption(int index);
  // The look of the icon at the new size with option i; without pixels while there is no icon.
  const Surface& picResizeIcon(int i) const { return picResizeIcon_.at(static_cast<std::size_t>(i)); }

 protected:
  IconImage apply(const IconImage& icon) const override;
  void drawSamples() override;
  bool mayProceed() override;
  void commit() override;
  // The arrival of the new size has begun a new history.
  void finish() override;

 private:
  enum class Direction { Expand, Shrink };

  void openFor(Direction direction, int size);
  // Whether the icon can be resized in this direction; if not, shows the reason.
  bool mayResize(Direction direction, int size);
  bool fileHasOtherSizes() const;
  // Whether the user agreed to lose what is not saved of the icon as it is now.
  bool mayIconGo();

  Direction direction_ = Direction::Expand;
  int mResizeTo_ = kDefaultIconSize;
  int option_ = 0;
  // The icon that the user agreed to lose.
  IconImage agreed_;
  unsigned agreedSerial_ = 0;
  std::array<Surface, kOptions> picResizeIcon_;
};

}  // namespace gp
