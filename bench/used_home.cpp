// used_home PEOPLE: makes a home with so many people that has been used, and prints its folder.

#include <QCoreApplication>
#include <cstdio>

#include "bench_home.h"

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const int people = QCoreApplication::arguments().value(1).toInt();
    std::puts(qPrintable(velmora::usedHome(people)));
    return 0;
}
