#include "platform/codec/Png.h"
#include "platform/codec/PngLibrary.h"
#include "platform/files/ByteReader.h"

#include <algorithm>
#include <optional>
#include <string_view>

namespace gp {
namespace {

constexpr std::size_t kChunkExtra = 12;  // length, type and check sum
constexpr std::size_t kTypeAt = 4, kContentAt = 8;
constexpr std::size_t kPaletteEntry = 3;
constexpr int kPaletteType = 3, kAlphaInType = 4;

struct Chunk {
  std::string_view type;
  std::span<const std::uint8_t> content;
  std::span<const std::uint8_t> whole;
};

std::uint32_t bigEndianAt(std::span<const std::uint8_t> bytes, std::size_t at) {
  return std::uint32_t{bytes[at]} << 24 | std::uint32_t{bytes[at + 1]} << 16 | std::uint32_t{bytes[at + 2]} << 8 |
         bytes[at + 3];
}

// The chunks of a picture that has been decoded, so each is whole up to the last one.
std::vector<Chunk> chunksOf(std::span<const std::uint8_t> bytes) {
  std::vector<Chunk> chunks;
  std::size_t at = kPngSignature.size();
  while (bytes.size() - at >= kChunkExtra) {
    const std::size_t size = bigEndianAt(bytes, at);
    if (size > bytes.size() - at - kChunkExtra) break;
    const auto* type = reinterpret_cast<const char*>(bytes.data() + at + kTypeAt);
    chunks.push_back({{type, kChunkExtra - kContentAt},
                      bytes.subspan(at + kContentAt, size),
                      bytes.subspan(at, size + kChunkExtra)});
    if (chunks.back().type == "IEND") break;
    at += size + kChunkExtra;
  }
  return chunks;
}

// The highest palette index of a picture that has been decoded; -1 if libpng refuses it.
int highestIndex(std::span<const std::uint8_t> bytes, const PngHeader& header) {
  PngInput input{bytes};
  png_structp png = png_create_read_struct(PNG_LIBPNG_VER_STRING, nullptr, jumpOnPngError, dropPngWarning);
  png_infop info = png ? png_create_info_struct(png) : nullptr;
  std::vector<std::uint8_t> indices(std::size_t{header.width} * header.height);
  std::vector<png_bytep> rows;
  for (std::size_t y = 0; y < header.height; ++y) rows.push_back(indices.data() + y * header.width);
  const bool isRead = info && runPngStep(png, [&] {
                        png_set_read_fn(png, &input, readPngInput);
                        png_read_info(png, info);
                        png_set_packing(png);
                        png_set_interlace_handling(png);
                        png_read_update_info(png, info);
                        if (png_get_rowbytes(png, info) != header.width) png_error(png, "not a palette");
                        png_read_image(png, rows.data());
                      });
  png_destroy_read_struct(&png, &info, nullptr);
  return isRead ? *std::ranges::max_element(indices) : -1;
}

std::uint32_t checkSum(std::span<const std::uint8_t> bytes) {
  constexpr std::uint32_t kPolynomial = 0xEDB88320;
  std::uint32_t sum = 0xFFFFFFFF;
  for (const std::uint8_t byte : bytes) {
    sum ^= byte;
    for (int bit = 0; bit < 8; ++bit) sum = sum >> 1 ^ ((sum & 1) != 0 ? kPolynomial : 0);
  }
  return ~sum;
}

void appendBigEndian(std::uint32_t value, std::vector<std::uint8_t>& out) {
  for (const int shift : {24, 16, 8, 0}) out.push_back(static_cast<std::uint8_t>(value >> shift));
}

void appendChunk(const Chunk& chunk, std::size_t size, std::vector<std::uint8_t>& out) {
  if (size >= chunk.content.size()) {
    out.insert(out.end(), chunk.whole.begin(), chunk.whole.end());
    return;
  }
  const std::size_t start = out.size() + kTypeAt;
  appendBigEndian(static_cast<std::uint32_t>(size), out);
  const auto kept = chunk.whole.subspan(kTypeAt, kContentAt - kTypeAt + size);
  out.insert(out.end(), kept.begin(), kept.end());
  appendBigEndian(checkSum(std::span(out).subspan(start)), out);
}

// How many bytes of a chunk are kept with that many colours; nothing for one that is left out.
std::optional<std::size_t> keptSize(const Chunk& chunk, int colorType, std::size_t colors) {
  const bool hasPalette = colorType == kPaletteType;
  if (chunk.type == "PLTE") return hasPalette ? std::optional(colors * kPaletteEntry) : std::nullopt;
  if (chunk.type == "tRNS") {
    if ((colorType & kAlphaInType) != 0) return std::nullopt;
    return hasPalette ? colors : chunk.content.size();
  }
  const bool isKept = chunk.type == "IHDR" || chunk.type == "IDAT" || chunk.type == "IEND";
  return isKept ? std::optional(chunk.content.size()) : std::nullopt;
}

}  // namespace

std::vector<std::uint8_t> strippedPng(std::span<const std::uint8_t> bytes, PngLimits limits) {
  const auto header = readPngHeader(bytes);
  const DecodedPng decoded = decodePng(bytes, limits);
  if (!header || !decoded.isRead()) return {};
  const int highest = header->colorType == kPaletteType ? highestIndex(bytes, *header) : 0;
  if (highest < 0) return {};
  std::vector<std::uint8_t> out(kPngSignature.begin(), kPngSignature.end());
  for (const Chunk& chunk : chunksOf(bytes))
    if (const auto size = keptSize(chunk, header->colorType, static_cast<std::size_t>(highest) + 1))
      appendChunk(chunk, *size, out);
  const DecodedPng again = decodePng(out, limits);
  return again.isRead() && again.picture.rgba == decoded.picture.rgba ? out : std::vector<std::uint8_t>();
}

}  // namespace gp
