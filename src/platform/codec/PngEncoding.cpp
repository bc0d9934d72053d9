#include "platform/codec/Png.h"
#include "platform/codec/PngLibrary.h"

#include <cstddef>
#include <new>
#include <utility>

namespace gp {
namespace {

constexpr int kBitDepth = 8;
constexpr int kBestCompression = 9;
constexpr int kFastCompression = 1;
constexpr int kRunsOnly = 3;  // Z_RLE of zlib

// What libpng has written. No exception may leave a function that libpng calls.
struct Written {
  std::vector<std::uint8_t> bytes;

  bool append(png_const_bytep data, std::size_t count) noexcept {
    try {
      bytes.insert(bytes.end(), data, data + count);
      return true;
    } catch (const std::bad_alloc&) {
      return false;
    }
  }
};

void writeBytes(png_structp png, png_bytep data, std::size_t count) {
  if (!static_cast<Written*>(png_get_io_ptr(png))->append(data, count)) png_error(png, "out of memory");
}

class Encoding {
 public:
  Encoding(const PngPicture& picture, PngEffort effort)
      : picture_(picture),
        effort_(effort),
        png_(png_create_write_struct(PNG_LIBPNG_VER_STRING, nullptr, jumpOnPngError, dropPngWarning)),
        info_(png_ ? png_create_info_struct(png_) : nullptr) {}
  ~Encoding() { png_destroy_write_struct(&png_, &info_); }
  Encoding(const Encoding&) = delete;
  Encoding& operator=(const Encoding&) = delete;

  bool run() {
    return info_ && runPngStep(png_, [&] {
             png_set_write_fn(png_, &output_, writeBytes, nullptr);
             chooseCompression();
             writeHeader();
             writeRows();
             png_write_end(png_, nullptr);
           });
  }
  std::vector<std::uint8_t>& bytes() { return output_.bytes; }

 private:
  // Of the pixels as they are, only runs are searched for. This takes a fraction of the usual time, for files that are
  // a little larger.
  void chooseCompression() {
    if (effort_ == PngEffort::Small) {
      png_set_compression_level(png_, kBestCompression);
      return;
    }
    png_set_compression_level(png_, kFastCompression);
    png_set_compression_strategy(png_, kRunsOnly);
    png_set_filter(png_, PNG_FILTER_TYPE_BASE, PNG_FILTER_NONE);
  }

  void writeHeader() {
    png_set_IHDR(png_, info_, static_cast<png_uint_32>(picture_.width), static_cast<png_uint_32>(picture_.height),
                 kBitDepth, picture_.hasAlpha ? PNG_COLOR_TYPE_RGB_ALPHA : PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png_, info_);
    if (!picture_.hasAlpha) png_set_filler(png_, 0, PNG_FILLER_AFTER);  // the pixels have a fourth byte all the same
  }

  void writeRows() {
    const std::size_t stride = static_cast<std::size_t>(picture_.width) * kRgbaBytes;
    for (std::size_t at = 0; at < picture_.rgba.size(); at += stride) png_write_row(png_, picture_.rgba.data() + at);
  }

  const PngPicture& picture_;
  PngEffort effort_;
  Written output_;
  png_structp png_;
  png_infop info_;
};

bool isComplete(const PngPicture& picture) {
  return picture.width >= 1 && picture.height >= 1 &&
         picture.rgba.size() ==
             static_cast<std::size_t>(picture.width) * static_cast<std::size_t>(picture.height) * kRgbaBytes;
}

}  // namespace

std::vector<std::uint8_t> encodePng(const PngPicture& picture, PngEffort effort) {
  if (!isComplete(picture)) return {};
  Encoding encoding(picture, effort);
  if (!encoding.run()) return {};
  return std::move(encoding.bytes());
}

}  // namespace gp
