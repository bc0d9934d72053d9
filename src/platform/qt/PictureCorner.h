// The size of a picture that comes from somewhere else, and its top left corner. However large the picture is, it takes
// no more memory than the corner's rows, or than a fixed limit where its format does not let itself be read in part.
#pragma once

#include "platform/ports/Clipboard.h"

#include <QByteArray>

namespace gp {

// `format` is the name that Qt's reader of it has: "png", "bmp", "gif" or "jpeg". Transparent pixels take the colour of
// the ground. False, with `image` as it was, for what is another format, is cut short or is too large to be read.
bool readPictureCorner(const QByteArray& bytes, const QByteArray& format, int limit, ClipboardImage& image);

}  // namespace gp
