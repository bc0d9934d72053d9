// The steps of loading an icon, one by one: decoding an entry into the Current Icon's Surfaces, filling the
// record from what the file told, and showing it. The command bodies and the command line tool share them.
#pragma once

#include "document/EditState.h"
#include "document/Editor.h"
#include "files/IconDecoder.h"
#include "files/IconProbe.h"

#include <span>
#include <string>

namespace gp {

enum class SizeSource { Entry, Surface };

// Decodes entry `index` into two Surfaces and gAlphaValues. The size comes from the entry or from `image`; with
// `checkSize` only the four icon sizes pass. The pixels become the Surfaces' pictures.
[[nodiscard]] IconDefect loadIconPixels(std::span<const std::uint8_t> file, int index, SizeSource sizeSource,
                                        bool checkSize, EditState& state, Surface& image, Surface& mask);

// Makes the current container and the Editing Area empty and as large as the icon that is to come.
void emptyContainerFor(EditState& state, Editor& editor, int size);

// Fills the current record of an icon that has just been decoded. The size must be there already.
void describeLoadedIcon(EditState& state, const IconFacts& facts, const std::string& path);
// Keeps the alpha values with the container. False when they could not be kept: the icon then counts as one of 24 bits.
[[nodiscard]] bool keepLoadedAlpha(EditState& state);
inline constexpr const char* kAlphaNotKept = "\nFailed to copy the Alpha Channel values to record.";

// Shows the Current Icon as one that has just been loaded: its container has it too, and Undo begins here.
void showLoadedIcon(Editor& editor);

}  // namespace gp
