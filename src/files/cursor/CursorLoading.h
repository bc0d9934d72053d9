// The steps of loading a cursor that need no screen. The command and gpicon share them.
#pragma once

#include "document/IconContainerRec.h"
#include "files/cursor/CursorProbe.h"
#include "files/format/IconDecoder.h"

#include <string>

namespace gp {

// Why a cursor is not opened.
inline constexpr const char* kInvalidCursorFile = "\nInvalid cursor file";
inline constexpr const char* kCursorNotLoaded = "Failed to load this cursor";

// Decodes the first image of a cursor file. The bitmap header decides how the bytes are read.
[[nodiscard]] DecodedIcon loadCursorImage(const IconFile& file);
// The record of a decoded cursor.
IconContainerRec recordOfLoadedCursor(const CursorFacts& facts, const IconImage& icon, const std::string& path);

}  // namespace gp
