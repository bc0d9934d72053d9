#include "platform/qt/QtTextDrawing.h"

#include "platform/qt/PathText.h"
#include "platform/qt/VectorRegisters.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QFontMetrics>
#include <QImage>
#include <QPainter>
#include <QPainterPath>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace gp {
namespace {

// Letters of a text that are laid out: more than fit into any icon, unless they have no width.
constexpr int kMostLetters = 1000;
// Of 255. A letter with colours has parts that are not opaque.
constexpr int kHalfOpaque = 128;

// "Courier [Adobe]" is the family of one foundry.
QString withoutFoundry(const QString& family) { return family.section(QStringLiteral(" ["), 0, 0); }

QFont fontOf(const TextFont& look) {
  QFont font(toText(look.family));
  font.setPixelSize(std::max(1, look.pixels));
  font.setBold(look.bold);
  font.setItalic(look.italic);
  font.setUnderline(look.underline);
  font.setStrikeOut(look.strikeout);
  font.setStyleStrategy(QFont::NoAntialias);
  font.setHintingPreference(QFont::PreferFullHinting);
  return font;
}

bool isNoLetter(QChar c) {
  return c.category() == QChar::Other_Control || c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

// One line: breaks and tabs are spaces.
QString lineOf(const std::string& text) {
  QString line = toText(text).left(kMostLetters);
  std::ranges::replace_if(line, isNoLetter, QChar(QChar::Space));
  if (!line.isEmpty() && line.back().isHighSurrogate()) line.chop(1);
  return line;
}

// The letters of a text that fit, and where they are drawn. `box` is their advance and the height of the line.
class Line {
 public:
  Line(const QString& text, const QFont& font, int longest) : layout_(text, font) {
    QTextOption option;
    option.setWrapMode(QTextOption::WrapAnywhere);
    layout_.setTextOption(option);
    layout_.beginLayout();
    line_ = layout_.createLine();
    if (line_.isValid()) line_.setLineWidth(longest);
    layout_.endLayout();
  }

  QRectF box() const { return line_.isValid() ? line_.naturalTextRect() : QRectF(); }

  void draw(QPainter& painter, const QPointF& at, TextLook look) const {
    if (!line_.isValid()) return;
    if (look == TextLook::Filled) return line_.draw(&painter, at);
    QPainterPath path;
    const QString letters = layout_.text().mid(line_.textStart(), line_.textLength());
    path.addText(at + box().topLeft() + QPointF(0, line_.ascent()), layout_.font(), letters);
    painter.strokePath(path, QPen(Qt::black, 1));
  }

 private:
  QTextLayout layout_;
  QTextLine line_;
};

bool isText(QRgb pixel) { return qAlpha(pixel) >= kHalfOpaque; }

QRect boxOfText(const QImage& image) {
  QRect box;
  for (int y = 0; y < image.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
    const auto* end = row + image.width();
    const auto* first = std::find_if(row, end, isText);
    if (first == end) continue;
    const auto* last = std::find_if(std::reverse_iterator(end), std::reverse_iterator(first), isText).base() - 1;
    box |= QRect(QPoint(static_cast<int>(first - row), y), QPoint(static_cast<int>(last - row), y));
  }
  return box;
}

Surface surfaceOf(const QImage& image, const QRect& part) {
  Surface surface(part.width(), part.height());
  for (int y = 0; y < part.height(); ++y) {
    const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(part.top() + y)) + part.left();
    for (int x = 0; x < part.width(); ++x)
      if (isText(row[x])) surface.SetPixelV(x, y, kBlack);
  }
  return surface;
}

}  // namespace

// Qt lists a family once for each foundry, and names like "Serif" for whatever family the desktop prefers.
std::vector<std::string> QtTextDrawing::fontFamilies() {
  QStringList names = QFontDatabase::families();
  names.removeIf([](const QString& name) { return QFontDatabase::isPrivateFamily(name); });
  std::ranges::transform(names, names.begin(), withoutFoundry);
  names.removeIf([](const QString& name) { return !QFontDatabase::hasFamily(name); });
  names.removeDuplicates();
  names.sort(Qt::CaseInsensitive);
  std::vector<std::string> families;
  for (const QString& name : names) families.push_back(name.toStdString());
  return families;
}

// Qt draws with another family in place of one that cannot be loaded.
bool QtTextDrawing::hasFont(const std::string& family) {
  const QString name = toText(family);
  return QFontDatabase::hasFamily(name) &&
         withoutFoundry(QFontInfo(QFont(name)).family()).compare(name, Qt::CaseInsensitive) == 0;
}

int QtTextDrawing::capitalHeight(const TextFont& font) {
  return QFontMetrics(fontOf(font)).tightBoundingRect(QStringLiteral("H")).height();
}

Surface QtTextDrawing::drawLine(const std::string& text, const TextFont& font, TextLook look, int longest) {
  const Line line(lineOf(text), fontOf(font), longest);
  // Slanted letters and accents reach beyond the box of the line.
  const int margin = std::max(1, font.pixels);
  const QRect box(margin, margin, static_cast<int>(std::ceil(std::max<qreal>(0, line.box().width()))),
                  static_cast<int>(std::ceil(line.box().height())));
  const int most = longest + 2 * margin;
  QImage image(std::min(box.width() + 2 * margin, most), std::min(box.height() + 2 * margin, most),
               QImage::Format_ARGB32_Premultiplied);
  image.fill(Qt::transparent);
  {
    QPainter painter(&image);
    painter.setPen(Qt::black);
    line.draw(painter, box.topLeft() - line.box().topLeft(), look);
  }
  // What follows turns the text: three times slower without this.
  resetVectorRegisters();
  const QRect used = (box | boxOfText(image)) & image.rect();
  return surfaceOf(image, QRect(used.topLeft(), used.size().boundedTo(QSize(longest, longest))));
}

}  // namespace gp
