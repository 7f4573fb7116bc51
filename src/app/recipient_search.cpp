#include "app/recipient_search.h"

#include <QStringMatcher>
#include <algorithm>

#include "core/white_space.h"

namespace velmora {

namespace {

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
    people_.reserve(recipients.size());
    for (const Recipient& each : recipients)
        people_.push_back({folded(each.name), folded(each.company), each.phone});
}

std::vector<qsizetype> RecipientSearch::find(const QString& typed) const {
    const QString wanted = trimmedSpacesAndTabs(typed).toString();
    const QString digits = digitsOf(wanted);
    const QStringMatcher text(folded(wanted));
    const QStringMatcher number(digits);
    std::vector<qsizetype> found;
    for (qsizetype index = 0; index < std::ssize(people_); ++index) {
        const Person& person = people_[static_cast<size_t>(index)];
        if (wanted.isEmpty() || text.indexIn(person.name) >= 0 ||
            text.indexIn(person.company) >= 0 ||
            (digits.size() >= 3 && number.indexIn(person.phone) >= 0))
            found.push_back(index);
    }
    return found;
}

}  // namespace velmora
