// The preview of one entry of a file: its picture and Mask as they were read, and how the icon looks on the program's
// ground. It owns three Surfaces and refuses what the reader refuses; then it stays as it was.
#pragma once

#include "document/EditState.h"
#include "files/IconArrays.h"
#include "platform/gdi/Surface.h"

namespace gp {

// Which sizes are read: those of icons, or any.
enum class SizeRule { IconSizes, Any };

class EntryPreview {
 public:
  explicit EntryPreview(EditState& state) : state_(state) {}

  // Reads the image of `entry`, which need not tell what the file's directory tells, in the entry's own size. With
  // showAlpha the icon is shown with its alpha values, which stay in gAlphaValues.
  [[nodiscard]] bool show(const IconArrays& arrays, const IconEntry& entry, SizeRule rule, bool showAlpha);
  void clear();

  const Surface& picImageX() const { return picImageX_; }
  const Surface& picMaskX() const { return picMaskX_; }
  const Surface& picIconInFile() const { return picIcon_; }

 private:
  EditState& state_;
  Surface picImageX_, picMaskX_, picIcon_;
};

}  // namespace gp
