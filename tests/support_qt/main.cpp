// The entry of every test program that shows screens.

#include <cstdio>
#include <gtest/gtest.h>

#include <QApplication>

#include "widgets/look.h"

namespace {

/// What the toolkit warns of is a fault of a screen, except what it says of a machine without a display.
void fail_on_warning(QtMsgType kind, const QMessageLogContext&, const QString& text) {
  std::fprintf(stderr, "%s\n", qPrintable(text));
  const bool about_the_display = text.startsWith(QStringLiteral("This plugin does not support")) ||
                                 text.startsWith(QStringLiteral("QStandardPaths: "));
  if (kind != QtDebugMsg && kind != QtInfoMsg && !about_the_display) {
    ADD_FAILURE() << "the toolkit warns: " << qPrintable(text);
  }
}

}  // namespace

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  // Death tests copy the process as it stands, screens included.
  GTEST_FLAG_SET(death_test_style, "fast");
  if (GTEST_FLAG_GET(list_tests)) return RUN_ALL_TESTS();
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  qInstallMessageHandler(fail_on_warning);
  QApplication application{argc, argv};
  QApplication::setApplicationName(QStringLiteral("vermanto-test"));
  QApplication::setApplicationVersion(QStringLiteral("1.2.3"));
  QApplication::setApplicationDisplayName({});
  ecr::apply_look(application, ecr::Scheme::light);
  return RUN_ALL_TESTS();
}
