// The frame for typing a colour value: text, "Hex" and the button that applies it.
#pragma once

#include "platform/qt/widgets/CaptionFrame.h"

class QCheckBox;
class QLineEdit;

namespace gp {

class ColorSelection;

class DirectEntryView : public CaptionFrame {
  Q_OBJECT

 public:
  DirectEntryView(QWidget* parent, const QString& objectName, const QString& caption, ColorSelection& colors);

  void refresh();
  void focusValue();

 private:
  ColorSelection& colors_;
  QLineEdit* txbDirectEntryColorValue_;
  QCheckBox* ckbAsHexColorValue_;
};

}  // namespace gp
