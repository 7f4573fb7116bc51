#include <gtest/gtest.h>

#include <QGuiApplication>

// The toolkit keeps fonts and parts of its windows until the process ends, which a check for leaks
// takes for leaks. The rooms below the views are checked by their own programs.
extern "C" const char* __asan_default_options();   // NOLINT(readability-identifier-naming)
extern "C" const char* __asan_default_options() {  // NOLINT(readability-identifier-naming)
    return "detect_leaks=0";
}

int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    ::testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    return RUN_ALL_TESTS();
}
