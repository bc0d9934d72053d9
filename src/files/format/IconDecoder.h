// Turns the bytes of one image of an icon file into an image Surface, a Mask and alpha values. The directory's bit
// count decides how the bytes are read, right or wrong; bytes that the file is too short to hold read as zero. Owns
// nothing and opens no file. PNG pictures, and colour counts other than 2, 16, 256 and true colour, are refused.
#pragma once

#include "document/IconImage.h"
#include "files/format/IconFile.h"

namespace gp {

enum class IconDefect {
  None,
  NotReadable,      // no regular file, or no right to read it
  NotAnIcon,        // not of the icon type, or without entries
  NoSuchEntry,      // the index is beyond the count
  SizeNotOffered,   // not square, or none of 16, 24, 32, 48
  PngImage,         // the image is a PNG picture
  StrangeDepth,     // 4, 8, 32 ... colours, for which there is no row format
  StrangeTrueColor  // true colour that is neither 24 nor 32 bits
};

// One line for a person, without the file's name.
const char* describe(IconDefect defect);

// An image that was read, or why it was not.
struct DecodedIcon {
  IconDefect defect = IconDefect::None;
  IconImage icon;  // empty with a defect

  bool isRead() const { return defect == IconDefect::None; }
};

// Reads an image of the file as `entry` describes it, which may differ from the file's directory, as one of width x
// height pixels. True colour of any bit count but 24 is taken as four bytes a pixel. The alpha matrix has width x
// height values for true colour, 255 where the image has none, and is 1 x 1 otherwise.
[[nodiscard]] DecodedIcon decodeEntry(const IconFile& file, const IconEntry& entry, int width, int height);
// Why the editor does not show the entry, apart from its size.
IconDefect defectOfEntry(const IconFile& file, const IconEntry& entry);

}  // namespace gp
