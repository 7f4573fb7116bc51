#include <QStringDecoder>
#include <cmath>
#include <limits>
#include <nlohmann/json.hpp>
#include <string>

#include "storage/config_store.h"
#include "storage/settings_parser.h"

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

}  // namespace

std::optional<AppConfig> decodeConfig(const QByteArray& json) {
    const auto object = parseSettings(json, isKnownKey);
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
