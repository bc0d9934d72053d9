// Scaled pictures beside a slow model, which adds up all pixels of the source for each pixel of the result.
#include "platform/scaling/PictureScaling.h"
#include "support/SamplePictures.h"

#include <array>
#include <gtest/gtest.h>
#include <numbers>

namespace gp::test {
namespace {

using Light = std::array<long double, 4>;  // red, green and blue times alpha, and alpha

long double light(int stored) {
  const long double value = stored / 255.0L;
  return value <= 0.04045L ? value / 12.92L : std::pow((value + 0.055L) / 1.055L, 2.4L);
}

std::uint8_t storedLight(long double value) {
  value = std::clamp(value, 0.0L, 1.0L);
  const long double encoded = value <= 0.04045L / 12.92L ? value * 12.92L : 1.055L * std::pow(value, 1 / 2.4L) - 0.055L;
  return static_cast<std::uint8_t>(std::floor(encoded * 255 + 0.5L));
}

// The part of source pixel `at` that the target pixel covers.
long double boxWeight(int at, int target, long double step) {
  return std::max(0.0L, std::min<long double>(at + 1, (target + 1) * step) - std::max<long double>(at, target * step));
}

long double sinc(long double x) {
  return x == 0 ? 1 : std::sin(std::numbers::pi_v<long double> * x) / (std::numbers::pi_v<long double> * x);
}

long double lanczosWeight(int at, int target, long double step) {
  const long double x = (at + 0.5L - (target + 0.5L) * step) / std::max(step, 1.0L);
  return std::abs(x) < 3 ? sinc(x) * sinc(x / 3) : 0;
}

using Weight = long double (*)(int at, int target, long double step);

// The source pixels that count for a target pixel, with their weights.
using Weights = std::vector<std::pair<int, long double>>;

Weights weightsOf(int source, int target, int targets, Weight weight) {
  Weights weights;
  long double sum = 0;
  for (int at = 0; at < source; ++at)
    if (const long double w = weight(at, target, static_cast<long double>(source) / targets); w != 0) {
      weights.emplace_back(at, w);
      sum += w;
    }
  for (auto& [at, w] : weights) w /= sum;
  return weights;
}

std::vector<Light> lightsOf(const PngPicture& picture) {
  std::vector<Light> lights;
  for (std::size_t at = 0; at < picture.rgba.size(); at += 4) {
    const long double alpha = picture.rgba[at + 3] / 255.0L;
    lights.push_back({light(picture.rgba[at]) * alpha, light(picture.rgba[at + 1]) * alpha,
                      light(picture.rgba[at + 2]) * alpha, alpha});
  }
  return lights;
}

std::vector<std::uint8_t> modelOf(const PngPicture& picture, PictureSize size, Weight weight) {
  const std::vector<Light> lights = lightsOf(picture);
  std::vector<Weights> columns;
  for (int x = 0; x < size.width; ++x) columns.push_back(weightsOf(picture.width, x, size.width, weight));
  std::vector<std::uint8_t> out;
  for (int y = 0; y < size.height; ++y) {
    const Weights rows = weightsOf(picture.height, y, size.height, weight);
    for (int x = 0; x < size.width; ++x) {
      Light sum{};
      for (const auto& [fromY, rowWeight] : rows)
        for (const auto& [fromX, weightInRow] : columns[x])
          for (int i = 0; i < 4; ++i) sum[i] += rowWeight * weightInRow * lights[fromY * picture.width + fromX][i];
      const long double alpha = std::clamp(sum[3], 0.0L, 1.0L);
      const auto stored = static_cast<std::uint8_t>(std::floor(alpha * 255 + 0.5L));
      for (int i = 0; i < 3; ++i) out.push_back(stored == 0 ? std::uint8_t{0} : storedLight(sum[i] / alpha));
      out.push_back(stored);
    }
  }
  return out;
}

void expectModel(const PngPicture& picture, const std::vector<PictureSize>& sizes) {
  for (const auto& [filter, weight] :
       {std::pair(ScalingFilter::Box, &boxWeight), std::pair(ScalingFilter::Lanczos, &lanczosWeight)}) {
    const std::vector<PngPicture> scaled = scaledPictures(picture, sizes, filter);
    ASSERT_EQ(scaled.size(), sizes.size());
    for (std::size_t i = 0; i < sizes.size(); ++i) {
      EXPECT_EQ(scaled[i].width, sizes[i].width);
      EXPECT_EQ(scaled[i].height, sizes[i].height);
      EXPECT_EQ(scaled[i].hasAlpha, picture.hasAlpha);
      EXPECT_EQ(scaled[i].rgba, modelOf(picture, sizes[i], weight)) << sizes[i].width << "x" << sizes[i].height;
    }
  }
}

const std::vector<PictureSize> kIconSizes{{16, 16}, {24, 24}, {32, 32}, {48, 48}, {64, 64}};

TEST(PictureScaling, ALogoIsScaledAsTheModelDoes) { expectModel(logoPicture(150), kIconSizes); }

TEST(PictureScaling, APhotographIsScaledAsTheModelDoes) { expectModel(photoPicture(160, 160), kIconSizes); }

TEST(PictureScaling, LineArtIsScaledAsTheModelDoes) { expectModel(linePicture(140), kIconSizes); }

TEST(PictureScaling, EnlargedAndStretchedPicturesAreScaledAsTheModelDoes) {
  // Sizes for which no alpha is exactly between two stored values.
  expectModel(logoPicture(20), {{48, 48}, {7, 53}, {1, 1}});
  expectModel(photoPicture(40, 9), {{16, 4}, {64, 14}, {31, 20}});
  expectModel(photoPicture(1, 1), {{3, 2}});
}

TEST(PictureScaling, BlackAndWhiteMeetInTheMiddleOfTheirLight) {
  const PngPicture checks = drawn(64, 64, false, [](int x, int y) {
    return (x + y) % 2 == 0 ? Rgba{255, 255, 255, 255} : Rgba{0, 0, 0, 255};
  });
  const auto scaled = scaledPictures(checks, std::vector<PictureSize>{{16, 16}}, ScalingFilter::Box);
  // Half of the light is stored as 188, not as 128.
  for (std::size_t at = 0; at < scaled[0].rgba.size(); at += 4)
    ASSERT_EQ(std::vector(&scaled[0].rgba[at], &scaled[0].rgba[at] + 4),
              (std::vector<std::uint8_t>{188, 188, 188, 255}));
}

TEST(PictureScaling, TheColorOfTransparentPixelsDoesNotShow) {
  const PngPicture halves = drawn(32, 32, true, [](int x, int) {
    return x % 2 == 0 ? Rgba{200, 10, 10, 255} : Rgba{0, 255, 0, 0};
  });
  for (const ScalingFilter filter : {ScalingFilter::Box, ScalingFilter::Lanczos}) {
    const auto scaled = scaledPictures(halves, std::vector<PictureSize>{{4, 4}}, filter);
    for (std::size_t at = 0; at < scaled[0].rgba.size(); at += 4)
      ASSERT_EQ(std::vector(&scaled[0].rgba[at], &scaled[0].rgba[at] + 3), (std::vector<std::uint8_t>{200, 10, 10}));
  }
}

TEST(PictureScaling, ThePictureItselfIsTheSameInItsOwnSize) {
  for (const PngPicture& picture : {photoPicture(33, 21), linePicture(24)})
    for (const ScalingFilter filter : {ScalingFilter::Box, ScalingFilter::Lanczos}) {
      const auto scaled = scaledPictures(picture, std::vector<PictureSize>{{picture.width, picture.height}}, filter);
      EXPECT_EQ(scaled[0].rgba, picture.rgba);
    }
}

TEST(PictureScaling, TheOrderOfTheSizesIsKept) {
  const std::vector<PictureSize> sizes{{32, 32}, {8, 8}, {16, 16}};
  const auto all = scaledPictures(logoPicture(40), sizes, ScalingFilter::Box);
  for (std::size_t i = 0; i < sizes.size(); ++i)
    EXPECT_EQ(all[i].rgba, scaledPictures(logoPicture(40), std::span(&sizes[i], 1), ScalingFilter::Box)[0].rgba);
}

}  // namespace
}  // namespace gp::test
