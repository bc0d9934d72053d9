// Previews one entry of a file: decodes it and composes it over the program's background. When the decoder refuses an
// entry, the former preview is kept.
#pragma once

#include "document/IconImage.h"
#include "files/format/IconArrays.h"
#include "platform/gdi/Surface.h"

namespace gp {

// The sizes that are read: icon sizes, or any.
enum class SizeRule { IconSizes, Any };

class EntryPreview {
 public:
  // Decodes the image of `entry` in the entry's own size. The entry may differ from the one in the file's directory.
  // With showAlpha the alpha values are applied.
  [[nodiscard]] bool show(const IconArrays& arrays, const IconEntry& entry, SizeRule rule, bool showAlpha);
  void clear();

  // The decoded entry: picImageX, picMaskX and its alpha values.
  const IconImage& icon() const { return icon_; }
  const Surface& picIconInFile() const { return picIcon_; }

 private:
  IconImage icon_;
  Surface picIcon_;
};

}  // namespace gp
