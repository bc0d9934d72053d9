// A frame with a caption above it, for a labelled group of controls. It is never narrower than its caption. The caption
// is only painted: the controls inside have their own accessible names.
#pragma once

#include <QWidget>

namespace gp {

class CaptionFrame : public QWidget {
  Q_OBJECT

 public:
  CaptionFrame(QWidget* parent, const QString& objectName, const QString& caption);

  const QString& caption() const { return caption_; }
  // Returns the margins for a layout inside the frame.
  QMargins frameMargins() const { return marginsFor(fontMetrics()); }
  static QMargins marginsFor(const QFontMetrics& metrics);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void changeEvent(QEvent* event) override;

 private:
  void makeRoomForCaption();

  QString caption_;
};

}  // namespace gp
