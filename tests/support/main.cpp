#include <gtest/gtest.h>

#include <QApplication>
#include <QStandardPaths>

/// The start of every test program: an application without a screen, then the tests.
int main(int argumentCount, char** arguments) {
    if (!qEnvironmentVariableIsSet("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
    QStandardPaths::setTestModeEnabled(true);
    testing::InitGoogleTest(&argumentCount, arguments);
    QApplication application(argumentCount, arguments);
    QApplication::setQuitOnLastWindowClosed(false);
    return RUN_ALL_TESTS();
}
