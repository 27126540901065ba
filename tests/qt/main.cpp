#include <gtest/gtest.h>

#include <QApplication>
#include <QTemporaryDir>
#include <QTemporaryFile>

// The offscreen display is smaller than some of the windows, unless it is told otherwise. The
// preferences of whoever runs the tests stay out of them.
int main(int argc, char** argv) {
  QTemporaryFile display;
  if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM") && display.open()) {
    display.write(R"({"screens": [{"name": "large", "x": 0, "y": 0, "width": 4000, "height": 3000,
                      "logicalDpi": 96, "logicalBaseDpi": 96, "dpr": 1}]})");
    display.flush();
    qputenv("QT_QPA_PLATFORM", "offscreen:configfile=" + display.fileName().toUtf8());
  }
  const QTemporaryDir preferences;
  qputenv("XDG_CONFIG_HOME", preferences.path().toLocal8Bit());
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  return RUN_ALL_TESTS();
}
