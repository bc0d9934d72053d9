// A sample with a pixel that the user picks: by a click, or by the arrow keys and Enter or Space. A ring marks the
// keyboard's pixel while the sample has the focus; a screen reader speaks its position.
#pragma once

#include "document/ui/PixelCursor.h"
#include "document/ui/SampleView.h"

namespace gp {

class PointSampleView final : public SampleView {
  Q_OBJECT

 public:
  // The tooltip is also the accessible name. See SampleView for the others.
  PointSampleView(QWidget* parent, const QString& objectName, const QString& tooltip, const Surface& picture, int side,
                  SampleRoom room);

  // Moves the keyboard's pixel, in pixels of the picture.
  void setPoint(const QPoint& point);
  const QPoint& point() const { return cursor_.position(); }

  // "12, 7"; empty without a picture.
  QString accessibleValue() const override;

 signals:
  // A pixel of the picture.
  void picked(int x, int y);

 protected:
  void paintEvent(QPaintEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;

 private:
  // Device pixels for each pixel of the picture.
  int factor() const;
  void pick(const QPoint& point);

  PixelCursor cursor_;
};

}  // namespace gp
