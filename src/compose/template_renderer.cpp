#include "compose/template_renderer.h"

#include <algorithm>

#include "core/white_space.h"

using namespace Qt::StringLiterals;

namespace velmora::TemplateRenderer {

const QString& defaultTemplate() {
    static const QString text =
        u"Hey {first_name}, it's Robin. Something special is coming up and I'm only telling a few "
        "people. Want in?{custom_note}\n"
        "---\n"
        "{first_name}! Robin here. I've got a private thing coming up and you were one of the "
        "first people I thought of. Interested?{custom_note}"_s;
    return text;
}

QStringList splitVersions(const QString& text) {
    QStringList versions;
    const auto take = [&](QStringView version) {
        if (const QStringView trimmed = trimmedWhiteSpace(version); !trimmed.isEmpty())
            versions += trimmed.toString();
    };
    qsizetype versionStart = 0;
    for (qsizetype lineStart = 0; lineStart <= text.size();) {
        const qsizetype lineFeed = text.indexOf(u'\n', lineStart);
        const qsizetype lineEnd = lineFeed < 0 ? text.size() : lineFeed;
        const QStringView line = QStringView(text).sliced(lineStart, lineEnd - lineStart);
        if (trimmedSpacesAndTabs(line) == u"---") {
            take(QStringView(text).sliced(versionStart, lineStart - versionStart));
            versionStart = std::min(lineEnd + 1, text.size());
        }
        lineStart = lineEnd + 1;
    }
    take(QStringView(text).sliced(versionStart));
    return versions;
}

quint64 versionIndex(const QString& phone, quint64 count) {
    constexpr quint64 offsetBasis = 0xcbf29ce484222325;
    constexpr quint64 prime = 0x100000001b3;
    quint64 hash = offsetBasis;
    for (const char byte : phone.toUtf8())
        hash = (hash ^ static_cast<unsigned char>(byte)) * prime;
    return hash % count;
}

QString renderText(const QString& version, const QString& firstName, const QString& note) {
    const QStringView trimmedNote = trimmedWhiteSpace(note);
    QString text = version;
    text.replace(firstNamePlaceholder, firstName);
    text.replace(customNotePlaceholder,
                 trimmedNote.isEmpty() ? QString() : u' ' + trimmedNote.toString());
    return trimmedWhiteSpace(text).toString();
}

bool isPersonalised(const QString& text) {
    return text.contains(firstNamePlaceholder) || text.contains(customNotePlaceholder) ||
           splitVersions(text).size() > 1;
}

}  // namespace velmora::TemplateRenderer
