#include "cli/HalfBlocks.h"

#include "platform/gdi/Surface.h"

#include <optional>

namespace gp::cli {
namespace {

constexpr std::uint8_t kVisibleFrom = 128;
constexpr const char* kReset = "\x1B[0m";
constexpr const char* kUpper = "\u2580";
constexpr const char* kLower = "\u2584";
constexpr const char* kFull = "\u2588";

using Pixel = std::optional<Color>;  // empty for a transparent one

Pixel pixelAt(const PngPicture& picture, int x, int y) {
  if (y >= picture.height) return std::nullopt;
  const std::size_t at = (static_cast<std::size_t>(y) * picture.width + x) * kRgbaBytes;
  if (picture.rgba[at + 3] < kVisibleFrom) return std::nullopt;
  return rgb(picture.rgba[at], picture.rgba[at + 1], picture.rgba[at + 2]);
}

enum class Layer { Fore = 38, Back = 48 };

std::string sequence(Layer layer, Color color) {
  return "\x1B[" + std::to_string(static_cast<int>(layer)) + ";2;" + std::to_string(redOf(color)) + ";" +
         std::to_string(greenOf(color)) + ";" + std::to_string(blueOf(color)) + "m";
}

// One line of text. Control sequences are written only where a colour changes.
class Line {
 public:
  explicit Line(bool withColors) : withColors_(withColors) {}

  void add(Pixel upper, Pixel lower) {
    if (withColors_)
      addColored(upper, lower);
    else
      addShape(upper.has_value(), lower.has_value());
  }
  std::string take() {
    if (withColors_)
      text_ += kReset;
    else
      text_.resize(end_);
    return text_ + "\n";
  }

 private:
  void addShape(bool upper, bool lower) {
    text_ += upper ? (lower ? kFull : kUpper) : (lower ? kLower : " ");
    if (upper || lower) end_ = text_.size();
  }
  void addColored(Pixel upper, Pixel lower) {
    const bool isLowerOnly = !upper && lower;
    choose(isLowerOnly ? lower : upper, upper ? lower : std::nullopt);
    text_ += isLowerOnly ? kLower : upper ? kUpper : " ";
  }
  void choose(Pixel fore, Pixel back) {
    if (back_ && !back) {
      text_ += kReset;
      fore_ = back_ = std::nullopt;
    }
    if (fore && fore != fore_) text_ += sequence(Layer::Fore, *fore);
    if (back && back != back_) text_ += sequence(Layer::Back, *back);
    if (fore) fore_ = fore;
    back_ = back;
  }

  bool withColors_;
  std::string text_;
  std::size_t end_ = 0;  // of the last visible shape
  Pixel fore_, back_;
};

}  // namespace

std::string halfBlocks(const PngPicture& picture, bool withColors) {
  std::string text;
  for (int y = 0; y < picture.height; y += 2) {
    Line line(withColors);
    for (int x = 0; x < picture.width; ++x) line.add(pixelAt(picture, x, y), pixelAt(picture, x, y + 1));
    text += line.take();
  }
  return text;
}

}  // namespace gp::cli
