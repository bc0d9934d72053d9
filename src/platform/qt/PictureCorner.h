// Reads the size and the top left corner of an untrusted picture. Memory use is limited to the corner's rows, or to a
// fixed limit for formats that cannot be read in part.
#pragma once

#include "platform/ports/Clipboard.h"

#include <QByteArray>

namespace gp {

// `format` is the name of Qt's reader: "png", "bmp", "gif" or "jpeg". The corner is blended with kGround.
// Returns false and leaves `image` unchanged when the bytes have another format, are incomplete or are too large.
bool readPictureCorner(const QByteArray& bytes, const QByteArray& format, int limit, ClipboardImage& image);

}  // namespace gp
