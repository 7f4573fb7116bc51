#pragma once

#include <QByteArray>
#include <QString>
#include <expected>

namespace velmora {

/// Why a file could not be read or written. `description` is one finished English sentence.
struct FileError {
    QString description;
};

/// The whole content of the file.
[[nodiscard]] std::expected<QByteArray, FileError> readFile(const QString& path);

/// Replaces the file by `bytes` in one step: a reader sees the old file or the whole new one. The
/// new file is readable by its owner alone and on the disk when this returns. On failure the old
/// file stands.
[[nodiscard]] std::expected<void, FileError> replaceFile(const QString& path,
                                                         const QByteArray& bytes);

/// Adds `bytes` at the end of an existing file in one write. Fails when the file cannot be opened
/// for writing, and never creates one. What a failed write left behind is cut off again.
[[nodiscard]] std::expected<void, FileError> appendToFile(const QString& path,
                                                          const QByteArray& bytes);

/// Creates the folder and what is missing above it; a folder that this creates is open to its owner
/// alone. An existing folder is fine.
[[nodiscard]] std::expected<void, FileError> createPrivateFolder(const QString& path);

}  // namespace velmora
