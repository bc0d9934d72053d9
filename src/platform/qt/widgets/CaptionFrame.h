// A frame with a caption above it, for a labelled group of controls. The caption is only painted: the controls inside
// have their own accessible names.
#pragma once

#include <QWidget>

namespace gp {

class CaptionFrame : public QWidget {
  Q_OBJECT

 public:
  CaptionFrame(QWidget* parent, const QString& objectName, const QString& caption);

  const QString& caption() const { return caption_; }
  // Returns the margins for a layout inside the frame.
  QMargins frameMargins() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QString caption_;
};

}  // namespace gp
