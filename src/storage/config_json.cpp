#include <QStringDecoder>
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <string>
#include <vector>

#include "storage/config_store.h"

namespace velmora {

namespace {

using nlohmann::json;

// The one list of the keys: calls `visit` with each key and its field until one call gives false.
template <class Config, class Visit>
bool visitFields(Config& config, const Visit& visit) {
    return visit("senderNumber", config.senderNumber) && visit("delayMin", config.delayMin) &&
           visit("delayMax", config.delayMax) && visit("maxPerRun", config.maxPerRun) &&
           visit("quietStart", config.quietStart) && visit("quietEnd", config.quietEnd) &&
           visit("maxFailures", config.maxFailures) && visit("verifyWait", config.verifyWait) &&
           visit("selectedGroupID", config.selectedGroupID) &&
           visit("templates", config.templates) && visit("notes", config.notes) &&
           visit("picks", config.picks) && visit("termsAccepted", config.termsAccepted) &&
           visit("termsAcceptedAt", config.termsAcceptedAt);
}

// QString::fromStdString drops a mark of byte order at the beginning, which here is a part of the
// text.
QString textOf(const std::string& text) {
    QStringDecoder decoder(QStringDecoder::Utf8, QStringDecoder::Flag::ConvertInitialBom);
    return decoder.decode(text);
}

bool read(const json& value, QString& field) {
    const auto* text = value.get_ptr<const std::string*>();
    if (text != nullptr)
        field = textOf(*text);
    return text != nullptr;
}

bool read(const json& value, double& field) {
    if (value.is_number())
        field = value.get<double>();
    return value.is_number();
}

bool read(const json& value, Moment& field) {
    return read(value, field.seconds);
}

bool read(const json& value, qint64& field) {
    if (!value.is_number())
        return false;
    if (value.is_number_unsigned() &&
        value.get<quint64>() > quint64{std::numeric_limits<qint64>::max()})
        return false;
    if (value.is_number_float()) {
        const double number = value.get<double>();
        // An integer below the least one comes as the real number of just that limit.
        constexpr double limit = 9223372036854775808.0;
        if (number != std::floor(number) || number <= -limit || number >= limit)
            return false;
    }
    field = value.get<qint64>();
    return true;
}

bool read(const json& value, QStringList& field) {
    if (!value.is_array())
        return false;
    for (const json& element : value)
        if (!read(element, field.emplaceBack()))
            return false;
    return true;
}

template <class Value>
bool read(const json& value, QMap<QString, Value>& field) {
    if (!value.is_object())
        return false;
    for (const auto& [key, element] : value.items())
        if (!read(element, field[textOf(key)]))
            return false;
    return true;
}

template <class Value>
bool read(const json& value, std::optional<Value>& field) {
    return read(value, field.emplace());
}

json written(const QString& field) {
    return field.toStdString();
}

template <class Number>
    requires std::is_arithmetic_v<Number>
json written(Number field) {
    return field;
}

json written(Moment field) {
    return field.seconds;
}

json written(const QStringList& field) {
    json list = json::array();
    for (const QString& element : field)
        list.push_back(written(element));
    return list;
}

template <class Value>
json written(const QMap<QString, Value>& field) {
    json object = json::object();
    for (auto each = field.begin(); each != field.end(); ++each)
        object[each.key().toStdString()] = written(each.value());
    return object;
}

template <class Value>
json written(const std::optional<Value>& field) {
    return field ? written(*field) : json();
}

bool isKnownKey(const std::string& name) {
    static const AppConfig config;
    return !visitFields(config, [&](const char* key, const auto&) { return name != key; });
}

// Builds what the fields can hold, an object of values and of objects of values and lists, and
// nothing of unknown keys. Reading ends at a container that no field has in that place, so that a
// hostile file neither fills the memory with its nesting nor is gone over more than once.
class SettingsBuilder final : public nlohmann::json_sax<json> {
  public:
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
            isWanted_ = isKnownKey(name);
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

    json settings_;
    json* place_ = &settings_;  // where an object's next value goes
    std::vector<json*> open_;   // the containers of what is read, outermost first
    size_t ignored_ = 0;        // containers that are open below an unknown key
    bool isWanted_ = true;      // false in the value of an unknown key
};

std::optional<json> parsed(const QByteArray& text) {
    SettingsBuilder builder;
    // The parser takes a NUL for the end of the text.
    if (text.contains('\0') || !json::sax_parse(text.begin(), text.end(), &builder))
        return std::nullopt;
    return builder.take();
}

}  // namespace

std::optional<AppConfig> decodeConfig(const QByteArray& json) {
    const auto object = parsed(json);
    AppConfig config;
    const auto readField = [&](const char* key, auto& field) {
        const auto found = object->find(key);
        return found == object->end() || found->is_null() || read(*found, field);
    };
    if (!object || !visitFields(config, readField))
        return std::nullopt;
    return config;
}

std::optional<QByteArray> encodeConfig(const AppConfig& config) {
    constexpr int indentation = 2;
    json object = json::object();
    const auto writeField = [&](const char* key, const auto& field) {
        json value = written(field);
        if (value.is_number_float() && !std::isfinite(value.get<double>()))
            return false;
        if (!value.is_null())
            object[key] = std::move(value);
        return true;
    };
    if (!visitFields(config, writeField))
        return std::nullopt;
    return QByteArray::fromStdString(
        object.dump(indentation, ' ', false, json::error_handler_t::replace));
}

}  // namespace velmora
