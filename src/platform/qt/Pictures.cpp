#include "platform/qt/Pictures.h"

#include "platform/qt/PictureSheet.h"

#include <QGuiApplication>
#include <QIconEngine>
#include <QImage>
#include <QPainter>
#include <QPalette>

#include <algorithm>
#include <cstring>
#include <span>

extern "C" {
extern const unsigned char gp_sheet_100_light[], gp_sheet_100_dark[];
extern const unsigned char gp_sheet_150_light[], gp_sheet_150_dark[];
extern const unsigned char gp_sheet_200_light[], gp_sheet_200_dark[];
}

namespace gp {
namespace {

enum class Theme { Light, Dark };

struct Sheet {
  const unsigned char* light;
  const unsigned char* dark;
};

// Ordered like kSheetScales.
constexpr Sheet kSheets[] = {{gp_sheet_100_light, gp_sheet_100_dark},
                             {gp_sheet_150_light, gp_sheet_150_dark},
                             {gp_sheet_200_light, gp_sheet_200_dark}};

constexpr int kDarkLightness = 128;
constexpr qreal kDisabledOpacity = 0.35;

// The hot spot of a pointer: the pixel of the drawing's grid at the tip of the picture. Pictures that are not listed
// have their hot spot at the centre.
struct HotSpot {
  std::string_view name;
  int x, y;
};
constexpr HotSpot kHotSpots[] = {
    {"paint", 2, 17},   {"erase", 4, 14},           {"fill", 2, 17},       {"replace", 2, 2},
    {"restore", 2, 17}, {"color-picker", 2, 17},    {"line", 3, 3},        {"rectangle", 2, 4},
    {"oval", 2, 4},     {"filled-rectangle", 2, 4}, {"filled-oval", 2, 4},
};
constexpr HotSpot kCentre = {"", kPictureGrid / 2, kPictureGrid / 2};

HotSpot hotSpotOf(std::string_view name) {
  const auto found = std::ranges::find(kHotSpots, name, &HotSpot::name);
  return found == std::end(kHotSpots) ? kCentre : *found;
}

std::span<const SheetEntry> entriesOf(const unsigned char* sheet) {
  SheetHeader header;
  std::memcpy(&header, sheet, sizeof header);
  return {reinterpret_cast<const SheetEntry*>(sheet + sizeof header), header.count};
}

struct ByName {
  bool operator()(const SheetEntry& entry, std::string_view name) const { return entry.name < name; }
  bool operator()(std::string_view name, const SheetEntry& entry) const { return name < entry.name; }
};

// Returns all sizes of one picture in a sheet, smallest first.
std::span<const SheetEntry> entriesOf(const unsigned char* sheet, std::string_view name) {
  const std::span<const SheetEntry> all = entriesOf(sheet);
  const auto [first, last] = std::equal_range(all.begin(), all.end(), name, ByName());
  return {first, last};
}

// An image that refers to the sheet's pixels without copying them.
QImage viewOf(const unsigned char* sheet, const SheetEntry& entry) {
  const int size = static_cast<int>(entry.size);
  const auto rowBytes = static_cast<qsizetype>(sizeof(QRgb)) * size;
  return QImage(sheet + entry.offset, size, size, rowBytes, QImage::Format_ARGB32_Premultiplied);
}

struct Choice {
  const unsigned char* sheet = nullptr;
  const SheetEntry* entry = nullptr;

  // The exact size is best, then the smallest larger one, then the largest.
  bool isBetterThan(const Choice& other, std::uint32_t wanted) const {
    if (!other.entry) return true;
    const bool enough = entry->size >= wanted, otherEnough = other.entry->size >= wanted;
    if (enough != otherEnough) return enough;
    return enough ? entry->size < other.entry->size : entry->size > other.entry->size;
  }
};

Choice choose(std::string_view name, int pixels, Theme theme) {
  const auto wanted = static_cast<std::uint32_t>(pixels);
  Choice best;
  for (const Sheet& scale : kSheets) {
    const unsigned char* sheet = theme == Theme::Dark ? scale.dark : scale.light;
    for (const SheetEntry& entry : entriesOf(sheet, name)) {
      const Choice choice{sheet, &entry};
      if (choice.isBetterThan(best, wanted)) best = choice;
    }
    // The sheets of larger scales are not needed, so they are not read from the disk.
    if (best.entry && best.entry->size == wanted) break;
  }
  return best;
}

// Returns a picture of pixels x pixels; null for an unknown name.
QImage imageOf(std::string_view name, int pixels, Theme theme) {
  const Choice choice = choose(name, pixels, theme);
  if (!choice.entry || pixels <= 0) return {};
  QImage view = viewOf(choice.sheet, *choice.entry);
  if (view.width() == pixels) return view;
  return view.scaled(pixels, pixels, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

Theme currentTheme() {
  return QGuiApplication::palette().color(QPalette::Window).lightness() < kDarkLightness ? Theme::Dark : Theme::Light;
}

QImage faded(const QImage& image) {
  QImage result(image.size(), QImage::Format_ARGB32_Premultiplied);
  result.fill(Qt::transparent);
  QPainter painter(&result);
  painter.setOpacity(kDisabledOpacity);
  painter.drawImage(0, 0, image);
  return result;
}

// Draws at the requested size in the current theme, so that one icon works for every screen and palette.
class PictureEngine : public QIconEngine {
 public:
  PictureEngine(std::string_view name, bool isReversed) : name_(name), isReversed_(isReversed) {}

  QIconEngine* clone() const override { return new PictureEngine(*this); }
  QString iconName() override { return QString::fromStdString(name_); }

  QList<QSize> availableSizes(QIcon::Mode, QIcon::State) override {
    QList<QSize> sizes;
    for (const SheetEntry& entry : entriesOf(kSheets[0].light, name_)) {
      const int size = static_cast<int>(entry.size);
      sizes.append(QSize(size, size));
    }
    return sizes;
  }

  // `size` is in device pixels.
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State) override {
    const Last wanted{std::min(size.width(), size.height()), mode == QIcon::Disabled, theme()};
    if (wanted != last_ || pixmap_.isNull()) {
      const QImage image = imageOf(name_, wanted.pixels, wanted.theme);
      pixmap_ = QPixmap::fromImage(wanted.disabled ? faded(image) : image);
      last_ = wanted;
    }
    return pixmap_;
  }

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State state) override {
    const qreal ratio = painter->device() ? painter->device()->devicePixelRatioF() : 1.0;
    const int side = std::min(rect.width(), rect.height());
    const int pixels = qRound(side * ratio);
    QRect target(0, 0, side, side);
    target.moveCenter(rect.center());
    painter->drawPixmap(target, pixmap(QSize(pixels, pixels), mode, state));
  }

 private:
  struct Last {
    int pixels = 0;
    bool disabled = false;
    Theme theme = Theme::Light;
    bool operator==(const Last&) const = default;
  };

  Theme theme() const {
    if (!isReversed_) return currentTheme();
    return currentTheme() == Theme::Light ? Theme::Dark : Theme::Light;
  }

  std::string name_;
  bool isReversed_;
  Last last_;
  QPixmap pixmap_;
};

// Returns the picture over a white outline of its shape, one unit wide. The result is larger than the picture by
// `margin` pixels on each side.
QImage withOutline(const QImage& picture, int margin) {
  QImage shape = picture.convertToFormat(QImage::Format_ARGB32_Premultiplied);
  {
    QPainter tint(&shape);
    tint.setCompositionMode(QPainter::CompositionMode_SourceIn);
    tint.fillRect(shape.rect(), Qt::white);
  }
  QImage result(picture.width() + 2 * margin, picture.height() + 2 * margin, QImage::Format_ARGB32_Premultiplied);
  result.fill(Qt::transparent);
  QPainter painter(&result);
  for (int dy = -margin; dy <= margin; ++dy) {
    for (int dx = -margin; dx <= margin; ++dx) painter.drawImage(margin + dx, margin + dy, shape);
  }
  painter.drawImage(margin, margin, picture);
  return result;
}

QIcon iconOf(std::string_view name, bool isReversed) {
  return Pictures::has(name) ? QIcon(new PictureEngine(name, isReversed)) : QIcon();
}

}  // namespace

bool Pictures::has(std::string_view name) { return !entriesOf(kSheets[0].light, name).empty(); }

QIcon Pictures::icon(std::string_view name) { return iconOf(name, false); }

QIcon Pictures::reversedIcon(std::string_view name) { return iconOf(name, true); }

QPixmap Pictures::pixmap(std::string_view name, qreal devicePixelRatio, int size) {
  const QImage image = imageOf(name, qRound(size * devicePixelRatio), currentTheme());
  if (image.isNull()) return {};
  QPixmap pixmap = QPixmap::fromImage(image);
  pixmap.setDevicePixelRatio(devicePixelRatio);
  return pixmap;
}

QCursor Pictures::cursor(std::string_view name, qreal devicePixelRatio) {
  const QImage image = imageOf(name, qRound(kSize * devicePixelRatio), Theme::Light);
  if (image.isNull()) return QCursor(Qt::ArrowCursor);
  const int margin = std::max(1, qRound(devicePixelRatio));
  QPixmap pixmap = QPixmap::fromImage(withOutline(image, margin));
  pixmap.setDevicePixelRatio(devicePixelRatio);
  const HotSpot spot = hotSpotOf(name);
  // The outline's margin of one unit moves the hot spot by one.
  return QCursor(pixmap, spot.x + 1, spot.y + 1);
}

}  // namespace gp
