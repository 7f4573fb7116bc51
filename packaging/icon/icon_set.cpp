// Draws the application's icon at every size that a Mac's icon set holds: icon_set <folder>.

#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <array>
#include <cstdio>

#include "ui/look/drawn_look.h"

using namespace Qt::StringLiterals;

namespace {

QImage drawn(int pixels) {
    return velmora::DrawnLook().picture(velmora::SystemPicture::applicationIcon, {pixels, pixels});
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 2 || !QDir().mkpath(arguments[1])) {
        std::fputs("Name a folder that the icons can be written to.\n", stderr);
        return 2;
    }
    for (const int points : std::array{16, 32, 128, 256, 512}) {
        const QString name = arguments[1] + u"/icon_%1x%1"_s.arg(points);
        if (!drawn(points).save(name + u".png"_s) || !drawn(points * 2).save(name + u"@2x.png"_s)) {
            std::fprintf(stderr, "%s could not be written.\n", qPrintable(name));
            return 1;
        }
    }
    return 0;
}
