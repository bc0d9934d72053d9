// What may be done with a record as a whole: clearing it, making it a new icon, and moving alpha values between the
// Current Icon and its container. Pure data operations; the views learn of them from the callers.
#pragma once

#include "document/IconContainerRec.h"

namespace gp {

struct EditState;
struct IconImage;

// Empties the current container: its Surfaces, and the record from `used` through `present`; size 32, no path. The
// fields from fromMultiIconFile on stay: who reuses the record sets them.
void ClearContainer(EditState& state);
// The record of a new, unsaved icon. Its size follows from the icon's image.
IconContainerRec NewRecord();
// Describes the icon that a container receives: the record but for its number, `used` and `size`, which are set here,
// and the icon's alpha values. An icon that counts as one with alpha but has no value for each pixel becomes one of 24
// bits without alpha.
void SetRecord(EditState& state, int container, const IconImage& icon, const IconContainerRec& record);

// Makes the alpha matrix of the current container: 1 x 1, or size x size for a true colour icon with alpha whose values
// are in gAlphaValues; true in the second case. Does nothing while the form loads.
bool PrepareAlphaRec(EditState& state);
// True when the current container holds an icon with alpha and a matrix of its size.
bool AlphaRecIsReady(const EditState& state);
// gAlphaValues to the container's matrix, and back. False when a size does not fit or there is no icon.
bool StoreAlphaToRec(EditState& state);
bool LoadAlphaFromRec(EditState& state);

}  // namespace gp
