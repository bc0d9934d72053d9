#include "files/format/IconRows.h"

#include "files/format/IcoLayout.h"
#include "palette/clsGPPal.h"

#include <algorithm>

namespace gp {

namespace {

constexpr int kBitsPerByte = 8;
// Readers take an alpha of 0 for a transparent pixel; 1 looks the same, and the pixel stays painted.
constexpr std::uint8_t kTransparentAlpha = 0;
constexpr std::uint8_t kLeastPaintedAlpha = 1;

constexpr std::uint8_t byteOf(int channel) { return static_cast<std::uint8_t>(channel); }

constexpr PaletteEntry entryOf(Color color) {
  return {byteOf(blueOf(color)), byteOf(greenOf(color)), byteOf(redOf(color)), 0};
}

template <std::size_t Count>
constexpr std::array<PaletteEntry, Count> entriesOf(const std::array<Color, Count>& colors) {
  std::array<PaletteEntry, Count> entries{};
  std::ranges::transform(colors, entries.begin(), entryOf);
  return entries;
}

std::uint32_t colorOf(std::uint32_t pixel) { return pixel & kColorBits; }

void padRow(std::size_t written, ByteWriter& out) { out.zeros(ico::aligned(written) - written); }

void writeBgr(std::uint32_t pixel, ByteWriter& out) {
  const PaletteEntry entry = entryOf(static_cast<Color>(pixel));
  out.bytes(std::span(entry).first(3));
}

// Eight pixels, or the rest of the row; missing pixels count as white.
std::uint8_t maskByte(std::span<const std::uint32_t> pixels) {
  unsigned bits = 0;
  for (std::size_t i = 0; i < kBitsPerByte; ++i)
    bits = bits << 1 | (i >= pixels.size() || colorOf(pixels[i]) == storedForm(kWhite) ? 1 : 0);
  return static_cast<std::uint8_t>(bits);
}

void writeMaskRow(std::span<const std::uint32_t> row, ByteWriter& out) {
  const std::size_t bytes = ico::rowBytes(static_cast<int>(row.size()), 1);
  for (std::size_t i = 0; i < bytes; ++i) out.u8(maskByte(row.subspan(i * kBitsPerByte)));
  padRow(bytes, out);
}

// Finds indices in mPal16. Colours that are not in it get the previous index.
class Index16 {
 public:
  unsigned of(std::uint32_t pixel) {
    const auto found = std::ranges::find(mPal16, entryOf(static_cast<Color>(colorOf(pixel))));
    if (found != mPal16.end()) last_ = static_cast<unsigned>(found - mPal16.begin());
    return last_;
  }

 private:
  unsigned last_ = 0;
};

void writeRow16(std::span<const std::uint32_t> row, Index16& index, ByteWriter& out) {
  for (std::size_t x = 0; x < row.size(); x += 2) {
    const unsigned high = index.of(row[x]);
    const unsigned low = x + 1 < row.size() ? index.of(row[x + 1]) : 0;
    out.u8(static_cast<std::uint8_t>(high << 4 | low));
  }
  padRow((row.size() + 1) / 2, out);
}

}  // namespace

const std::array<PaletteEntry, 2> mPalMono = entriesOf(std::array{kBlack, kWhite});
const std::array<PaletteEntry, 16> mPal16 = entriesOf(kStandardPalette);

Pal256::Pal256() : colors_{storedForm(kBlack), storedForm(kWhite)} {}

bool Pal256::add(std::uint32_t color) {
  if (std::ranges::find(colors_, color) != colors_.end()) return true;
  if (colors_.size() == ico::kMaxPaletteColors) return false;
  colors_.push_back(color);
  return true;
}

std::uint8_t Pal256::indexOf(std::uint32_t color) const {
  const auto found = std::ranges::find(colors_, color);
  return found == colors_.end() ? 0 : static_cast<std::uint8_t>(found - colors_.begin());
}

void Pal256::write(ByteWriter& out) const {
  for (const std::uint32_t color : colors_) out.bytes(entryOf(static_cast<Color>(color)));
  out.zeros((ico::kMaxPaletteColors - colors_.size()) * ico::kPaletteEntrySize);
}

std::optional<Pal256> BuildPal256(const Surface& surface) {
  Pal256 palette;
  for (const std::uint32_t pixel : surface.pixels())
    if (!palette.add(colorOf(pixel))) return std::nullopt;
  return palette;
}

void writePalette(std::span<const PaletteEntry> palette, ByteWriter& out) {
  for (const PaletteEntry& entry : palette) out.bytes(entry);
}

void WriteMaskRows(const Surface& surface, ByteWriter& out) {
  for (int y = surface.height() - 1; y >= 0; --y) writeMaskRow(surface.row(y), out);
}

void WriteRows16(const Surface& surface, ByteWriter& out) {
  Index16 index;
  for (int y = surface.height() - 1; y >= 0; --y) writeRow16(surface.row(y), index, out);
}

void WriteRows256(const Surface& surface, const Pal256& palette, ByteWriter& out) {
  for (int y = surface.height() - 1; y >= 0; --y) {
    for (const std::uint32_t pixel : surface.row(y)) out.u8(palette.indexOf(colorOf(pixel)));
    padRow(static_cast<std::size_t>(surface.width()), out);
  }
}

void WriteRowsTrue(const Surface& surface, const Surface& maskSurface, const AlphaMatrix* alpha, ByteWriter& out) {
  for (int y = surface.height() - 1; y >= 0; --y) {
    for (int x = 0; x < surface.width(); ++x) {
      writeBgr(storedForm(surface.GetPixel(x, y)), out);
      if (!alpha) continue;
      const bool isPainted = maskSurface.GetPixel(x, y) == kBlack;
      out.u8(isPainted ? std::max(alpha->at(x, y), kLeastPaintedAlpha) : kTransparentAlpha);
    }
  }
}

}  // namespace gp
