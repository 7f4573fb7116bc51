#include <QGuiApplication>
#include <cstdio>

#include "tour/tour.h"

int main(int argc, char** argv) {
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    if (arguments.size() != 2) {
        std::fputs("Usage: velmora_tour <folder for the pictures>\n", stderr);
        return 2;
    }
    velmora::Tour(arguments[1]).play();
    return 0;
}
