// The Editing Area during a drag that leaves the icon alone until the mouse comes up. Holds the Editing Area without
// the region in picDragSnap and the region's magnified content in picImageDrag and picMaskDrag, and moves the one over
// the other. It writes picDisp and nothing else of the icon.
#pragma once

#include "document/Context.h"
#include "document/IconImage.h"
#include "drawing/DrawState.h"

namespace gp {

class EditingArea;

class RegionDrag {
 public:
  RegionDrag(const Context& context, EditingArea& editingArea);

  // Makes the three Surfaces from the icon beneath the region and from the region's content. The icon and the Editing
  // Area are afterwards as before.
  void build(IconImage& beneath, const IconImage& content);
  // Empties them.
  void forget();
  // The Editing Area was built anew: what lies under the region has to be taken again before it is used.
  void makeStale() { ready_ = false; }
  bool isReady() const { return ready_; }
  // After a redraw through which nothing beneath the region changed.
  void setReady(bool ready) { ready_ = ready; }

  // Clears `former`, which is where the content is shown, and puts the content at `box`, in Editing Area pixels. The
  // box itself is the caller's to draw.
  void moveContent(const DrawRect& former, const DrawRect& box);

 private:
  void showWithoutRegion(IconImage& beneath);

  Context context_;
  EditState& state_;
  EditingArea& editingArea_;
  // The Editing Area without the region, and the region's content, magnified.
  Surface picDragSnap_, picImageDrag_, picMaskDrag_;
  bool ready_ = false;
};

}  // namespace gp
