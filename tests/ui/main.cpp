#include "platform/qt/Accessibility.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Glimmerpane"));
  QApplication::setApplicationVersion(QStringLiteral("1.0.0"));
  gp::installAccessibility();
  return RUN_ALL_TESTS();
}
