// Kills a rehearsal at random moments and starts it again under the same run name until everybody
// is done, and so on for as many kills as asked for: velmora_kills <kills> [seed]. Nobody may be
// texted twice, everybody stands in the log, and log and history stay whole.

#include <QCoreApplication>
#include <QTemporaryDir>
#include <algorithm>
#include <cstdio>
#include <random>

#include "support/evening.h"

using namespace Qt::StringLiterals;

using namespace velmora;

namespace {

constexpr int people = 30;
constexpr int longestEvening = 60;  // milliseconds; an undisturbed one takes about 100

/// Starts evenings in one home until one comes to its end, the first that may once `kills` of all
/// are done. What is then wrong; empty when nothing is.
QString faultOfKills(int& kills, int wanted, std::mt19937& random) {
    const QTemporaryDir home;
    prepareEvenings(home.path(), people);
    for (int day = 0;; ++day) {
        const bool isLast = kills >= wanted;
        const int longest = std::uniform_int_distribution(1, longestEvening)(random);
        if (playEvening(home.path(), day, isLast ? -1 : longest))
            return faultOfEvenings(home.path(), people);
        if (isLast)
            return u"an evening without a kill came to nothing"_s;
        ++kills;
    }
}

int killAtRandom(int wanted, unsigned seed) {
    std::mt19937 random(seed);
    int kills = 0;
    int homes = 0;
    for (; kills < wanted; ++homes) {
        if (const QString fault = faultOfKills(kills, wanted, random); !fault.isEmpty()) {
            std::printf("After %d kills, seed %u: %s.\n", kills, seed, qPrintable(fault));
            return 1;
        }
    }
    std::printf("%d kills in %d runs of %d people: nobody twice, nobody missing.\n", kills, homes,
                people);
    return 0;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.value(1) == u"evening")
        return runEvening(arguments.value(2), arguments.value(3).toDouble());
    const unsigned seed = arguments.size() > 2 ? arguments[2].toUInt() : std::random_device()();
    return killAtRandom(std::max(arguments.value(1).toInt(), 1), seed);
}
