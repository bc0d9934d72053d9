// Pictures as palette files, and as the clipboard of other programs offers them, decoded by the program's readers over
// Qt. What fits the limits has the size that was reported.
#include "FuzzInput.h"
#include "platform/qt/PictureCorner.h"
#include "platform/qt/QtPictureLoader.h"

#include <QByteArray>
#include <QtGlobal>

#include <algorithm>

namespace {

using gp::fuzz::require;

// Larger than the strip of a palette file, and than most pictures of the input.
constexpr int kMostWidth = 64;
constexpr int kMostHeight = 256;
constexpr int kCorner = 48;
constexpr const char* kClipboardFormats[] = {"png", "bmp", "gif", "jpeg"};

bool isEmpty(const gp::Surface& surface) { return surface.width() == 0 && surface.height() == 0; }

void load(const std::string& path) {
  const gp::LoadedPicture loaded = gp::QtPictureLoader().loadPicture(path, kMostWidth, kMostHeight);
  const bool fits = loaded.width <= kMostWidth && loaded.height <= kMostHeight;
  switch (loaded.problem) {
    case gp::PictureProblem::None:
      require(fits && loaded.width > 0 && loaded.height > 0);
      require(loaded.picture.width() == loaded.width && loaded.picture.height() == loaded.height);
      break;
    case gp::PictureProblem::TooLarge:
      require(!fits && isEmpty(loaded.picture));
      break;
    case gp::PictureProblem::Unreadable:
      require(loaded.width == 0 && loaded.height == 0 && isEmpty(loaded.picture));
      break;
  }
}

void readCorner(const QByteArray& bytes, const char* format) {
  gp::ClipboardImage image;
  if (!gp::readPictureCorner(bytes, format, kCorner, image))
    return require(image.width == 0 && image.height == 0 && isEmpty(image.corner));
  require(image.width > 0 && image.height > 0);
  require(image.corner.width() == std::min(image.width, kCorner));
  require(image.corner.height() == std::min(image.height, kCorner));
}

void ignoreWarning(QtMsgType, const QMessageLogContext&, const QString&) {}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  static const gp::fuzz::ScratchFolder folder;
  static const QtMessageHandler earlier = qInstallMessageHandler(ignoreWarning);
  (void)earlier;
  load(folder.holding("picture", {data, size}));
  const QByteArray bytes(reinterpret_cast<const char*>(data), static_cast<qsizetype>(size));
  for (const char* format : kClipboardFormats) readCorner(bytes, format);
  return 0;
}
