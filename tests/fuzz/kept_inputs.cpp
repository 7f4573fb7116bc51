// Hands every kept input to its reader, as it is and changed at random: velmora_kept_inputs
// <folder>

#include <QCoreApplication>
#include <QDir>
#include <cstdio>
#include <random>

#include "fuzz/readers.h"

using namespace Qt::StringLiterals;

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QDir kept(QCoreApplication::arguments().value(1));
    std::mt19937 random(20250314);
    int inputs = 0;
    for (const auto& [name, reader] : velmora::readers()) {
        const QDir folder(kept.filePath(QString::fromStdString(name)));
        for (const QString& each : folder.entryList(QDir::Files)) {
            QFile file(folder.filePath(each));
            if (!file.open(QIODevice::ReadOnly))
                return 1;
            const QByteArray whole = file.readAll();
            for (int change = 0; change < 200; ++change, ++inputs) {
                QByteArray bytes = whole;
                for (int place = 0; place < change % 8 && !bytes.isEmpty(); ++place)
                    bytes[static_cast<qsizetype>(random() % bytes.size())] =
                        "\0\n\r\",;{}[]+-:\\\xc3\xf0z9"[random() % 18];
                reader(change % 3 == 0 ? bytes.left(random() % (bytes.size() + 1)) : bytes);
            }
        }
    }
    std::printf("%d inputs.\n", inputs);
    return inputs > 2000 ? 0 : 1;
}
