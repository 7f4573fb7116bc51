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
/// new file is readable by its owner alone. Its bytes are synced before it takes the old one's
/// place, where the file system can sync; the folder's entry is not, so that a loss of power may
/// bring the old file back. On failure the old file stands.
[[nodiscard]] std::expected<void, FileError> replaceFile(const QString& path,
                                                         const QByteArray& bytes);

/// Cuts `surplus` bytes off the end of an existing file and adds `bytes` there in one write. Fails
/// when the file cannot be opened for writing, and never creates one. What a failed write left
/// behind is cut off again.
[[nodiscard]] std::expected<void, FileError> appendToFile(const QString& path,
                                                          const QByteArray& bytes,
                                                          qint64 surplus = 0);

/// Creates the folder and what is missing above it; a folder that this creates is open to its owner
/// alone. An existing folder is fine.
[[nodiscard]] std::expected<void, FileError> createPrivateFolder(const QString& path);

}  // namespace velmora
