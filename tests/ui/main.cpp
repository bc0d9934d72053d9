#include "platform/qt/Accessibility.h"
#include "platform/qt/ProgramStyle.h"

#include <QApplication>

#include <gtest/gtest.h>

int main(int argc, char** argv) {
  testing::InitGoogleTest(&argc, argv);
  // No screen is needed, not even to list the tests.
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication application(argc, argv);
  QApplication::setApplicationName(QStringLiteral("Glimmerpane"));
  QApplication::setApplicationVersion(QStringLiteral("1.0.0"));
  gp::installProgramStyle();
  gp::installAccessibility();
  return RUN_ALL_TESTS();
}
