// Screenshots of forms for inspection: build/screens/NAME.png and, in dark colours, NAME-dark.png.
#pragma once

#include <QApplication>
#include <QDir>
#include <QPalette>
#include <QString>
#include <QWidget>

#include <gtest/gtest.h>

namespace gp::test {

inline QPalette darkPalette() {
  QPalette dark(QColor(0x35, 0x35, 0x35), QColor(0x2A, 0x2A, 0x2A));
  dark.setColor(QPalette::Base, QColor(0x23, 0x23, 0x23));
  dark.setColor(QPalette::Highlight, QColor(0x2A, 0x82, 0xDA));
  return dark;
}

inline void savePicture(QWidget& form, const QString& name) {
  QDir().mkpath(GP_BINARY_DIR "/screens");
  EXPECT_TRUE(form.grab().save(QString(GP_BINARY_DIR "/screens/%1.png").arg(name)));
}

// `make` builds a new form for each theme.
template <class Make>
void saveInBothThemes(const QString& name, Make make) {
  const QPalette light = QApplication::palette();
  {
    const auto form = make();
    savePicture(*form, name);
  }
  QApplication::setPalette(darkPalette());
  {
    const auto form = make();
    savePicture(*form, name + "-dark");
  }
  QApplication::setPalette(light);
}

}  // namespace gp::test
