#include "extraction/format/IclScan.h"

namespace gp {

std::vector<IclScanEntry> scanForIconImages(std::span<const std::uint8_t>) { return {}; }
std::optional<IconImage> decodeIconBlob(std::span<const std::uint8_t>, const IclScanEntry&) { return std::nullopt; }

}  // namespace gp
