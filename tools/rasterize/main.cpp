// Converts the SVG pictures to the sheets that are embedded in the program: one file per scale and theme. It needs no
// display, because it draws on images only.
#include "platform/qt/PictureSheet.h"

#include <QByteArray>
#include <QFile>
#include <QFileInfo>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <algorithm>
#include <cstdio>
#include <cstring>
#include <optional>
#include <tuple>
#include <vector>

namespace {

constexpr int kWholePercent = 100;
constexpr int kUsageStatus = 2;

struct Source {
  QByteArray name;
  QByteArray svg;
  std::vector<int> sizes;  // at 100 %
};

struct Picture {
  QByteArray name;
  QImage image;
};

// The two neutral colours of the pictures. The dark theme is the same drawing with each replaced by its counterpart.
struct Neutral {
  const char* light;
  const char* dark;
};
constexpr Neutral kNeutrals[] = {{"#3B4252", "#D8DEE9"}, {"#FFFFFF", "#2E3440"}};

QByteArray darkened(QByteArray svg) {
  for (const Neutral& neutral : kNeutrals) svg.replace(neutral.light, neutral.dark);
  return svg;
}

// An argument is FILE or FILE:SIZE,SIZE...; nothing if it cannot be parsed.
std::optional<Source> readSource(const QByteArray& argument) {
  const qsizetype colon = argument.lastIndexOf(':');
  const QByteArray path = colon < 0 ? argument : argument.left(colon);
  QFile file(QString::fromLocal8Bit(path));
  if (!file.open(QIODevice::ReadOnly)) return std::nullopt;
  Source source{QFileInfo(file).completeBaseName().toUtf8(), file.readAll(), {gp::kPictureGrid}};
  if (colon >= 0) {
    source.sizes.clear();
    for (const QByteArray& size : argument.mid(colon + 1).split(',')) source.sizes.push_back(size.toInt());
  }
  if (source.name.size() >= gp::kSheetNameLength) return std::nullopt;
  return source;
}

// A null image when the drawing is not valid SVG.
QImage render(const QByteArray& svg, int size) {
  QSvgRenderer renderer(svg);
  if (!renderer.isValid() || size <= 0) return {};
  QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  painter.setRenderHint(QPainter::Antialiasing);
  renderer.render(&painter);
  return image;
}

// False if a source cannot be drawn; its name is printed.
bool renderAll(const std::vector<Source>& sources, int scale, bool dark, std::vector<Picture>& pictures) {
  for (const Source& source : sources) {
    const QByteArray svg = dark ? darkened(source.svg) : source.svg;
    for (int size : source.sizes) {
      Picture picture{source.name, render(svg, size * scale / kWholePercent)};
      if (picture.image.isNull()) {
        std::fprintf(stderr, "rasterize: %s is not a drawing\n", source.name.constData());
        return false;
      }
      pictures.push_back(std::move(picture));
    }
  }
  const auto key = [](const Picture& p) { return std::tuple(p.name, p.image.width()); };
  std::sort(pictures.begin(), pictures.end(), [&](const Picture& a, const Picture& b) { return key(a) < key(b); });
  return true;
}

template <typename T>
void append(QByteArray& bytes, const T& value) {
  bytes.append(reinterpret_cast<const char*>(&value), sizeof value);
}

QByteArray sheetOf(const std::vector<Picture>& pictures) {
  QByteArray head, pixels;
  append(head, gp::SheetHeader{gp::kSheetMagic, static_cast<std::uint32_t>(pictures.size())});
  const qsizetype headSize = head.size() + static_cast<qsizetype>(pictures.size() * sizeof(gp::SheetEntry));
  for (const Picture& picture : pictures) {
    gp::SheetEntry entry{};
    std::memcpy(entry.name, picture.name.constData(), static_cast<std::size_t>(picture.name.size()));
    entry.size = static_cast<std::uint32_t>(picture.image.width());
    entry.offset = static_cast<std::uint32_t>(headSize + pixels.size());
    append(head, entry);
    // Rows of 32-bit pixels have no padding, so the pixels of the image are contiguous.
    pixels.append(reinterpret_cast<const char*>(picture.image.constBits()), picture.image.sizeInBytes());
  }
  return head + pixels;
}

bool writeSheet(const QString& folder, const std::vector<Source>& sources, int scale, bool dark) {
  std::vector<Picture> pictures;
  if (!renderAll(sources, scale, dark, pictures)) return false;
  const QByteArray sheet = sheetOf(pictures);
  const QString name = QStringLiteral("%1/%2-%3.sheet").arg(folder).arg(scale).arg(dark ? "dark" : "light");
  QFile file(name);
  if (file.open(QIODevice::WriteOnly) && file.write(sheet) == sheet.size() && file.flush()) return true;
  std::fprintf(stderr, "rasterize: cannot write %s\n", qPrintable(name));
  return false;
}

}  // namespace

int main(int argc, char** argv) {
  if (argc < 3) {
    std::fprintf(stderr, "usage: rasterize FOLDER FILE.svg[:SIZE,SIZE...]...\n");
    return kUsageStatus;
  }
  std::vector<Source> sources;
  for (int i = 2; i < argc; ++i) {
    const std::optional<Source> source = readSource(argv[i]);
    if (!source) {
      std::fprintf(stderr, "rasterize: cannot read %s\n", argv[i]);
      return 1;
    }
    sources.push_back(*source);
  }
  const QString folder = QString::fromLocal8Bit(argv[1]);
  for (int scale : gp::kSheetScales) {
    for (bool dark : {false, true}) {
      if (!writeSheet(folder, sources, scale, dark)) return 1;
    }
  }
  return 0;
}
