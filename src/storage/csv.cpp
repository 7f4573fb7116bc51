#include "storage/csv.h"

using namespace Qt::StringLiterals;

namespace velmora {

bool CSVReader::nextRow() {
    fields_.clear();
    copied_.clear();
    if (position_ == text_.size())
        return false;
    Ending ending = Ending::comma;
    while (ending == Ending::comma)
        ending = readField();
    return ending == Ending::line || fields_.size() > 1 || fields_.front().size > 0;
}

QStringView CSVReader::field(size_t index) const {
    const Field& field = fields_[index];
    const QStringView whole = field.copied ? QStringView(copied_) : text_;
    return whole.sliced(field.begin, field.size);
}

CSVReader::Ending CSVReader::readField() {
    const qsizetype begin = position_;
    const QStringView plain = takePlain();
    if (const auto ending = takeEnding()) {
        fields_.push_back({begin, plain.size(), false});
        return *ending;
    }
    return readCopiedField(plain);
}

CSVReader::Ending CSVReader::readCopiedField(QStringView beginning) {
    const auto begin = static_cast<qsizetype>(copied_.size());
    copy(beginning);
    std::optional<Ending> ending;
    while (!ending) {
        const bool isQuote = text_[position_] == u'"';
        ++position_;
        if (isQuote)
            copyQuoted();
        copy(takePlain());
        ending = takeEnding();
    }
    fields_.push_back({begin, static_cast<qsizetype>(copied_.size()) - begin, true});
    return *ending;
}

std::optional<CSVReader::Ending> CSVReader::takeEnding() {
    if (position_ == text_.size())
        return Ending::text;
    if (startsAt(position_, u',')) {
        ++position_;
        return Ending::comma;
    }
    const qsizetype lineFeed = startsAt(position_, u'\r') ? position_ + 1 : position_;
    if (!startsAt(lineFeed, u'\n'))
        return std::nullopt;
    position_ = lineFeed + 1;
    return Ending::line;
}

QStringView CSVReader::takePlain() {
    const auto isPlain = [](char16_t character) {
        return character > u',' ||
               (character != u',' && character != u'"' && character != u'\n' && character != u'\r');
    };
    const qsizetype begin = position_;
    const char16_t* const characters = text_.utf16();
    while (position_ < text_.size() && isPlain(characters[position_]))
        ++position_;
    return text_.sliced(begin, position_ - begin);
}

void CSVReader::copyQuoted() {
    for (;;) {
        const qsizetype quote = text_.indexOf(u'"', position_);
        const qsizetype end = quote < 0 ? text_.size() : quote;
        copy(text_.sliced(position_, end - position_));
        position_ = quote < 0 ? end : end + 1;
        if (!startsAt(position_, u'"'))
            return;
        copied_ += u'"';
        ++position_;
    }
}

std::vector<QStringList> parseCSV(const QString& text) {
    std::vector<QStringList> rows;
    CSVReader reader(text);
    while (reader.nextRow()) {
        QStringList row;
        for (size_t index = 0; index < reader.fieldCount(); ++index)
            row += reader.field(index).toString();
        rows.push_back(std::move(row));
    }
    return rows;
}

QString formatCSV(const QStringList& fields) {
    QStringList written = fields;
    for (QString& field : written)
        if (field.contains(u',') || field.contains(u'"') || field.contains(u'\n'))
            field = u'"' + field.replace(u'"', u"\"\""_s) + u'"';
    return written.join(u',') + u'\n';
}

}  // namespace velmora
