// Decodes one image of an icon file into an image Surface, a Mask and alpha values. The directory's bit count decides
// how the bytes of a bitmap are read, even if it is wrong; bytes beyond the end of the file read as zero. Colour counts
// other than 2, 16, 256 and true colour are refused. PNG pictures are read as they state themselves, see PngEntry.h.
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
  DamagedPng,       // a PNG picture that cannot be decoded
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
// values for true colour, 255 if the image has none, and is 1 x 1 otherwise. A PNG picture must have this size.
[[nodiscard]] DecodedIcon decodeEntry(const IconFile& file, const IconEntry& entry, int width, int height);
// The reason why the editor does not show the entry, apart from its size and from damage in a PNG picture.
IconDefect defectOfEntry(const IconFile& file, const IconEntry& entry);

}  // namespace gp
