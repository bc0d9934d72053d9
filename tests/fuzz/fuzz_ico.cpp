// Icon files: directory, probe and every entry, as opening one does.
#include "files/IcoDirectory.h"
#include "files/IconDecoder.h"
#include "files/IconProbe.h"

#include <algorithm>
#include <cstdint>
#include <span>

namespace {

constexpr int kMostEntries = 64;  // a directory may tell 65535 of them, all alike

void decode(std::span<const std::uint8_t> file, const gp::IconEntry& entry) {
  gp::Surface image;
  gp::Surface mask;
  gp::AlphaMatrix alpha;
  (void)gp::defectOfEntry(file, entry);
  if (!gp::isUsableEntry(file, entry)) return;
  (void)gp::decodeEntry(file, entry, entry.width, entry.height, {image, mask, alpha});
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::span file(data, size);
  for (const bool preferEightBit : {false, true}) (void)gp::probeIcon(file, preferEightBit).joined();
  const gp::IconDirectory directory = gp::parseIconDirectory(file);
  const int entries = std::min(directory.count, kMostEntries);
  for (int index = 0; index < entries; ++index) {
    (void)gp::factsOfEntry(file, directory, index);
    decode(file, directory.entry(index));
  }
  return 0;
}
