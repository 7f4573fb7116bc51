#include "platform/rehearsal/script_parser.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

// Goes through a source from piece to piece, and stays at the first that does not fit.
class ScriptReader {
  public:
    explicit ScriptReader(QStringView source) : source_(source) {}

    bool expect(QStringView piece) {
        if (!rest().startsWith(piece))
            return false;
        position_ += piece.size();
        return true;
    }

    std::optional<Service> service() {
        const QStringView word = rest().left(rest().indexOf(u'\n'));
        const std::optional<Service> found = serviceNamed(word);
        if (found)
            position_ += word.size();
        return found;
    }

    std::optional<QString> literal() {
        std::optional<StringLiteral> found = readStringLiteral(source_, position_);
        if (!found)
            return {};
        position_ = found->end;
        return std::move(found->value);
    }

    [[nodiscard]] bool atEnd() const { return position_ == source_.size(); }

    [[nodiscard]] ScriptError error() const {
        const qsizetype line = source_.first(position_).count(u'\n') + 1;
        return {u"Messages got an error: Can't understand line %1 of the script."_s.arg(line)};
    }

  private:
    [[nodiscard]] QStringView rest() const { return source_.sliced(position_); }

    QStringView source_;
    qsizetype position_ = 0;
};

}  // namespace

std::optional<StringLiteral> readStringLiteral(QStringView source, qsizetype start) {
    if (start < 0 || start >= source.size() || source[start] != u'"')
        return {};
    QString value;
    for (qsizetype index = start + 1; index < source.size(); ++index) {
        QChar character = source[index];
        if (character == u'"')
            return StringLiteral{.value = value, .end = index + 1};
        if (character == u'\\') {
            if (++index == source.size())
                return {};
            character = source[index];
            if (character != u'\\' && character != u'"')
                return {};
        }
        value += character;
    }
    return {};
}

std::expected<ScriptedText, ScriptError> parseMessageScript(QStringView source) {
    ScriptReader reader(source);
    const auto refused = [&reader] { return std::unexpected(reader.error()); };
    if (!reader.expect(u"tell application \"Messages\"\n"))
        return refused();
    if (!reader.expect(u"    set targetAccount to 1st account whose service type = "))
        return refused();
    const std::optional<Service> service = reader.service();
    if (!service || !reader.expect(u"\n"))
        return refused();
    if (!reader.expect(u"    set targetParticipant to participant "))
        return refused();
    const std::optional<QString> phone = reader.literal();
    if (!phone || !reader.expect(u" of targetAccount\n") || !reader.expect(u"    send "))
        return refused();
    const std::optional<QString> text = reader.literal();
    if (!text || !reader.expect(u" to targetParticipant\n"))
        return refused();
    if (!reader.expect(u"end tell") || !reader.atEnd())
        return refused();
    return ScriptedText{.phone = *phone, .service = *service, .text = *text};
}

}  // namespace velmora
