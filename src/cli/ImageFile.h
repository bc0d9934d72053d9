// An icon or cursor file as the subcommands open it: its bytes and its directory. What it is, the content tells and not
// the name.
#pragma once

#include "document/AlphaMatrix.h"
#include "files/format/IcoDirectory.h"
#include "files/format/IconDecoder.h"
#include "platform/files/Files.h"
#include "platform/gdi/Surface.h"

#include <optional>
#include <string>

namespace gp::cli {

struct ImageFile {
  FileBytes bytes;
  IconDirectory directory;

  bool isCursor() const { return directory.isCursor(); }
  int imageCount() const { return static_cast<int>(directory.entries.size()); }
};
// Nothing for what is neither icon nor cursor file, or, with openIconFile, no icon file; that has then been complained
// about.
std::optional<ImageFile> openImageFile(const std::string& path);
std::optional<ImageFile> openIconFile(const std::string& path);

// A side in pixels: a byte of 0 stands for 256.
int sideOf(int told);

// True when the editor can show the image.
bool isUsableImage(const ImageFile& file, int index);

// An image as the editor shows it.
struct DecodedImage {
  IconImage icon;
  bool hasAlpha = false;
};
// Nothing for an image that is not usable.
std::optional<DecodedImage> decodeImage(const ImageFile& file, int index);

}  // namespace gp::cli
