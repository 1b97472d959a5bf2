#include "support/Hilfsprozess.h"

#include <QApplication>
#include <gtest/gtest.h>

// Every test program runs with a Qt application, so that timers, events and widgets work. Started
// by a test in a helper's role, it runs that role instead of the tests.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM",
            qgetenv("QT_QPA_PLATFORM").isEmpty() ? "offscreen" : qgetenv("QT_QPA_PLATFORM"));
    QApplication app(argc, argv);
    if (const auto status = vemo::test::Hilfsprozess::ausführen(app.arguments()))
        return *status;
    ::testing::InitGoogleTest(&argc, argv);
    return RUN_ALL_TESTS();
}
