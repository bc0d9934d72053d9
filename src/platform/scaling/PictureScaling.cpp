#include "platform/scaling/PictureScaling.h"

#include "platform/scaling/LinearLight.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace gp {
namespace {

constexpr std::size_t kChannels = kRgbaBytes;
constexpr std::size_t kAlpha = 3;
constexpr double kMostAlpha = kPngOpaque;

// Red, green and blue in linear light times alpha, and alpha, of each pixel.
using LightRow = std::vector<double>;

void readRow(std::span<const std::uint8_t> stored, const LinearLight& light, LightRow& row) {
  for (std::size_t at = 0; at < stored.size(); at += kChannels) {
    const double alpha = stored[at + kAlpha] / kMostAlpha;
    for (std::size_t i = 0; i < kAlpha; ++i) row[at + i] = light.linearOf(stored[at + i]) * alpha;
    row[at + kAlpha] = alpha;
  }
}

// The stored form of a pixel. Filters with negative weights can leave the range of alpha and of light.
void storePixel(const double* pixel, const LinearLight& light, std::uint8_t* stored) {
  const double alpha = std::clamp(pixel[kAlpha], 0.0, 1.0);
  stored[kAlpha] = static_cast<std::uint8_t>(std::floor(alpha * kMostAlpha + 0.5));
  if (stored[kAlpha] == 0) return;
  for (std::size_t i = 0; i < kAlpha; ++i) stored[i] = light.storedOf(pixel[i] / alpha);
}

// One size while the rows of the source come in from the top.
class Scaling {
 public:
  Scaling(PictureSize source, PictureSize target, ScalingFilter filter)
      : target_(target),
        columns_(filterTaps(source.width, target.width, filter)),
        rows_(filterTaps(source.height, target.height, filter)),
        row_(static_cast<std::size_t>(target.width) * kChannels),
        sums_(row_.size() * static_cast<std::size_t>(target.height)) {}

  void add(int y, const LightRow& source) {
    shrinkRow(source);
    while (first_ < rows_.size() && rows_[first_].end() <= y) ++first_;
    for (std::size_t target = first_; target < rows_.size() && rows_[target].first <= y; ++target)
      addRow(target, rows_[target].weights[static_cast<std::size_t>(y - rows_[target].first)]);
  }

  PngPicture result(bool hasAlpha, const LinearLight& light) const {
    PngPicture picture{target_.width, target_.height, hasAlpha, std::vector<std::uint8_t>(sums_.size())};
    for (std::size_t at = 0; at < sums_.size(); at += kChannels) storePixel(&sums_[at], light, &picture.rgba[at]);
    return picture;
  }

 private:
  void shrinkRow(const LightRow& source) {
    double* out = row_.data();
    for (const PixelTaps& taps : columns_) {
      const double* pixel = source.data() + static_cast<std::size_t>(taps.first) * kChannels;
      std::array<double, kChannels> sum{};
      for (const double weight : taps.weights) {
        for (std::size_t i = 0; i < kChannels; ++i) sum[i] += weight * pixel[i];
        pixel += kChannels;
      }
      out = std::ranges::copy(sum, out).out;
    }
  }

  void addRow(std::size_t target, double weight) {
    double* const sums = &sums_[target * row_.size()];
    for (std::size_t i = 0; i < row_.size(); ++i) sums[i] += weight * row_[i];
  }

  PictureSize target_;
  std::vector<PixelTaps> columns_;
  std::vector<PixelTaps> rows_;
  LightRow row_;  // the source row, scaled along its length
  LightRow sums_;
  std::size_t first_ = 0;  // the first target row that has not got all of its source rows
};

}  // namespace

std::vector<PngPicture> scaledPictures(const PngPicture& source, std::span<const PictureSize> sizes,
                                       ScalingFilter filter) {
  const LinearLight light;
  std::vector<Scaling> scalings;
  scalings.reserve(sizes.size());
  for (const PictureSize size : sizes) scalings.emplace_back(PictureSize{source.width, source.height}, size, filter);
  LightRow row(static_cast<std::size_t>(source.width) * kChannels);
  for (int y = 0; y < source.height; ++y) {
    readRow(std::span(source.rgba).subspan(static_cast<std::size_t>(y) * row.size(), row.size()), light, row);
    for (Scaling& scaling : scalings) scaling.add(y, row);
  }
  std::vector<PngPicture> pictures;
  pictures.reserve(sizes.size());
  for (const Scaling& scaling : scalings) pictures.push_back(scaling.result(source.hasAlpha, light));
  return pictures;
}

}  // namespace gp
