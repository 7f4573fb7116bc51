#include "platform/rehearsal/json_file.h"

#include <QFileInfo>
#include <QJsonDocument>
#include <filesystem>
#include <system_error>

using namespace Qt::StringLiterals;

namespace velmora {

std::expected<JsonFile, FileError> JsonFile::read(const QString& path) {
    // A file that cannot be reached is a problem, and no missing one.
    std::error_code obstacle;
    if (!std::filesystem::exists(QFileInfo(path).filesystemFilePath(), obstacle) && !obstacle)
        return JsonFile(path, {});
    const auto bytes = readFile(path);
    if (!bytes)
        return std::unexpected(bytes.error());
    QJsonParseError problem;
    const QJsonDocument document = QJsonDocument::fromJson(*bytes, &problem);
    const QString name = QFileInfo(path).fileName();
    if (problem.error != QJsonParseError::NoError)
        return std::unexpected(FileError{u"The file %1 is no JSON: %2 at byte %3."_s.arg(
            name, problem.errorString(), QString::number(problem.offset))});
    if (!document.isObject())
        return std::unexpected(FileError{u"The file %1 is no JSON object."_s.arg(name)});
    return JsonFile(path, document.object());
}

void JsonFile::refuse(const QString& key, const QString& wanted) {
    if (!error_)
        error_ = FileError{
            u"In the file %1, \"%2\" is not %3."_s.arg(QFileInfo(path_).fileName(), key, wanted)};
}

std::optional<QString> JsonFile::optionalText(const QJsonObject& object, const QString& key) {
    const QJsonValue value = object.value(key);
    if (value.isUndefined() || value.isNull())
        return {};
    if (!value.isString())
        refuse(key, u"a text"_s);
    return value.toString();
}

QJsonObject JsonFile::object(const QJsonObject& object, const QString& key) {
    const QJsonValue value = object.value(key);
    if (!value.isUndefined() && !value.isObject())
        refuse(key, u"an object"_s);
    return value.toObject();
}

void JsonFile::readSeconds(const QJsonObject& object, const QString& key,
                           std::optional<double>& seconds) {
    const QJsonValue value = object.value(key);
    if (value.isNull())
        seconds.reset();
    else if (value.isDouble())
        seconds = value.toDouble();
    else if (!value.isUndefined())
        refuse(key, u"a number of seconds or null"_s);
}

void JsonFile::readInteger(const QJsonObject& object, const QString& key, qint64& number) {
    const QJsonValue value = object.value(key);
    if (value.isUndefined())
        return;
    // The default is the answer for what is no number, no whole one or too large a one.
    if (value.toInteger(0) != value.toInteger(1))
        refuse(key, u"a whole number of up to 64 bits"_s);
    number = value.toInteger();
}

}  // namespace velmora
