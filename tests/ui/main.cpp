#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QLocale>

using namespace Qt::StringLiterals;

// The toolkit keeps fonts and parts of its windows until the process ends, which a check for leaks
// takes for leaks. The rooms below the views are checked by their own programs.
extern "C" const char* __asan_default_options();   // NOLINT(readability-identifier-naming)
extern "C" const char* __asan_default_options() {  // NOLINT(readability-identifier-naming)
    return "detect_leaks=0";
}

// The tests expect a 24-hour clock and a decimal point; VELMORA_TEST_LOCALE names another language.
int main(int argc, char** argv) {
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    ::testing::InitGoogleTest(&argc, argv);
    const QGuiApplication application(argc, argv);
    QLocale::setDefault(QLocale(qEnvironmentVariable("VELMORA_TEST_LOCALE", u"en_GB"_s)));
    return RUN_ALL_TESTS();
}
