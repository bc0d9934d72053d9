// Checks that no text on a form is cut, and shows forms with fonts of several sizes.
#pragma once

#include "platform/qt/widgets/CaptionFrame.h"

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QFont>
#include <QLabel>
#include <QLineEdit>
#include <QScrollArea>
#include <QWidget>

#include <gtest/gtest.h>
#include <string>

namespace gp::test {

inline constexpr int kPoints[] = {9, 12, 14};

// Sets the font size of the application for its own lifetime.
class FontOf {
 public:
  explicit FontOf(int points) : before_(QApplication::font()) {
    QFont font = before_;
    font.setPointSize(points);
    QApplication::setFont(font);
  }
  ~FontOf() { QApplication::setFont(before_); }
  FontOf(const FontOf&) = delete;
  FontOf& operator=(const FontOf&) = delete;

 private:
  QFont before_;
};

inline std::string described(const QWidget& widget, const QString& text) {
  return (widget.objectName() + " \"" + text + "\" at " + QString::number(widget.font().pointSize())).toStdString();
}

inline void expectWhole(const QWidget& widget, const QString& text) {
  const int height = widget.hasHeightForWidth() ? widget.heightForWidth(widget.width()) : widget.sizeHint().height();
  EXPECT_GE(widget.height(), height) << described(widget, text);
  if (!widget.hasHeightForWidth()) {
    EXPECT_GE(widget.width(), widget.sizeHint().width()) << described(widget, text);
  }
}

inline void expectCaptionIsWhole(const CaptionFrame& frame) {
  EXPECT_GE(frame.width(), frame.fontMetrics().horizontalAdvance(frame.caption())) << frame.caption().toStdString();
  EXPECT_GE(frame.frameMargins().top(), frame.fontMetrics().height()) << frame.caption().toStdString();
}

// Fails for each visible text of a form that does not fit, and for each control outside its parent.
inline void expectAllTextsAreWhole(QWidget& form) {
  for (const QWidget* widget : form.findChildren<QWidget*>()) {
    if (!widget->isVisible() || widget->isWindow() || widget->size().isEmpty()) continue;
    if (const auto* label = qobject_cast<const QLabel*>(widget); label && !label->text().isEmpty())
      expectWhole(*label, label->text());
    if (const auto* button = qobject_cast<const QAbstractButton*>(widget); button && !button->text().isEmpty())
      expectWhole(*button, button->text());
    if (const auto* list = qobject_cast<const QComboBox*>(widget)) {
      EXPECT_GE(list->height(), list->sizeHint().height()) << described(*list, list->currentText());
    }
    if (const auto* line = qobject_cast<const QLineEdit*>(widget)) {
      EXPECT_GE(line->height(), line->fontMetrics().height()) << described(*line, line->text());
    }
    if (const auto* frame = qobject_cast<const CaptionFrame*>(widget)) expectCaptionIsWhole(*frame);
    const bool scrolls = qobject_cast<const QScrollArea*>(widget->parentWidget()->parentWidget()) != nullptr;
    if (!scrolls) {
      EXPECT_TRUE(widget->parentWidget()->rect().contains(widget->geometry()))
          << described(*widget, "") << " is outside";
    }
  }
}

}  // namespace gp::test
