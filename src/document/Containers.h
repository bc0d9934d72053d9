// What may be done with a record as a whole: clearing it, making it a new icon, and moving alpha values between the
// Current Icon and its container. Pure data operations; the views learn of them from the callers.
#pragma once

#include "document/EditState.h"

namespace gp {

// Empties the current container: its Surfaces, and the record from `used` through `present`; size 32, no path. The
// fields from fromMultiIconFile on stay: who reuses the record sets them.
void ClearContainer(EditState& state);
// The current record becomes that of a new, unsaved icon. The size is the caller's.
void NewRecord(EditState& state);

// Makes the alpha matrix of the current container: 1 x 1, or size x size for a true colour icon with alpha whose values
// are in gAlphaValues; true in the second case. Does nothing while the form loads.
bool PrepareAlphaRec(EditState& state);
// True when the current container holds an icon with alpha and a matrix of its size.
bool AlphaRecIsReady(const EditState& state);
// gAlphaValues to the container's matrix, and back. False when a size does not fit or there is no icon.
bool StoreAlphaToRec(EditState& state);
bool LoadAlphaFromRec(EditState& state);

}  // namespace gp
