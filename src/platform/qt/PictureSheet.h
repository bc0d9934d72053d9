// The layout of a picture sheet: all pictures of one scale and one theme, rasterised and embedded when the program is
// built, so that start-up parses nothing. The build's rasteriser writes sheets and Pictures reads them in place. Both
// run on the same kind of machine, so numbers and pixels are in native byte order.
#pragma once

#include <cstdint>

namespace gp {

// The start of a sheet. It is followed by `count` entries, sorted by name and then by size, and by the pixels.
struct SheetHeader {
  std::uint32_t magic;
  std::uint32_t count;
};

inline constexpr std::uint32_t kSheetMagic = 0x48535047;  // "GPSH" in the file
inline constexpr int kSheetNameLength = 24;

struct SheetEntry {
  char name[kSheetNameLength];  // ends with at least one zero
  std::uint32_t size;           // width and height in device pixels
  std::uint32_t offset;         // of the pixels from the start of the sheet: premultiplied ARGB, 32 bits, rows unpadded
};

static_assert(sizeof(SheetHeader) == 8);
static_assert(sizeof(SheetEntry) == 32);

// The scales for which there is a sheet, in percent.
inline constexpr int kSheetScales[] = {100, 150, 200};
// Pictures are drawn on a grid of 20 x 20 units, one unit per pixel at 100 %.
inline constexpr int kPictureGrid = 20;

}  // namespace gp
