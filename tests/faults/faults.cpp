// Lets each call that Velmora makes on its files fail in turn, once or from then on, in a run of
// five with settings saved and lines settled, and has the next evening put things right. Nobody may
// be texted twice, and no line be lost.

#include <QCoreApplication>
#include <QTemporaryDir>
#include <cstdio>

#include "faults/failing_calls.h"
#include "support/evening.h"

using namespace Qt::StringLiterals;

using namespace velmora;

namespace {

constexpr int people = 5;
constexpr int longest = 60'000;  // milliseconds

/// An evening whose call number `at` fails. It prints how many calls there were.
int runWithFault(const QStringList& arguments) {
    const QString& home = arguments[2];
    failingCalls = {.folder = (home + u"/.local"_s).toStdString(),
                    .at = arguments.value(4).toInt(),
                    .stays = arguments.value(5) == u"stays"};
    const int result = runEvening(home, 0);
    std::printf("%d", failingCalls.count);
    return result;
}

/// What is wrong after a fault and the next evening; empty when nothing is. `calls` becomes the
/// number of calls.
QString faultAfter(int at, bool stays, int& calls) {
    const QTemporaryDir home;
    prepareEvenings(home.path(), people);
    const QStringList fault = {QString::number(at), stays ? u"stays"_s : u"once"_s};
    const auto counted = playEvening(home.path(), 0, longest, fault);
    if (!counted)
        return u"the program crashed or hung"_s;
    calls = counted->toInt();
    if (!playEvening(home.path(), 0, longest))
        return u"the next evening came to nothing"_s;
    return faultOfEvenings(home.path(), people);
}

int breakEachCall() {
    int faults = 0;
    for (const bool stays : {false, true}) {
        int calls = 1;
        for (int at = 1; at <= calls; ++at, ++faults) {
            const QString fault = faultAfter(at, stays, calls);
            if (!fault.isEmpty()) {
                std::printf("Call %d fails%s: %s.\n", at, stays ? " and all that follow" : "",
                            qPrintable(fault));
                return 1;
            }
        }
    }
    std::printf("%d faults: nobody twice, no line lost.\n", faults);
    return faults > 100 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    return arguments.value(1) == u"evening" ? runWithFault(arguments)
                                            : breakEachCall();
}
