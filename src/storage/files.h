#pragma once

#include <QByteArray>
#include <QString>
#include <expected>

namespace velmora {

/// Why a file could not be read or written. `description` is one finished English sentence.
struct FileError {
    enum class Kind {
        failed,   ///< anything that is none of those below; never taken for a missing file
        missing,  ///< there is no such file
        exists    ///< there is one already
    };

    QString description;
    Kind kind = Kind::failed;
};

// All of these work on ordinary files alone, or links to one: a pipe or a device would hang the
// program or never end, and is refused.

/// The whole content of the file.
[[nodiscard]] std::expected<QByteArray, FileError> readFile(const QString& path);

/// Replaces the file by `bytes` in one step: a reader, and a computer that loses its power, has the
/// old file or the whole new one, which is on the disk when this returns. The new file is readable
/// by its owner alone. A missing folder is made. On failure the old file stands.
[[nodiscard]] std::expected<void, FileError> replaceFile(const QString& path,
                                                         const QByteArray& bytes);

/// Makes the file with `bytes`, readable by its owner alone and on the disk when this returns. A
/// missing folder is made. Fails where there is a file already, and leaves none behind when it
/// fails.
[[nodiscard]] std::expected<void, FileError> createFile(const QString& path,
                                                        const QByteArray& bytes);

/// Cuts `surplus` bytes off the end of an existing file and adds `bytes` there in one write, on the
/// disk when this returns. Takes others' permissions off the file. Never creates one. What a failed
/// write left behind is cut off again.
[[nodiscard]] std::expected<void, FileError> appendToFile(const QString& path,
                                                          const QByteArray& bytes,
                                                          qint64 surplus = 0);

/// Takes others' permissions off the file, if there is one; nothing happens where that fails.
void makeFilePrivate(const QString& path);

/// Creates the folder and what is missing above it; a folder that this creates is open to its owner
/// alone. An existing folder is fine.
[[nodiscard]] std::expected<void, FileError> createPrivateFolder(const QString& path);

}  // namespace velmora
