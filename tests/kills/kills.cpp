// Kills a rehearsal at random moments and starts it again under the same run name until everybody
// is done, and so on for as many kills as asked for: velmora_kills <kills> [seed]. Nobody may be
// texted twice, everybody stands in the log, and log and history stay whole.

#include <QCoreApplication>
#include <QProcess>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <random>

#include "support/evening.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

constexpr int people = 30;
constexpr int longestEvening = 60;  // milliseconds; an undisturbed one takes about 100

/// Whether the evening was killed before its end. `longest`: the most milliseconds that it may
/// live.
bool isKilledInTheEvening(const QString& home, int day, int milliseconds) {
    QProcess evening;
    evening.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    evening.start(QCoreApplication::applicationFilePath(),
                  {u"evening"_s, home, QString::number(day)});
    if (!evening.waitForStarted())
        qFatal("The rehearsal cannot be started.");
    if (!evening.waitForFinished(milliseconds)) {
        evening.kill();
        evening.waitForFinished(-1);
    }
    if (evening.exitStatus() == QProcess::NormalExit && evening.exitCode() != 0)
        qFatal("The rehearsal ended with an error.");
    return evening.exitStatus() == QProcess::CrashExit;
}

int kill(int wanted, unsigned seed) {
    std::mt19937 random(seed);
    int killed = 0;
    int homes = 0;
    while (killed < wanted) {
        const QTemporaryDir home;
        prepareEvenings(home.path(), people);
        ++homes;
        bool done = false;
        for (int day = 0; !done; ++day) {
            // The last evening has all the time that it wants.
            const bool isLast = killed >= wanted;
            const int longest = std::uniform_int_distribution(1, longestEvening)(random);
            const bool isKilled = isKilledInTheEvening(home.path(), day, isLast ? -1 : longest);
            killed += isKilled ? 1 : 0;
            done = !isKilled;
        }
        if (const QString fault = faultOfEvenings(home.path(), people); !fault.isEmpty()) {
            std::printf("After %d kills, seed %u: %s.\n", killed, seed, qPrintable(fault));
            return 1;
        }
    }
    std::printf("%d kills in %d runs of %d people: nobody twice, nobody missing.\n", killed, homes,
                people);
    return 0;
}

}  // namespace

}  // namespace velmora

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"evening")
        return velmora::runEvening(arguments.value(2), arguments.value(3).toDouble());
    const unsigned seed = arguments.size() > 2 ? arguments[2].toUInt() : std::random_device()();
    return velmora::kill(std::max(arguments.value(1).toInt(), 1), seed);
}
