#include <QCoreApplication>
#include <QDateTime>
#include <QDir>
#include <cstdio>

#include "platform/rehearsal/sample/sample_home.h"

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2) {
        std::fputs("Usage: velmora_rehearsal_home <folder>\n", stderr);
        return 2;
    }
    const QString home = QDir(arguments.at(1)).absolutePath();
    const auto prepared =
        velmora::prepareSampleHome(home, velmora::momentOf(QDateTime::currentDateTimeUtc()));
    if (!prepared) {
        std::fputs(qPrintable(prepared.error().description + u'\n'), stderr);
        return 1;
    }
    return 0;
}
