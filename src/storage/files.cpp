#include "storage/files.h"

#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QSaveFile>
#include <cerrno>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

constexpr QFile::Permissions ownerFile = QFile::ReadOwner | QFile::WriteOwner;
constexpr QFile::Permissions ownerFolder = ownerFile | QFile::ExeOwner;

std::unexpected<FileError> failure(const char* verb, const QString& path, const QString& reason) {
    return std::unexpected(
        FileError{u"Couldn't %1 %2: %3."_s.arg(QLatin1StringView(verb), path, reason)});
}

// The error of writing the file through to the disk; 0 is none. Some file systems cannot: what they
// hold is as safe as it gets.
int syncError(int handle) {
    if (::fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP)
        return 0;
    return errno;
}

}  // namespace

std::expected<QByteArray, FileError> readFile(const QString& path) {
    QFile file(path);
    QByteArray bytes;
    if (file.open(QIODevice::ReadOnly))
        bytes = file.readAll();
    if (file.error() != QFile::NoError)
        return failure("read", path, file.errorString());
    return bytes;
}

std::expected<void, FileError> replaceFile(const QString& path, const QByteArray& bytes) {
    QSaveFile file(path);
    // commit() alone reports success on a full disk when everything was still in its buffer, and
    // puts an empty file in place of the old one.
    const bool written = file.open(QIODevice::WriteOnly) && file.setPermissions(ownerFile) &&
                         file.write(bytes) == bytes.size() && file.flush();
    if (const int error = written ? syncError(file.handle()) : 0; error != 0)
        return failure("write", path, qt_error_string(error));
    if (!written || !file.commit())
        return failure("write", path, file.errorString());
    return {};
}

std::expected<void, FileError> appendToFile(const QString& path, const QByteArray& bytes,
                                            qint64 surplus) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly | QIODevice::Append | QIODevice::ExistingOnly |
                   QIODevice::Unbuffered))
        return failure("open", path, file.errorString());
    const qint64 kept = file.size() - surplus;
    if ((surplus == 0 || file.resize(kept)) && file.write(bytes) == bytes.size())
        return {};
    const QString reason = file.errorString();
    file.resize(kept);
    return failure("write", path, reason);
}

std::expected<void, FileError> createPrivateFolder(const QString& path) {
    if (QFileInfo(path).isDir())
        return {};
    const QString parent = QFileInfo(path).absolutePath();
    if (parent != path) {
        if (auto created = createPrivateFolder(parent); !created)
            return created;
    }
    if (!QDir().mkdir(path, ownerFolder))
        return failure("create", path, u"the folder can't be made"_s);
    return {};
}

}  // namespace velmora
