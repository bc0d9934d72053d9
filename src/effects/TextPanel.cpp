#include "effects/TextPanel.h"

#include "document/Announcements.h"
#include "document/Compositing.h"
#include "document/Display.h"
#include "document/EditState.h"
#include "document/Editor.h"
#include "document/ListTables.h"
#include "document/PanelNumbers.h"
#include "drawing/Drawing.h"
#include "drawing/FloatingContent.h"
#include "effects/EffectTable.h"
#include "platform/dialogs/clsGPDialog.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/text/Numbers.h"

#include <algorithm>
#include <utility>

namespace gp {
namespace {

constexpr const char* kFamilies = "cboFontName";
constexpr const char* kPoints = "cboFontSize";
constexpr const char* kNotAvailable = " not available in system.";
constexpr const char* kSomeFont = "Font";  // the name of a font that has none
constexpr Refusal kNoText("No text entered yet");

constexpr const char* kAngleText = "Aa";
constexpr int kAngleSampleSide = 48;

// A longer text could not be dragged so that its start or its end is on the icon: a region may leave the Editing Area
// by 70 percent of its width.
constexpr int kMostIcons = 3;

bool isIndex(int i, int count) { return i >= 0 && i < count; }

}  // namespace

TextPanel::TextPanel(EffectFrame& frame, clsGPDialog& dialog, TextDrawing& textDrawing, Drawing& drawing)
    : EffectPanel(frame, kNumber),
      dialog_(dialog),
      textDrawing_(textDrawing),
      drawing_(drawing),
      angleSample_(kAngleSampleSide, kAngleSampleSide, kGround) {}

void TextPanel::open(const EffectRow& /*effect*/) {
  if (!frame().mayApply()) return;
  listFamilies();
  settings_.angle = 0;
  show();
}

// Only here, because listing them takes time at the start of the program.
void TextPanel::listFamilies() {
  families_ = textDrawing_.fontFamilies();
  if (familyIndex() >= 0) return;
  const FilledList list = fillList(kFamilies, families_);
  font_.family = families_.empty() ? std::string() : families_.at(static_cast<std::size_t>(list.first));
}

int TextPanel::familyIndex() const {
  const auto found = std::ranges::find(families_, font_.family);
  return found == families_.end() ? -1 : static_cast<int>(found - families_.begin());
}

bool TextFont::*TextPanel::styleAt(int i) {
  static constexpr std::array<bool TextFont::*, kFontStyles> kStyles{&TextFont::bold, &TextFont::italic,
                                                                     &TextFont::underline, &TextFont::strikeout};
  return kStyles.at(static_cast<std::size_t>(i));
}

void TextPanel::setText(const std::string& text) {
  text_ = text;
  preview();
}

void TextPanel::pickFamily(int index) {
  if (!isIndex(index, static_cast<int>(families_.size()))) return;
  const std::string& family = families_.at(static_cast<std::size_t>(index));
  if (!textDrawing_.hasFont(family)) return refuseFamily(family);
  font_.family = family;
  preview();
}

bool TextPanel::hasFamily() const { return !font_.family.empty() && textDrawing_.hasFont(font_.family); }

void TextPanel::refuseFamily(const std::string& family) {
  // The list shows the former choice again.
  frame().context().display.changed(DisplayPart::SidePanel);
  frame().context().boxes.tell((family.empty() ? kSomeFont : family) + kNotAvailable);
}

void TextPanel::pickSize(int index) {
  if (!isIndex(index, kTextSizes)) return;
  size_ = static_cast<TextSize>(index);
  pointsIndex_ = -1;
  preview();
}

void TextPanel::pickPoints(int index) {
  if (!isIndex(index, static_cast<int>(fillList(kPoints).entries.size()))) return;
  pointsIndex_ = index;
  preview();
}

void TextPanel::pickStyle(int index) {
  if (!isIndex(index, kTextStyles)) return;
  settings_.style = static_cast<TextStyle>(index);
  preview();
}

void TextPanel::toggleFontStyle(int i) {
  if (!isIndex(i, kFontStyles)) return;
  bool& style = font_.*styleAt(i);
  style = !style;
  preview();
}

void TextPanel::chooseColor() {
  Color color = settings_.color;
  if (!dialog_.ShowColor(color)) return;
  if (const char* refusal = refusalOfColor(settings_.style, color)) return frame().tell(refusal);
  settings_.color = color;
  preview();
}

void TextPanel::setAngle(int angle) {
  settings_.angle = std::clamp(angle, -kLargestTextAngle, kLargestTextAngle);
  preview();
}

int TextPanel::pixelsFor(int iconHeight) const {
  if (pointsIndex_ < 0) return fontPixels(textDrawing_, font_, capitalHeightOf(size_, iconHeight));
  return pixelsOfPoints(roundToInteger(Val(fillList(kPoints).entries.at(static_cast<std::size_t>(pointsIndex_)))));
}

IconImage TextPanel::contentOfLine(const std::string& line, int pixels, int iconWidth, int iconHeight) const {
  if (!hasFamily()) return {};
  TextFont font = font_;
  font.pixels = pixels;
  const int longest = kMostIcons * std::max(iconWidth, iconHeight);
  return writtenText(textDrawing_.drawLine(line, font, lookOf(settings_.style), longest), settings_, iconWidth,
                     iconHeight);
}

IconImage TextPanel::content(int iconWidth, int iconHeight) const {
  return text_.empty() ? IconImage() : contentOfLine(text_, pixelsFor(iconHeight), iconWidth, iconHeight);
}

IconImage TextPanel::apply(const IconImage& icon) const {
  IconImage result{icon.image, icon.mask, {}};
  mergeContent(content(icon.width(), icon.height()), 0, 0, result.image, result.mask);
  return result;
}

void TextPanel::drawSamples() {
  const int pixels = fontPixels(textDrawing_, font_, capitalHeightOf(TextSize::Tiny, kAngleSampleSide));
  const IconImage sample = contentOfLine(kAngleText, pixels, kAngleSampleSide, kAngleSampleSide);
  IconImage icon = transparentIcon(kAngleSampleSide);
  mergeContent(sample, (kAngleSampleSide - sample.width()) / 2, (kAngleSampleSide - sample.height()) / 2, icon.image,
               icon.mask);
  angleSample_ = composedIcon(icon.image, icon.mask);
}

bool TextPanel::mayProceed() {
  if (!EffectPanel::mayProceed()) return false;
  if (!text_.empty() && !hasFamily()) {
    refuseFamily(font_.family);
    return false;
  }
  const Surface& icon = frame().state().picImage;
  if (!content(icon.width(), icon.height()).isEmpty()) return true;
  frame().tell(kNoText);
  return false;
}

void TextPanel::commit() {
  const Surface& icon = frame().state().picImage;
  IconImage written = content(icon.width(), icon.height());
  // First, because closing the panel ends the region.
  frame().context().editor.showPanel(kColorPanel);
  placeContent(drawing_.tools, drawing_.regions, std::move(written), false);
}

void TextPanel::finish() {
  const IconImage& placed = drawing_.regions.content();
  frame().context().display.announce(news::region(placed.width(), placed.height()));
}

}  // namespace gp
