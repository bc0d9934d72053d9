// The sizes of the images of a file for updates and for saving single entries. A directory may state fewer bytes than
// an image has; it is shown completely all the same, so an update must not cut it.
#pragma once

#include "files/format/IconFile.h"

#include <cstdint>

namespace gp {

class ImageSizes {
 public:
  // The file must outlive it.
  explicit ImageSizes(const IconFile& file) : file_(file), pngBytesLeft_(file.span().size()) {}

  // The bytes of an entry's image: as many as the entry states, or as many as the image itself needs if these are more
  // and the file contains them. A bitmap needs what its header describes; a PNG picture reaches to its last chunk.
  std::uint32_t sizeOf(const IconEntry& entry);

 private:
  std::uint64_t neededBy(const IconEntry& entry);
  std::uint64_t pngSize(const IconEntry& entry);

  const IconFile& file_;
  // Pictures do not overlap, so all of them together have no more bytes than the file. Entries that share bytes are
  // not searched again and again.
  std::uint64_t pngBytesLeft_;
};

}  // namespace gp
