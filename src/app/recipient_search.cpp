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
    const auto add = [this](const QString& part) {
        text_ += part;
        return text_.size();
    };
    for (const Recipient& each : recipients)
        people_.push_back({add(folded(each.name)), add(folded(each.company)), add(each.phone)});
}

std::vector<qsizetype> RecipientSearch::find(const QString& typed) const {
    const QString wanted = trimmedSpacesAndTabs(typed).toString();
    const QString digits = digitsOf(wanted);
    const QStringMatcher text(folded(wanted));
    const QStringMatcher number(digits);
    std::vector<qsizetype> found;
    qsizetype begin = 0;
    for (qsizetype index = 0; index < std::ssize(people_); ++index) {
        const Ends& person = people_[static_cast<size_t>(index)];
        const auto holds = [this](const QStringMatcher& part, qsizetype from, qsizetype to) {
            return part.indexIn(QStringView(text_).sliced(from, to - from)) >= 0;
        };
        if (wanted.isEmpty() || holds(text, begin, person.name) ||
            holds(text, person.name, person.company) ||
            (digits.size() >= 3 && holds(number, person.company, person.phone)))
            found.push_back(index);
        begin = person.phone;
    }
    return found;
}

}  // namespace velmora
