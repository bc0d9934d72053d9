// Decodes one image of an icon file into an image Surface, a Mask and alpha values. The directory's bit count decides
// how the bytes are read, even if it is wrong; bytes beyond the end of the file read as zero. PNG pictures are refused,
// and so are colour counts other than 2, 16, 256 and true colour.
#pragma once

#include "document/IconImage.h"
#include "files/format/IconFile.h"

namespace gp {

enum class IconDefect {
  None,
  NotReadable,      // not a regular file, or no permission to read it
  NotAnIcon,        // not of the icon type, or without entries
  NoSuchEntry,      // the index is beyond the count
  SizeNotOffered,   // not square, or none of 16, 24, 32, 48
  PngImage,         // a PNG picture
  StrangeDepth,     // 4, 8, 32 ... colours, for which there is no row format
  StrangeTrueColor  // true colour that is neither 24 nor 32 bits
};

// A description in one line for the user, without the file's name.
const char* describe(IconDefect defect);

// A decoded image, or the reason why there is none.
struct DecodedIcon {
  IconDefect defect = IconDefect::None;
  IconImage icon;  // empty with a defect

  bool isRead() const { return defect == IconDefect::None; }
};

// Decodes the image that `entry` describes as width x height pixels. The entry may differ from the one in the file's
// directory. True colour of any bit count but 24 is read as four bytes per pixel. The alpha matrix has width x height
// values for true colour, 255 if the image has none, and is 1 x 1 otherwise.
[[nodiscard]] DecodedIcon decodeEntry(const IconFile& file, const IconEntry& entry, int width, int height);
// The reason why the editor does not show the entry, apart from its size.
IconDefect defectOfEntry(const IconFile& file, const IconEntry& entry);

}  // namespace gp
