#include "alpha/AlphaEditor.h"

#include "alpha/AlphaConversion.h"
#include "alpha/AlphaShade.h"
#include "document/AlphaGreys.h"
#include "document/EditState.h"
#include "document/ListTables.h"
#include "files/FileQuestions.h"
#include "platform/ports/MessageBoxes.h"
#include "platform/text/Numbers.h"
#include "platform/text/Paths.h"

#include <algorithm>
#include <array>
#include <utility>

namespace gp {
namespace {

constexpr std::array kCaptions{"View/Edit/Create Alpha Channel", "Convert 32 to 24 BPP (& Retain Alpha Effects)"};
constexpr const char* kExitQuestion = "Exit without saving?";
constexpr const char* kRestoreQuestion = "Restore to original alpha values?";
constexpr const char* kTo24Question = "Change the current icon to 24 BPP?";
constexpr const char* kTo32Question =
    "Not all hardware peripherals are always capable of\nsupporting True Color.  Proceed?";
constexpr const char* kNotReadable = "N/A";

constexpr int kStep = 17;  // makes sixteen even levels

}  // namespace

AlphaEditor::AlphaEditor(const IconImage& icon, AlphaMode mode, const FilesContext& context)
    : context_(context),
      mode_(mode),
      mHadAlpha_(icon.hasAlphaValues()),
      mEditing_(mHadAlpha_),
      canvas_(icon, gridOf(context.state.gGridColor)),
      mOrigAlpha_(canvas_.icon().alpha) {
  setValue(fillList("cboAlphaValue").first);
  takeChanged();
}

void AlphaEditor::resume(const AlphaMatrix& values) {
  canvas_.replaceAlpha(values);
  mEditing_ = mChanged_ = true;
}

const char* AlphaEditor::caption() const { return kCaptions.at(static_cast<std::size_t>(mode_)); }

bool AlphaEditor::isEnabled(AlphaButton button) const {
  switch (button) {
    case AlphaButton::ChangeTo32:
      return !mEditing_;
    case AlphaButton::ConvertTo24:
    case AlphaButton::Save:
      return mEditing_;
    case AlphaButton::Abort:
      break;
  }
  return true;
}

void AlphaEditor::setValue(int value) {
  value_ = std::clamp<int>(value, 0, kOpaqueAlpha);
  picAlphaValue_ = greyOf(shadeOf(value_));
}

void AlphaEditor::stepDown() { setValue(value_ - kStep); }

void AlphaEditor::stepUp() {
  if (value_ < kHighestStep) setValue(std::min(value_ + kStep, kHighestStep));
}

void AlphaEditor::press(double x, double y, bool straight) {
  mDown_ = true;
  move(x, y, straight);
}

void AlphaEditor::move(double x, double y, bool straight) {
  pixel_ = pixelAt(x, y);
  if (mDown_) paint(straight);
}

void AlphaEditor::release() {
  mDown_ = false;
  brush_.release();
}

void AlphaEditor::leave() { pixel_.reset(); }

std::optional<IconPixel> AlphaEditor::pixelAt(double x, double y) const {
  const IconPixel pixel{Int(x / canvas_.magnification()), Int(y / canvas_.magnification())};
  if (!canvas_.icon().mask.contains(pixel.x, pixel.y)) return std::nullopt;
  return pixel;
}

void AlphaEditor::paint(bool straight) {
  if (!canPaint() || !pixel_) return;
  if (brush_.paint(*pixel_, static_cast<std::uint8_t>(value_), straight)) mChanged_ = true;
}

std::string AlphaEditor::positionText() const { return pixel_ ? positionText(*pixel_) : ""; }

std::string AlphaEditor::colorText() const { return pixel_ ? colorText(*pixel_) : ""; }

std::string AlphaEditor::alphaText() const { return pixel_ ? alphaText(*pixel_) : ""; }

std::string AlphaEditor::positionText(IconPixel pixel) {
  return "X= " + std::to_string(pixel.x) + "  Y= " + std::to_string(pixel.y);
}

std::string AlphaEditor::colorText(IconPixel pixel) const {
  const Color color = canvas_.icon().image.GetPixel(pixel.x, pixel.y);
  return std::string("RGB:  ") + (isReadable(pixel)
                                      ? std::to_string(redOf(color)) + ", " + std::to_string(greenOf(color)) + ", " +
                                            std::to_string(blueOf(color))
                                      : kNotReadable);
}

std::string AlphaEditor::alphaText(IconPixel pixel) const {
  return std::string("Alpha =  ") +
         (isReadable(pixel) ? std::to_string(canvas_.icon().alpha.at(pixel.x, pixel.y)) : kNotReadable);
}

std::string AlphaEditor::pixelText(int x, int y) const {
  const std::string content =
      canvas_.isPainted(x, y) ? colorText(IconPixel{x, y}) + "  " + alphaText(IconPixel{x, y}) : "transparent";
  return positionText({x, y}) + "  " + content;
}

void AlphaEditor::cmdAlpha(AlphaButton button) {
  if (!isEnabled(button)) return;
  switch (button) {
    case AlphaButton::ConvertTo24:
      return convertTo24();
    case AlphaButton::ChangeTo32:
      return changeTo32();
    case AlphaButton::Save:
      return save();
    case AlphaButton::Abort:
      return close({});
  }
}

// All values are opaque already.
void AlphaEditor::changeTo32() {
  if (!context_.boxes.ask(kTo32Question)) return;
  mEditing_ = true;
  mChanged_ = true;
}

void AlphaEditor::convertTo24() {
  if (!context_.boxes.ask(kTo24Question)) return;
  const std::string path = chooseTargetFile();
  if (!path.empty()) close({AlphaResult::ConvertTo24, path, convertRetainAlpha(canvas_.icon()), canvas_.icon().alpha});
}

void AlphaEditor::save() {
  const std::string path = chooseTargetFile();
  if (path.empty() || !context_.boxes.ask("Proceed to save to " + path + "?")) return;
  close({mHadAlpha_ ? AlphaResult::SaveChanged : AlphaResult::SaveNew, path, canvas_.icon(), canvas_.icon().alpha});
}

// An icon from a file of several gets no name, which would be that of the whole file.
std::string AlphaEditor::chooseTargetFile() {
  const IconContainerRec& record = context_.state.current();
  const std::string name = record.fromMultiIconFile ? "" : ParseFileName(record.path.trimmed(), PathPart::BareName);
  return askToSave(context_, name, kIconFilter, kIconExtension);
}

void AlphaEditor::cmdRestoreAlpha() {
  if (!isRestoreEnabled() || !context_.boxes.ask(kRestoreQuestion)) return;
  canvas_.replaceAlpha(mOrigAlpha_);
  brush_.forget();
  mChanged_ = false;
}

bool AlphaEditor::mayClose() {
  if (closed_ || !mChanged_) return true;
  return context_.boxes.ask(kExitQuestion);
}

void AlphaEditor::close(AlphaOutcome outcome) {
  outcome_ = std::move(outcome);
  closed_ = true;
}

}  // namespace gp
