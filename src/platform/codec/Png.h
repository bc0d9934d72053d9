// Decodes and encodes PNG pictures, from bytes to pixels and back. Nothing is kept between two calls; no input makes a
// function throw, print, or use more memory than its limits allow.
#pragma once

#include <array>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

namespace gp {

// The first bytes of every PNG picture.
inline constexpr std::array<std::uint8_t, 8> kPngSignature{0x89, 'P', 'N', 'G', '\r', '\n', 0x1A, '\n'};
// Bytes up to the end of the first chunk's content, IHDR.
inline constexpr std::size_t kPngHeaderSize = 29;

inline constexpr int kRgbaBytes = 4;
inline constexpr std::uint8_t kPngOpaque = 255;

// The largest width and height that is decoded.
struct PngLimits {
  int width = 0;
  int height = 0;
};
inline constexpr PngLimits kPngInIconFile{256, 256};  // a directory cannot state more
inline constexpr PngLimits kPngPicture{4096, 4096};   // a picture that icons are made from

// What the first chunks of a picture state. Nothing is checked: a side can be any number, 0 too.
struct PngHeader {
  std::uint32_t width = 0;
  std::uint32_t height = 0;
  int bitDepth = 0;
  int colorType = 0;
  bool hasAlpha = false;  // an alpha channel, or a chunk of transparent colours (tRNS)

  bool fits(PngLimits limits) const;
};

// A picture of 8 bits per channel: red, green, blue and alpha of each pixel, row by row from the top. Without an alpha
// channel every alpha is 255.
struct PngPicture {
  int width = 0;
  int height = 0;
  bool hasAlpha = false;
  std::vector<std::uint8_t> rgba;  // width x height x 4
};

enum class PngDefect {
  None,
  NotPng,    // without the signature or the first chunk
  TooLarge,  // no pixels, or more than the limits allow
  Damaged    // cut short, a wrong check sum, or content that contradicts the format
};

struct DecodedPng {
  PngDefect defect = PngDefect::None;
  PngPicture picture;  // empty with a defect

  bool isRead() const { return defect == PngDefect::None; }
};

// True when bytes begin with the signature.
bool isPng(std::span<const std::uint8_t> bytes);
// Reads the header; at most 64 chunks are searched for tRNS. Empty when the bytes do not begin with one.
std::optional<PngHeader> readPngHeader(std::span<const std::uint8_t> bytes);
// Decodes a picture of any colour type, bit depth and interlacing. Of an animated picture, this is the first one. Bytes
// behind the last chunk are ignored, and so are all chunks that do not change pixels, such as gamma and colour
// profiles. 16 bits per channel are rounded to 8.
[[nodiscard]] DecodedPng decodePng(std::span<const std::uint8_t> bytes, PngLimits limits);
enum class PngEffort {
  Small,  // the smallest file
  Fast    // for many pictures
};
// Encodes a picture with 8 bits per channel, without alpha if it has none. The bytes depend on the pixels only and have
// no chunks but IHDR, IDAT and IEND. Empty for a picture whose pixels do not match its size.
std::vector<std::uint8_t> encodePng(const PngPicture& picture, PngEffort effort = PngEffort::Small);

// Copies a picture without what does not change its pixels: all chunks but the header, palette, transparent colours,
// data and end, and the palette entries behind the last one that is used. Empty for a picture that cannot be decoded.
std::vector<std::uint8_t> strippedPng(std::span<const std::uint8_t> bytes, PngLimits limits);

}  // namespace gp
