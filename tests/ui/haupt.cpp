// Start of the window tests: one application for all of them, without a display.
#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
    testing::InitGoogleTest(&argc, argv);
    const QApplication anwendung(argc, argv);
    return RUN_ALL_TESTS();
}
