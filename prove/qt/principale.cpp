// principale.cpp - runs the tests of the face inside an application without a screen.

#include <QApplication>
#include <QStandardPaths>
#include <gtest/gtest.h>

int main(int nArgomenti, char** aArgomenti)
{
    testing::InitGoogleTest(&nArgomenti, aArgomenti);
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    // The dialogs of the platform cannot be driven; Qt's own can. No test finds or leaves a user's settings.
    QApplication::setAttribute(Qt::AA_DontUseNativeDialogs);
    QStandardPaths::setTestModeEnabled(true);
    const QApplication applicazione(nArgomenti, aArgomenti);
    return RUN_ALL_TESTS();
}
