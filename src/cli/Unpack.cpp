#include "animation/format/FilmReading.h"
#include "cli/ImageFile.h"
#include "cli/Netpbm.h"
#include "cli/OutputFolder.h"
#include "cli/Subcommands.h"
#include "cli/UnpackPng.h"

namespace gp::cli {
namespace {

constexpr std::uint8_t kTransparent = 255;
constexpr std::uint8_t kOpaque = 0;

Netpbm imageFile(const Surface& image) {
  Netpbm file("P6", image.width(), image.height(), 3);
  for (const std::uint32_t pixel : image.pixels()) {
    const auto color = static_cast<Color>(pixel & kColorBits);
    file.add(redOf(color));
    file.add(greenOf(color));
    file.add(blueOf(color));
  }
  return file;
}

Netpbm maskFile(const Surface& mask) {
  Netpbm file("P5", mask.width(), mask.height(), 1);
  for (const std::uint32_t pixel : mask.pixels())
    file.add((pixel & kColorBits) == storedForm(kWhite) ? kTransparent : kOpaque);
  return file;
}

Netpbm alphaFile(const AlphaMatrix& alpha) {
  Netpbm file("P5", alpha.width(), alpha.height(), 1);
  for (int y = 0; y < alpha.height(); ++y)
    for (int x = 0; x < alpha.width(); ++x) file.add(alpha.at(x, y));
  return file;
}

// Writes the files of one image. False, after an error message, when one cannot be written.
bool writeImage(const DecodedImage& image, const std::string& start, OutputFolder& folder) {
  return folder.write(start + ".image.ppm", imageFile(image.icon.image).bytes()) &&
         folder.write(start + ".mask.pgm", maskFile(image.icon.mask).bytes()) &&
         (!image.hasAlpha || folder.write(start + ".alpha.pgm", alphaFile(image.icon.alpha).bytes()));
}

bool unpackFilm(const std::string& path, std::span<const std::uint8_t> file, const std::string& name,
                OutputFolder& folder) {
  const ReadFilm film = ReadANIFileFrames(file);
  if (!film.isRead()) return refuse(path, describe(film));
  for (std::size_t i = 0; i < film.frames.size(); ++i) {
    const FramePicture& picture = film.frames[i].picture;
    if (!writeImage({{picture.image, picture.mask, AlphaMatrix()}, false}, name + "_" + std::to_string(i), folder))
      return false;
  }
  return true;
}

bool unpackFile(const std::string& path, const std::string& name, OutputFolder& folder) {
  const auto file = openAnyFile(path);
  if (!file) return false;
  if (isAnimated(*file, path)) return unpackFilm(path, file->span(), name, folder);
  int unpacked = 0;
  for (int i = 0; i < file->directory.presentCount(); ++i) {
    const auto image = decodeImage(*file, i);
    if (!image) continue;
    ++unpacked;
    if (!writeImage(*image, name + "_" + std::to_string(i), folder)) return false;
  }
  if (unpacked == 0) complain(path, "no usable image");
  return unpacked != 0;
}

}  // namespace

int runUnpack(const Arguments& arguments) {
  Arguments rest = arguments;
  FolderArguments given;
  const bool asPng = takeFlag(rest, "--png");
  if (const int status = takeFolderArguments("unpack", rest, given); status != kDone) return status;
  const auto unpack = asPng ? unpackPictures : unpackFile;
  OutputNames names;
  OutputFolder folder(given);
  int status = kDone;
  for (const std::string& path : given.files)
    if (!unpack(path, names.nameFor(stemOf(path)), folder)) status = kRefused;
  return status;
}

}  // namespace gp::cli
