#include "platform/codec/Png.h"
#include "platform/codec/PngLibrary.h"

#include <vector>

namespace gp {
namespace {

// One picture being decoded. Each step returns false if libpng refuses the picture.
class Decoding {
 public:
  Decoding(std::span<const std::uint8_t> bytes, const PngHeader& header)
      : header_(header),
        input_{bytes},
        png_(png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, jumpOnPngError, dropPngWarning)),
        info_(png_ ? png_create_info_struct(png_) : nullptr) {}
  ~Decoding() { png_destroy_read_struct(&png_, &info_, nullptr); }
  Decoding(const Decoding&) = delete;
  Decoding& operator=(const Decoding&) = delete;

  bool start(PngLimits limits) {
    return info_ && runPngStep(png_, [&] {
             png_set_user_limits(png_, static_cast<png_uint_32>(limits.width), static_cast<png_uint_32>(limits.height));
             // A negative count: all chunks but the critical ones and tRNS.
             png_set_keep_unknown_chunks(png_, PNG_HANDLE_CHUNK_NEVER, nullptr, -1);
             png_set_read_fn(png_, &input_, readPngInput);
             png_read_info(png_, info_);
             hasTransparency_ = png_get_valid(png_, info_, PNG_INFO_tRNS) != 0;
             convertToRgba();
             png_read_update_info(png_, info_);
           });
  }

  // libpng skips a damaged chunk of transparent colours.
  bool hasStatedAlpha() const {
    return !header_.hasAlpha || (header_.colorType & PNG_COLOR_MASK_ALPHA) != 0 || hasTransparency_;
  }

  bool isRgba() const {
    return png_get_rowbytes(png_, info_) == std::size_t{header_.width} * kRgbaBytes &&
           png_get_image_width(png_, info_) == header_.width && png_get_image_height(png_, info_) == header_.height;
  }

  // `rows` contains the start of each row. Reads up to the end of the last chunk.
  bool finish(std::span<png_bytep> rows) {
    return runPngStep(png_, [&] {
      png_read_image(png_, rows.data());
      png_read_end(png_, nullptr);
    });
  }

 private:
  void convertToRgba() {
    png_set_scale_16(png_);
    png_set_expand(png_);  // palette, fewer than 8 bits, and tRNS
    png_set_gray_to_rgb(png_);
    if (!header_.hasAlpha) png_set_strip_alpha(png_);
    png_set_add_alpha(png_, kPngOpaque, PNG_FILLER_AFTER);
    png_set_interlace_handling(png_);
  }

  const PngHeader& header_;
  PngInput input_;
  png_structp png_;
  png_infop info_;
  bool hasTransparency_ = false;
};

std::vector<png_bytep> rowsOf(PngPicture& picture) {
  std::vector<png_bytep> rows;
  const std::size_t stride = static_cast<std::size_t>(picture.width) * kRgbaBytes;
  for (std::size_t at = 0; at < picture.rgba.size(); at += stride) rows.push_back(picture.rgba.data() + at);
  return rows;
}

PngPicture blankPicture(const PngHeader& header) {
  PngPicture picture{static_cast<int>(header.width), static_cast<int>(header.height), header.hasAlpha, {}};
  picture.rgba.resize(std::size_t{header.width} * header.height * kRgbaBytes);
  return picture;
}

}  // namespace

DecodedPng decodePng(std::span<const std::uint8_t> bytes, PngLimits limits) {
  const auto header = readPngHeader(bytes);
  if (!header) return {PngDefect::NotPng, {}};
  if (!header->fits(limits)) return {PngDefect::TooLarge, {}};
  Decoding decoding(bytes, *header);
  if (!decoding.start(limits) || !decoding.hasStatedAlpha() || !decoding.isRgba()) return {PngDefect::Damaged, {}};
  DecodedPng decoded{PngDefect::None, blankPicture(*header)};
  std::vector<png_bytep> rows = rowsOf(decoded.picture);
  if (!decoding.finish(rows)) return {PngDefect::Damaged, {}};
  return decoded;
}

}  // namespace gp
