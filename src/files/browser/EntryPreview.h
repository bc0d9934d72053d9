// The preview of one entry of a file: its picture and Mask as they were read, and how the icon looks on the program's
// ground. It owns three Surfaces and refuses what the reader refuses; then it stays as it was.
#pragma once

#include "document/IconImage.h"
#include "files/format/IconArrays.h"
#include "platform/gdi/Surface.h"

namespace gp {

// Which sizes are read: those of icons, or any.
enum class SizeRule { IconSizes, Any };

class EntryPreview {
 public:
  // Reads the image of `entry`, which need not tell what the file's directory tells, in the entry's own size. With
  // showAlpha the icon is shown with its alpha values.
  [[nodiscard]] bool show(const IconArrays& arrays, const IconEntry& entry, SizeRule rule, bool showAlpha);
  void clear();

  // The entry as it was read: picImageX, picMaskX and its alpha values.
  const IconImage& icon() const { return icon_; }
  const Surface& picIconInFile() const { return picIcon_; }

 private:
  IconImage icon_;
  Surface picIcon_;
};

}  // namespace gp
