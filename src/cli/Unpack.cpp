#include "cli/Subcommands.h"
#include "files/IconDecoder.h"
#include "files/IconProbe.h"
#include "platform/text/Paths.h"

#include <filesystem>
#include <set>

namespace gp::cli {
namespace {

constexpr int kAlphaBits = 32;
constexpr std::uint8_t kTransparent = 255;
constexpr std::uint8_t kOpaque = 0;

// Bytes of a portable pixmap or graymap: a line of text and the samples.
class Netpbm {
 public:
  Netpbm(const char* magic, int width, int height, std::size_t bytesPerPixel) {
    const std::string header =
        std::string(magic) + "\n" + std::to_string(width) + " " + std::to_string(height) + "\n255\n";
    bytes_.reserve(header.size() + static_cast<std::size_t>(width) * height * bytesPerPixel);
    bytes_.assign(header.begin(), header.end());
  }
  void add(int sample) { bytes_.push_back(static_cast<std::uint8_t>(sample)); }
  bool writeTo(const std::string& path) const { return replaceFile(path, bytes_); }

 private:
  std::vector<std::uint8_t> bytes_;
};

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

// Gives each input a name of its own: NAME, NAME-2, NAME-3 ...
class OutputNames {
 public:
  std::string nameFor(const std::string& path) {
    const std::string bare = std::filesystem::path(path).stem().string();
    std::string name = bare;
    for (int number = 2; !taken_.insert(name).second; ++number) name = bare + "-" + std::to_string(number);
    return name;
  }

 private:
  std::set<std::string> taken_;
};

// Decodes one entry as the editor does and writes its files. False when one cannot be written.
bool unpackEntry(const IconFile& file, int index, const std::string& prefix) {
  const IconEntry entry = file.directory.entry(index);
  Surface image(entry.width, entry.height), mask(entry.width, entry.height);
  AlphaMatrix alpha;
  if (decodeEntry(file.bytes.span(), entry, entry.width, entry.height, {image, mask, alpha}) != IconDefect::None)
    return false;
  const std::string start = prefix + "_" + std::to_string(index);
  const bool hasAlpha = factsOfEntry(file.bytes.span(), file.directory, index).bitCount() == kAlphaBits;
  return imageFile(image).writeTo(start + ".image.ppm") && maskFile(mask).writeTo(start + ".mask.pgm") &&
         (!hasAlpha || alphaFile(alpha).writeTo(start + ".alpha.pgm"));
}

bool unpackFile(const std::string& path, const std::string& prefix) {
  const auto file = openIconFile(path);
  if (!file) return false;
  int unpacked = 0;
  for (int i = 0; i < static_cast<int>(file->directory.entries.size()); ++i) {
    if (!isUsableEntry(file->bytes.span(), file->directory.entry(i))) continue;
    ++unpacked;
    if (unpackEntry(*file, i, prefix)) continue;
    complain(path, "image " + std::to_string(i) + " cannot be written to " + prefix);
    return false;
  }
  if (unpacked == 0) complain(path, "no usable image");
  return unpacked != 0;
}

// Splits "FILE... -d DIR"; false without exactly one folder.
bool takeFolder(const Arguments& arguments, Arguments& others, std::string& folder) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (arguments[i] == "--") {
      others.insert(others.end(), arguments.begin() + static_cast<std::ptrdiff_t>(i), arguments.end());
      break;
    }
    if (arguments[i] != "-d") {
      others.push_back(arguments[i]);
      continue;
    }
    if (!folder.empty() || ++i == arguments.size()) return false;
    folder = arguments[i];
  }
  return !folder.empty();
}

bool makeFolder(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  return directoryExists(folder);
}

}  // namespace

int runUnpack(const Arguments& arguments) {
  Arguments others;
  std::string folder;
  if (!takeFolder(arguments, others, folder)) return badUsage("unpack: one -d DIR is needed");
  const Split split = splitOptions(others);
  if (!split.options.empty()) return badUsage("unpack: unknown option " + split.options.front());
  if (split.files.empty()) return badUsage("unpack: no file given");
  if (!makeFolder(folder)) {
    complain(folder, "not a folder, and cannot be made");
    return kRefused;
  }
  OutputNames names;
  int status = kDone;
  for (const std::string& path : split.files)
    if (!unpackFile(path, folder + "/" + names.nameFor(path))) status = kRefused;
  return status;
}

}  // namespace gp::cli
