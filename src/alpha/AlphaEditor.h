// The rules of the alpha screen: it shows an icon magnified with its alpha values, which can be painted, and leaves an
// outcome. It works on a copy of the icon and changes nothing outside.
#pragma once

#include "alpha/AlphaBrush.h"
#include "alpha/AlphaOutcome.h"
#include "files/FilesContext.h"

#include <optional>
#include <string>

namespace gp {

// The index of cmdAlpha.
enum class AlphaButton { ConvertTo24 = 0, ChangeTo32 = 1, Save = 2, Abort = 3 };

class AlphaEditor {
 public:
  static constexpr int kHighestStep = 254;  // where steps upwards end

  // The icon must have one of the icon sizes.
  AlphaEditor(const IconImage& icon, AlphaMode mode, const FilesContext& context);
  AlphaEditor(const AlphaEditor&) = delete;
  AlphaEditor& operator=(const AlphaEditor&) = delete;

  // Goes on with the values of a session that could not be saved. The matrix must have the size of the icon.
  void resume(const AlphaMatrix& values);

  const char* caption() const;
  // True once a command has closed the screen. The outcome is final then.
  bool isClosed() const { return closed_; }
  const AlphaOutcome& outcome() const { return outcome_; }

  // The icon arrived with alpha values; it has some now; they have changed since it arrived.
  bool hadAlpha() const { return mHadAlpha_; }
  bool isEditing() const { return mEditing_; }
  bool isChanged() const { return mChanged_; }
  bool isEnabled(AlphaButton button) const;
  bool isRestoreEnabled() const { return canPaint(); }
  // fraAlphaValuePanel is shown: values can be painted.
  bool canPaint() const { return mEditing_ && mode_ == AlphaMode::Edit; }

  const AlphaCanvas& canvas() const { return canvas_; }
  PixelBox takeChanged() { return canvas_.takeChanged(); }

  // The value to paint, from 0 to 255: the list index of cboAlphaValue and the position of hsrAlphaValue.
  int value() const { return value_; }
  void setValue(int value);
  // imgIncDecAlpha(0) and (1).
  void stepDown();
  void stepUp();
  std::string lblAlpha() const { return std::to_string(value_); }
  const Color& picAlphaValue() const { return picAlphaValue_; }
  int brushIndex() const { return brush_.index(); }
  void setBrush(int index) { brush_.setIndex(index); }

  // The mouse on picDisp, in its pixels. `straight` is true with Shift.
  void press(double x, double y, bool straight);
  void move(double x, double y, bool straight);
  void release();
  void leave();

  // What is read out of the pixel under the mouse: its position, colour and alpha value. Empty outside the icon.
  std::string positionText() const;
  std::string colorText() const;
  std::string alphaText() const;
  // What a screen reader speaks for any pixel of the icon.
  std::string pixelText(int x, int y) const;

  void cmdAlpha(AlphaButton button);
  void cmdRestoreAlpha();
  // The close box. Returns false when the screen must stay.
  bool mayClose();

 private:
  std::optional<IconPixel> pixelAt(double x, double y) const;
  void paint(bool straight);
  bool isReadable(IconPixel pixel) const { return mEditing_ && canvas_.isPainted(pixel.x, pixel.y); }
  static std::string positionText(IconPixel pixel);
  std::string colorText(IconPixel pixel) const;
  std::string alphaText(IconPixel pixel) const;

  void changeTo32();
  void convertTo24();
  void save();
  std::string chooseTargetFile();
  void close(AlphaOutcome outcome);

  FilesContext context_;
  const AlphaMode mode_;
  const bool mHadAlpha_;
  bool mEditing_;
  bool mChanged_ = false;
  bool closed_ = false;
  AlphaOutcome outcome_;

  AlphaCanvas canvas_;
  const AlphaMatrix mOrigAlpha_;
  AlphaBrush brush_{canvas_};
  int value_ = 0;
  Color picAlphaValue_ = kWhite;

  bool mDown_ = false;
  std::optional<IconPixel> pixel_;  // under the mouse
};

}  // namespace gp
