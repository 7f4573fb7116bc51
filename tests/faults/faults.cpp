// Lets each call that Velmora makes on its files fail in turn, once or from then on, in a run of
// five with settings saved and lines settled, and has the next evening put things right:
// velmora_faults <library>. Nobody may be texted twice, and no line be lost.

#include <QCoreApplication>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <cstdio>

#include "support/evening.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

constexpr int people = 5;

/// How many calls there were in an evening whose call number `at` fails; nothing when the program
/// crashed or hung.
std::optional<int> eveningWithFault(const QString& home, const QString& library, int at,
                                    bool stays) {
    QProcess evening;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(u"LD_PRELOAD"_s, library);
    environment.insert(u"VELMORA_FAULT_FOLDER"_s, home + u"/.local"_s);
    environment.insert(u"VELMORA_FAULT_AT"_s, QString::number(at));
    environment.insert(u"VELMORA_FAULT_STAYS"_s, stays ? u"1"_s : QString());
    environment.insert(u"VELMORA_FAULT_COUNT"_s, home + u"/count"_s);
    evening.setProcessEnvironment(environment);
    evening.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    evening.start(QCoreApplication::applicationFilePath(), {u"evening"_s, home, u"0"_s});
    const bool ended = evening.waitForFinished(60'000);
    QFile count(home + u"/count"_s);
    if (!ended || evening.exitStatus() != QProcess::NormalExit || evening.exitCode() != 0 ||
        !count.open(QIODevice::ReadOnly))
        return std::nullopt;
    return count.readAll().toInt();
}

/// What is wrong after a fault and the next evening; empty when nothing is. `calls` becomes the
/// number of calls.
QString faultAfter(const QString& library, int at, bool stays, int& calls) {
    const QTemporaryDir home;
    prepareEvenings(home.path(), people);
    const auto counted = eveningWithFault(home.path(), library, at, stays);
    if (!counted)
        return u"the program crashed or hung"_s;
    calls = *counted;
    if (!eveningWithFault(home.path(), library, 0, false))
        return u"the next evening came to nothing"_s;
    return faultOfEvenings(home.path(), people);
}

int breakEachCall(const QString& library) {
    int faults = 0;
    for (const bool stays : {false, true}) {
        int calls = 1;
        for (int at = 1; at <= calls; ++at, ++faults) {
            const QString fault = faultAfter(library, at, stays, calls);
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

}  // namespace velmora

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"evening")
        return velmora::runEvening(arguments.value(2), arguments.value(3).toDouble());
    return velmora::breakEachCall(arguments.value(1));
}
