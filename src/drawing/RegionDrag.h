// The Editing Area during a drag that leaves the icon alone until the mouse comes up. Keeps the Editing Area without
// the region in picDragSnap and the region's magnified content in picImageDrag and picMaskDrag, and moves the content
// over the rest. Writes picDisp only.
#pragma once

#include "document/Context.h"
#include "document/IconImage.h"
#include "drawing/DrawState.h"

namespace gp {

class RegionDrag {
 public:
  explicit RegionDrag(const Context& context);

  // Makes the three Surfaces from the icon beneath the region and the region's content, for the present grid and
  // magnification.
  void build(const IconImage& beneath, const IconImage& content);
  // Empties them. Required after every rebuild of the Editing Area, which may have another grid or size afterwards.
  void forget();
  bool isBuilt() const { return picDragSnap_.width() > 0; }

  // Clears `former`, which is where the content is shown, and draws the content at `box`, in Editing Area pixels. The
  // caller draws the box.
  void moveContent(const DrawRect& former, const DrawRect& box);

 private:
  Context context_;
  EditState& state_;
  Surface picDragSnap_, picImageDrag_, picMaskDrag_;
};

}  // namespace gp
