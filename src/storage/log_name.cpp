#include "storage/log_name.h"

#include <QCryptographicHash>
#include <QFile>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

// The stem as it is where a file can have that name; else its beginning and what only this stem
// gives.
QString fittingStem(const QString& stem) {
    // File systems take 255 bytes: ".csv" is added to these, and ".new" while the file is replaced.
    constexpr qsizetype longest = 244;
    if (QFile::encodeName(stem).size() <= longest)
        return stem;
    const QByteArray name = QCryptographicHash::hash(stem.toUtf8(), QCryptographicHash::Sha256);
    const QString ending = u'-' + QString::fromLatin1(name.toHex().first(16));
    QString beginning = stem.left(longest);
    while (beginning.back().isHighSurrogate() ||
           QFile::encodeName(beginning).size() + ending.size() > longest)
        beginning.chop(1);
    return beginning + ending;
}

}  // namespace

QString safeFileStem(const QString& batch) {
    QString stem;
    for (const char32_t scalar : batch.toUcs4()) {
        const bool isKept = QChar::isLetterOrNumber(scalar) || QChar::isMark(scalar) ||
                            scalar == U'-' || scalar == U'_';
        if (isKept)
            stem += QChar::fromUcs4(scalar);
        else
            stem += u'-';
    }
    while (stem.startsWith(u'-'))
        stem.remove(0, 1);
    while (stem.endsWith(u'-'))
        stem.chop(1);
    return stem.isEmpty() ? u"batch"_s : stem;
}

QString logFileName(const QString& batch) {
    return fittingStem(safeFileStem(batch)) + u".csv"_s;
}

}  // namespace velmora
