#include "storage/settings_parser.h"

#include <QRegularExpression>
#include <QString>
#include <cmath>
#include <nlohmann/json.hpp>
#include <utility>
#include <vector>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

using nlohmann::json;

// Builds what the fields can hold, an object of values and of objects of values and lists, and
// nothing of unknown keys. Reading ends at a container that no field has in that place, so that a
// hostile file neither fills the memory with its nesting nor is gone over more than once.
class SettingsBuilder final : public nlohmann::json_sax<json> {
  public:
    explicit SettingsBuilder(bool (*isKnownKey)(const std::string&)) : isKnownKey_(isKnownKey) {}

    [[nodiscard]] json take() { return std::move(settings_); }

    bool null() override { return add({}); }
    bool boolean(bool value) override { return add(value); }
    bool number_integer(number_integer_t value) override { return add(value); }
    bool number_unsigned(number_unsigned_t value) override { return add(value); }
    bool number_float(number_float_t value, const string_t& /*text*/) override {
        return add(value);
    }
    bool string(string_t& value) override { return add(std::move(value)); }
    bool binary(binary_t& /*value*/) override { return false; }

    bool key(string_t& name) override {
        if (ignored_ == 0 && open_.size() == 1)
            isWanted_ = isKnownKey_(name);
        if (isWanted_)
            place_ = &(*open_.back())[name];
        return true;
    }

    bool start_object(size_t /*count*/) override { return open(json::object(), open_.size() < 2); }
    bool end_object() override { return close(); }
    bool start_array(size_t /*count*/) override {
        return open(json::array(), open_.size() == 2 && open_.back()->is_object());
    }
    bool end_array() override { return close(); }

    bool parse_error(size_t /*position*/, const std::string& /*token*/,
                     const json::exception& /*error*/) override {
        return false;
    }

  private:
    bool add(json value) {
        if (!isWanted_)
            return true;
        if (open_.empty())
            return false;
        if (open_.back()->is_array())
            open_.back()->push_back(std::move(value));
        else
            *place_ = std::move(value);
        return true;
    }

    bool open(json container, bool isHeld) {
        if (!isWanted_)
            ++ignored_;
        else if (isHeld)
            open_.push_back(&(*place_ = std::move(container)));
        return !isWanted_ || isHeld;
    }

    bool close() {
        if (ignored_ > 0)
            --ignored_;
        else
            open_.pop_back();
        return true;
    }

    bool (*isKnownKey_)(const std::string&);
    json settings_;
    json* place_ = &settings_;  // where an object's next value goes
    std::vector<json*> open_;   // the containers of what is read, outermost first
    size_t ignored_ = 0;        // containers that are open below an unknown key
    bool isWanted_ = true;      // false in the value of an unknown key
};

// The parser gives up at two things that the grammar allows, under unknown keys too: a number
// beyond all reals and a half of a surrogate pair. This puts in their place a value that no field
// takes.
QByteArray mended(const QByteArray& bytes) {
    static const QRegularExpression token(uR"("(?:[^"\\]|\\.)*+"|-?[0-9][-+.0-9Ee]*+)"_s,
                                          QRegularExpression::DotMatchesEverythingOption);
    static const QRegularExpression half(
        uR"((?:\\[^u]|\\u[Dd][89ABab]..\\u[Dd][C-Fc-f]..)(*SKIP)(*FAIL)|\\u[Dd][89A-Fa-f])"_s);
    const QString text = QString::fromLatin1(bytes);
    QString mended;
    qsizetype end = 0;
    for (const QRegularExpressionMatch& match : token.globalMatch(text)) {
        const QString found = match.captured();
        const bool fits =
            found.startsWith(u'"') ? !half.match(found).hasMatch() : !std::isinf(found.toDouble());
        if (fits)
            continue;
        mended += text.sliced(end, match.capturedStart() - end) + u"false"_s;
        end = match.capturedEnd();
    }
    return (mended + text.sliced(end)).toLatin1();
}

}  // namespace

std::optional<json> parseSettings(const QByteArray& text,
                                  bool (*isKnownKey)(const std::string& key)) {
    // The parser takes a NUL for the end of the text.
    if (text.contains('\0'))
        return std::nullopt;
    SettingsBuilder builder(isKnownKey);
    if (json::sax_parse(text.begin(), text.end(), &builder))
        return builder.take();
    const QByteArray again = mended(text);
    SettingsBuilder another(isKnownKey);
    if (again != text && json::sax_parse(again.begin(), again.end(), &another))
        return another.take();
    return std::nullopt;
}

}  // namespace velmora
