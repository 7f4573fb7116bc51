#include "storage/files.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <cerrno>
#include <utility>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

constexpr QFile::Permissions ownerFolder = QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner;
constexpr mode_t ownerMode = S_IRUSR | S_IWUSR;
const QString notOrdinary = u"it is no ordinary file"_s;
constexpr mode_t othersMode = S_IRWXG | S_IRWXO;

/// An open file, closed with it.
class Descriptor {
  public:
    explicit Descriptor(int handle) : handle_(handle) {}
    Descriptor(Descriptor&& other) noexcept : handle_(std::exchange(other.handle_, -1)) {}
    Descriptor& operator=(Descriptor&&) = delete;
    ~Descriptor() {
        if (handle_ >= 0)
            ::close(handle_);
    }

    [[nodiscard]] int get() const { return handle_; }

  private:
    int handle_;
};

std::unexpected<FileError> failure(const char* verb, const QString& path, const QString& reason,
                                   FileError::Kind kind = FileError::Kind::failed) {
    return std::unexpected(
        FileError{u"Couldn't %1 %2: %3."_s.arg(QLatin1StringView(verb), path, reason), kind});
}

std::unexpected<FileError> failure(const char* verb, const QString& path, int error) {
    const auto kind = error == ENOENT   ? FileError::Kind::missing
                      : error == EEXIST ? FileError::Kind::exists
                                        : FileError::Kind::failed;
    return failure(verb, path, qt_error_string(error), kind);
}

// The error of writing the file through to the disk; 0 is none. Some file systems cannot: what they
// hold is as safe as it gets. A Mac's plain call leaves it to the disk when to write.
int syncError(int handle) {
#ifdef F_FULLFSYNC
    if (::fcntl(handle, F_FULLFSYNC) == 0)
        return 0;
#endif
    if (::fsync(handle) == 0 || errno == EINVAL || errno == ENOTSUP)
        return 0;
    return errno;
}

// The name of a new file is as safe as the file once its folder is written through. A folder that
// cannot be is left as it is.
void syncFolderOf(const QString& path) {
    const QByteArray folder = QFile::encodeName(QFileInfo(path).absolutePath());
    const Descriptor opened(::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    if (opened.get() >= 0)
        static_cast<void>(syncError(opened.get()));
}

std::expected<Descriptor, FileError> openOrdinary(const char* verb, const QString& path,
                                                  int flags) {
    // Without waiting: a pipe would have the call wait for its other end.
    Descriptor file(::open(QFile::encodeName(path).constData(),
                           flags | O_NONBLOCK | O_NOCTTY | O_CLOEXEC, ownerMode));
    struct stat status{};
    if (file.get() < 0 || ::fstat(file.get(), &status) != 0)
        return failure(verb, path, errno);
    if (!S_ISREG(status.st_mode))
        return failure(verb, path, notOrdinary);
    return file;
}

// The error of writing all bytes; 0 is none.
int writeError(int handle, const QByteArray& bytes) {
    qsizetype written = 0;
    while (written < bytes.size()) {
        const auto room = static_cast<size_t>(bytes.size() - written);
        const ssize_t count = ::write(handle, bytes.constData() + written, room);
        if (count < 0 && errno != EINTR)
            return errno;
        if (count == 0)
            return ENOSPC;
        written += std::max<ssize_t>(count, 0);
    }
    return 0;
}

std::expected<void, FileError> createInFolder(const QString& path, const QByteArray& bytes) {
    const auto file = openOrdinary("create", path, O_WRONLY | O_CREAT | O_EXCL);
    if (!file)
        return std::unexpected(file.error());
    int error = writeError(file->get(), bytes);
    if (error == 0)
        error = syncError(file->get());
    if (error != 0) {
        ::unlink(QFile::encodeName(path).constData());
        return failure("write", path, error);
    }
    return {};
}

// The same where the folder may have to be made first.
std::expected<void, FileError> makeFile(const QString& path, const QByteArray& bytes) {
    auto made = createInFolder(path, bytes);
    const bool noFolder = !made && made.error().kind == FileError::Kind::missing;
    if (noFolder && createPrivateFolder(QFileInfo(path).absolutePath()))
        made = createInFolder(path, bytes);
    return made;
}

}  // namespace

std::expected<QByteArray, FileError> readFile(const QString& path) {
    const auto file = openOrdinary("read", path, O_RDONLY);
    if (!file)
        return std::unexpected(file.error());
    QFile reader;
    QByteArray bytes;
    if (reader.open(file->get(), QIODevice::ReadOnly | QIODevice::Unbuffered))
        bytes = reader.readAll();
    if (reader.error() != QFile::NoError)
        return failure("read", path, reader.errorString());
    return bytes;
}

std::expected<void, FileError> replaceFile(const QString& path, const QByteArray& bytes) {
    const QByteArray name = QFile::encodeName(path);
    struct stat status{};
    const bool exists = ::lstat(name.constData(), &status) == 0;
    if (!exists && errno != ENOENT)
        return failure("write", path, errno);
    if (exists && S_ISLNK(status.st_mode)) {
        const QString target = QFileInfo(path).canonicalFilePath();
        return target.isEmpty() ? failure("write", path, u"it is a link to nothing"_s)
                                : replaceFile(target, bytes);
    }
    if (exists && !S_ISREG(status.st_mode))
        return failure("write", path, notOrdinary);
    // A file that may not be written may not be replaced, either.
    if (exists && ::faccessat(AT_FDCWD, name.constData(), W_OK, AT_EACCESS) != 0)
        return failure("write", path, errno);
    // Beside it under a fixed name, so that what a killed program leaves there is taken next time.
    const QString fresh = path + u".new"_s;
    const QByteArray freshName = QFile::encodeName(fresh);
    ::unlink(freshName.constData());
    if (auto made = makeFile(fresh, bytes); !made)
        return made;
    if (::rename(freshName.constData(), name.constData()) != 0) {
        const int error = errno;
        ::unlink(freshName.constData());
        return failure("write", path, error);
    }
    syncFolderOf(path);
    return {};
}

std::expected<void, FileError> createFile(const QString& path, const QByteArray& bytes) {
    auto made = makeFile(path, bytes);
    if (made)
        syncFolderOf(path);
    return made;
}

std::expected<void, FileError> appendToFile(const QString& path, const QByteArray& bytes,
                                            qint64 surplus) {
    const auto file = openOrdinary("open", path, O_WRONLY | O_APPEND);
    if (!file)
        return std::unexpected(file.error());
    struct stat status{};
    if (::fstat(file->get(), &status) != 0)
        return failure("write", path, errno);
    if ((status.st_mode & othersMode) != 0)
        ::fchmod(file->get(), status.st_mode & ~othersMode & 07777);
    const off_t kept = status.st_size - surplus;
    int error = surplus == 0 || ::ftruncate(file->get(), kept) == 0 ? 0 : errno;
    if (error == 0)
        error = writeError(file->get(), bytes);
    if (error == 0)
        error = syncError(file->get());
    if (error == 0)
        return {};
    static_cast<void>(::ftruncate(file->get(), kept));
    return failure("write", path, error);
}

void makeFilePrivate(const QString& path) {
    const QByteArray name = QFile::encodeName(path);
    struct stat status{};
    if (::stat(name.constData(), &status) == 0 && S_ISREG(status.st_mode) &&
        (status.st_mode & othersMode) != 0)
        static_cast<void>(::chmod(name.constData(), status.st_mode & ~othersMode & 07777));
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
    syncFolderOf(path);
    return {};
}

}  // namespace velmora
