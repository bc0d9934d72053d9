// The steps of loading a cursor that need no screen. The command and the command line tool share them.
#pragma once

#include "document/EditState.h"
#include "files/CursorProbe.h"
#include "files/IconDecoder.h"

#include <cstdint>
#include <span>
#include <string>

namespace gp {

// Decodes the first picture of a cursor file into two Surfaces, and into gAlphaValues for true colour. The bitmap
// header decides how the bytes are read.
[[nodiscard]] IconDefect loadCursorPixels(std::span<const std::uint8_t> file, EditState& state, Surface& image,
                                          Surface& mask);
// Fills the current record of a cursor that has just been decoded.
void describeLoadedCursor(EditState& state, const CursorFacts& facts, const std::string& path);

}  // namespace gp
