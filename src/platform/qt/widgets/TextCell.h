// One line of text in a fixed area, so that a new text causes no new layout. A long text is elided, and the tooltip
// then shows it whole. Assistive technology gets the text as the value of the cell.
#pragma once

#include "platform/qt/Accessibility.h"

#include <QWidget>

namespace gp {

class TextCell : public QWidget, public AccessibleValue {
  Q_OBJECT

 public:
  static constexpr int kMargin = 4;  // left and right of the text, pixels

  TextCell(QWidget* parent, const QString& objectName, const QString& accessibleName);

  void setText(const QString& text) { setText(text, text); }
  // `spoken` is what assistive technology gets for the text.
  void setText(const QString& text, const QString& spoken);
  const QString& text() const { return text_; }
  void setElideMode(Qt::TextElideMode mode) { elide_ = mode; }
  void setAlignment(Qt::Alignment alignment) { alignment_ = alignment; }

  QString accessibleValue() const override { return spoken_; }
  QSize sizeHint() const override;
  // One line in height, so that a crowded form does not cut it.
  QSize minimumSizeHint() const override;

 protected:
  void paintEvent(QPaintEvent* event) override;
  bool event(QEvent* event) override;

 private:
  QString shownText() const;

  QString text_;
  QString spoken_;
  Qt::TextElideMode elide_ = Qt::ElideRight;
  Qt::Alignment alignment_ = Qt::AlignLeft;
};

}  // namespace gp
