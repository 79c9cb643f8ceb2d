// The entry of the tests of windows: an application on the offscreen platform, then the tests.

#include <gtest/gtest.h>

#include <QApplication>
#include <cstdio>
#include <cstdlib>

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    QApplication app(argc, argv);
    testing::InitGoogleTest(&argc, argv);
    const int resultado = RUN_ALL_TESTS();
    // The run ends as the game's own does, without tearing Qt down: once, after a network
    // test had passed, the heap was found damaged during that teardown (not reproduced since,
    // neither under valgrind nor AddressSanitizer), and nothing of the game runs there.
    std::fflush(nullptr);
    std::_Exit(resultado);
}
