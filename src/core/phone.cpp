#include "core/phone.h"

#include <QTextBoundaryFinder>
#include <array>

#include "core/white_space.h"

using namespace Qt::StringLiterals;

namespace velmora {

QString displayPhone(const QString& phone) {
    if (!phone.startsWith(u"+1"))
        return phone;
    constexpr size_t characters = 12;
    std::array<qsizetype, characters + 1> starts{};
    QTextBoundaryFinder finder(QTextBoundaryFinder::Grapheme, phone);
    for (size_t index = 1; index <= characters; ++index) {
        starts[index] = finder.toNextBoundary();
        if (starts[index] < 0)
            return phone;
    }
    const bool beginsWithPlusOne = starts[1] == 1 && starts[2] == 2;
    if (!beginsWithPlusOne || starts[characters] != phone.size())
        return phone;
    const auto between = [&](size_t first, size_t last) {
        return phone.sliced(starts[first], starts[last] - starts[first]);
    };
    return u'(' + between(2, 5) + u") "_s + between(5, 8) + u'-' + between(8, 12);
}

namespace {

// The marks of writing direction come along with a copied number and cannot be seen. Behind one a
// "+" would not count, and ten digits from abroad would become somebody else's number.
QStringView trimmedNumber(QStringView text) {
    constexpr QStringView marks =
        u"\u061c\u200e\u200f\u202a\u202b\u202c\u202d\u202e\u2066\u2067\u2068\u2069";
    text = trimmedWhiteSpace(text);
    while (!text.isEmpty() && marks.contains(text.front()))
        text = trimmedWhiteSpace(text.sliced(1));
    return text;
}

}  // namespace

std::optional<QString> normalizePhone(const QString& typed) {
    const QStringView trimmed = trimmedNumber(typed);
    QString digits;
    for (const QChar character : trimmed)
        if (character >= u'0' && character <= u'9')
            digits += character;
    const qsizetype count = digits.size();
    if (trimmed.startsWith(u'+') && count >= 8 && count <= 15)
        return u'+' + digits;
    if (count == 10)
        return u"+1"_s + digits;
    if (count == 11 && digits.startsWith(u'1'))
        return u'+' + digits;
    return std::nullopt;
}

}  // namespace velmora
