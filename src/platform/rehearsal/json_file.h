#pragma once

#include <QJsonObject>
#include <QString>
#include <expected>
#include <optional>

#include "storage/files.h"

namespace velmora {

/// A file that holds one JSON object, read field by field. A missing file and a missing key are
/// empty; a value of the wrong type is remembered as the file's error, so that a reader asks once,
/// at the end.
class JsonFile {
  public:
    [[nodiscard]] static std::expected<JsonFile, FileError> read(const QString& path);

    [[nodiscard]] const QJsonObject& root() const { return root_; }

    [[nodiscard]] std::optional<QString> optionalText(const QJsonObject& object,
                                                      const QString& key);
    [[nodiscard]] QJsonObject object(const QJsonObject& object, const QString& key);

    /// Replaces `seconds` when the key is there: by its number, or by nothing for null.
    void readSeconds(const QJsonObject& object, const QString& key, std::optional<double>& seconds);

    /// Replaces `number` when the key is there.
    void readInteger(const QJsonObject& object, const QString& key, qint64& number);

    /// The first value of a wrong type so far, in a sentence.
    [[nodiscard]] const std::optional<FileError>& error() const { return error_; }

  private:
    JsonFile(QString path, QJsonObject root) : path_(std::move(path)), root_(std::move(root)) {}

    void refuse(const QString& key, const QString& wanted);

    QString path_;
    QJsonObject root_;
    std::optional<FileError> error_;
};

}  // namespace velmora
