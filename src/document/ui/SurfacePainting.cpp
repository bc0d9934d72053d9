#include "document/ui/SurfacePainting.h"

#include <QWidget>

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <vector>

namespace gp {
namespace {

constexpr QRgb kOpaque = 0xFF000000;
constexpr int kRedShift = 16;

// Converts 0x00BBGGRR to 0xffRRGGBB.
QRgb swapped(std::uint32_t pixel) {
  return kOpaque | (pixel & 0xFF) << kRedShift | (pixel & 0xFF00) | (pixel >> kRedShift & 0xFF);
}

std::vector<int> sourceColumns(const ScreenScale& scale, const QRect& part) {
  std::vector<int> columns(static_cast<std::size_t>(part.width()));
  for (int x = 0; x < part.width(); ++x) columns[static_cast<std::size_t>(x)] = scale.sourceOf(part.left() + x);
  return columns;
}

void fillLine(QRgb* line, std::span<const std::uint32_t> row, const std::vector<int>& columns) {
  std::ranges::transform(columns, line, [row](int x) { return swapped(row[static_cast<std::size_t>(x)]); });
}

}  // namespace

QPointF deviceShift(const QWidget* widget) {
  const double ratio = widget->devicePixelRatioF();
  const QPoint corner = widget->mapTo(widget->window(), QPoint(0, 0));
  const auto shift = [ratio](int position) { return std::round(position * ratio) / ratio - position; };
  return {shift(corner.x()), shift(corner.y())};
}

QPoint devicePointAt(const QWidget* widget, const QPointF& position) {
  const QPointF device = (position - deviceShift(widget)) * widget->devicePixelRatioF();
  return {static_cast<int>(std::floor(device.x())), static_cast<int>(std::floor(device.y()))};
}

QRgb toRgb(Color color) { return swapped(storedForm(color)); }

DevicePainter::DevicePainter(QWidget* widget) : QPainter(widget), ratio_(widget->devicePixelRatioF()) {
  translate(deviceShift(widget));
  scale(1 / ratio_, 1 / ratio_);
}

QRect DevicePainter::toDevice(const QRect& logical) const {
  const auto low = [this](int position) { return static_cast<int>(std::floor(position * ratio_)); };
  const auto high = [this](int position) { return static_cast<int>(std::ceil(position * ratio_)); };
  const QPoint from(low(logical.left()), low(logical.top()));
  return {from, QSize(high(logical.x() + logical.width()) - from.x(), high(logical.y() + logical.height()) - from.y())};
}

QImage imageOf(const Surface& surface, const ScreenScale& scale, const QRect& part) {
  QImage image(part.size(), QImage::Format_RGB32);
  const std::vector<int> columns = sourceColumns(scale, part);
  const std::size_t lineBytes = columns.size() * sizeof(QRgb);
  int lineSource = -1;
  for (int y = 0; y < part.height(); ++y) {
    auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
    const int source = scale.sourceOf(part.top() + y);
    if (source == lineSource)
      std::memcpy(line, image.constScanLine(y - 1), lineBytes);
    else
      fillLine(line, surface.row(source), columns);
    lineSource = source;
  }
  return image;
}

void paintCentred(DevicePainter& painter, const Surface& surface, const QRect& area, double ratio) {
  const ScreenScale columns(surface.width(), 1, ratio), rows(surface.height(), 1, ratio);
  const QSize size(columns.deviceSize(), rows.deviceSize());
  if (size.isEmpty()) return;
  const QPoint corner = area.topLeft() + QPoint((area.width() - size.width()) / 2, (area.height() - size.height()) / 2);
  const QRect visible = QRect(corner, size) & area;
  painter.drawImage(visible.topLeft(), imageOf(surface, columns, visible.translated(-corner)));
}

}  // namespace gp
