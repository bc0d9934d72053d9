// Operations on records as a whole: clearing one, making it a new icon, and copying alpha values between the Current
// Icon and its container. They change data only; callers notify the views.
#pragma once

#include "document/IconContainerRec.h"

#include <string>

namespace gp {

struct EditState;
struct IconImage;

// Empties the current container: its Surfaces, and the record's fields from `used` to `path`, and its origin; the size
// becomes 32. The fields from fromMultiIconFile to modified do not change: callers that reuse the record set them.
void ClearContainer(EditState& state);
// Returns the record of a new, unsaved icon. SetRecord sets its size.
IconContainerRec NewRecord();
// Returns the name that users know a container's icon by: of its file without the folder, "Untitled" for a new icon,
// "empty" for a container without one.
std::string nameOf(const IconContainerRec& record);
// Sets a container's record and alpha values for an icon it receives. The record keeps its number; `used` and `size`
// are set here. An icon described as one with alpha, but without a value for each pixel, becomes one of 24 bits.
void SetRecord(EditState& state, int container, const IconImage& icon, const IconContainerRec& record);

// Creates the alpha matrix of the current container. Returns true and creates size x size values for a true colour icon
// with alpha whose values are in picAlpha; otherwise creates a 1 x 1 matrix. Does nothing while the form is loaded.
bool PrepareAlphaRec(EditState& state);
// Returns true when the current container has an icon with alpha and a matrix of its size.
bool AlphaRecIsReady(const EditState& state);
// Copy picAlpha to the container's matrix, and back. Return false when a size differs or there is no icon.
bool StoreAlphaToRec(EditState& state);
bool LoadAlphaFromRec(EditState& state);

}  // namespace gp
