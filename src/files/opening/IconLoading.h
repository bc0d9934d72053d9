// The steps of loading an icon that need no screen: decoding an entry and describing it for its container. The commands
// and gpicon share them.
#pragma once

#include "document/IconContainerRec.h"
#include "files/format/IconDecoder.h"
#include "files/format/IconProbe.h"

#include <optional>
#include <string>

namespace gp {

// The size that an entry is decoded at: that of its directory entry or PNG picture, or one that the caller states.
struct ReadSize {
  int width = 0;
  int height = 0;
};

// Decodes entry `index` at `size`, or at the entry's own size. With `checkSize` only icon sizes pass.
[[nodiscard]] DecodedIcon loadIconImage(const IconFile& file, int index, bool checkSize,
                                        const std::optional<ReadSize>& size = std::nullopt);
// The record of a decoded icon, from what the file states.
IconContainerRec recordOfLoadedIcon(const IconFacts& facts, const IconImage& icon, const std::string& path);

}  // namespace gp
