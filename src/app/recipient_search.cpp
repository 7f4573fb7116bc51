#include "app/recipient_search.h"

#include <QStringMatcher>
#include <algorithm>

#include "core/white_space.h"

namespace velmora {

namespace {

// Between two parts, and no character that anybody types.
constexpr QChar partEnd(u'\uFFFF');

// One spelling for what reads the same: accents composed first, since a card may hold them either
// way, then letter case folded.
QString folded(const QString& text) {
    return text.normalized(QString::NormalizationForm_C).toCaseFolded();
}

QString digitsOf(const QString& text) {
    QString digits;
    std::ranges::copy_if(text, std::back_inserter(digits),
                         [](QChar each) { return each >= u'0' && each <= u'9'; });
    return digits;
}

}  // namespace

RecipientSearch::RecipientSearch(const std::vector<Recipient>& recipients) {
    for (const Recipient& each : recipients) {
        words_.add(folded(each.name + partEnd + each.company));
        phones_.add(each.phone);
    }
}

std::vector<qsizetype> RecipientSearch::find(const QString& typed) const {
    const QString wanted = trimmedSpacesAndTabs(typed).toString();
    const QString digits = digitsOf(wanted);
    std::vector<bool> found(words_.ends.size(), wanted.isEmpty());
    words_.mark(folded(wanted), found);
    if (digits.size() >= 3)
        phones_.mark(digits, found);
    std::vector<qsizetype> indexes;
    for (size_t person = 0; person < found.size(); ++person)
        if (found[person])
            indexes.push_back(static_cast<qsizetype>(person));
    return indexes;
}

void RecipientSearch::Block::add(const QString& part) {
    text += part;
    text += partEnd;
    ends.push_back(text.size());
}

// Goes on behind each person who was found.
void RecipientSearch::Block::mark(const QString& wanted, std::vector<bool>& found) const {
    const QStringMatcher matcher(wanted);
    qsizetype place = wanted.isEmpty() ? -1 : matcher.indexIn(text);
    for (size_t person = 0; place >= 0; place = matcher.indexIn(text, ends[person])) {
        while (ends[person] <= place)
            ++person;
        found[person] = true;
    }
}

}  // namespace velmora
