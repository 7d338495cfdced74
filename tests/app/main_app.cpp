#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  ::testing::InitGoogleTest(&argc, argv);
  // Test discovery runs the program without the tests' environment.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  QApplication applicazione(argc, argv);
  applicazione.setQuitOnLastWindowClosed(false);
  return RUN_ALL_TESTS();
}
