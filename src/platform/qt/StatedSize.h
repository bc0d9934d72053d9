// The size of a picture that Qt's readers are about to decode.
#pragma once

#include <QSize>

#include <cstdint>
#include <span>

class QImageReader;

namespace gp {

// Returns the size that the header states, also for bitmaps whose top row comes first: Qt decodes those, but states a
// negative height. `bytes` are the picture. Returns an empty size when there is none.
QSize statedSize(const QImageReader& reader, std::span<const std::uint8_t> bytes);

}  // namespace gp
