// The icon at another size. Resizing cannot be undone in the editor, because the Undo history has one size.
#pragma once

#include "document/IconContainerRec.h"
#include "document/IconImage.h"
#include "effects/EffectTable.h"

namespace gp {

extern const EffectRow kResize;

// Why an icon of the wanted size is not resized. The editor also says it when there is no icon, and when the icon would
// not become larger, or smaller, as wanted.
inline constexpr Refusal kNotOfSuitableSize("No icon in Editing Area yet or not of suitable size.");

// Returns the icon at size x size, without alpha values; an icon without pixels becomes a transparent one. The Mask
// keeps or drops whole pixels, and so does the image unless it is softened: inverting pixels then still invert. A
// softened image is black where the icon is not painted; a painted pixel is the mean of the painted pixels under it
// when the icon shrinks, and lies between the nearest painted ones when it grows, so that no rim darkens.
IconImage resizedIcon(const IconImage& icon, int size, bool isSoftened);

// The record of the icon after resizing: `record` with the new size, and the depth that the new picture needs.
IconContainerRec recordOfResized(IconContainerRec record, const IconImage& resized);

}  // namespace gp
