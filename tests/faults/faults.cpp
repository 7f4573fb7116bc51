// Lets each call that Velmora makes on its files fail in turn, once or from then on, in a run of
// five with settings saved and lines settled, and has the next evening put things right. Nobody may
// be texted twice, and no line be lost. Until a call fails, whatever is written must be on the disk
// before its file is closed, and a file's new name before the next one: a loss of power takes the
// rest.

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QCoreApplication>
#include <QTemporaryDir>
#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <utility>

#include "support/evening.h"

using namespace Qt::StringLiterals;

using namespace velmora;

namespace {

/// What befalls this process's calls on files.
struct FailingCalls {
    std::string folder;  ///< below which calls are counted; none are while it is empty
    int at = 0;          ///< the number of the call that fails, the first is 1; 0: none
    bool stays = false;  ///< all that follow fail as well
    int count = 0;       ///< the calls until now
    bool failed = false;
} failingCalls;

struct Handle {
    bool isOurs = false;
    bool isNew = false;
    bool isUnsafe = false;  // what was written is not on the disk
};
std::array<Handle, 1024> handles{};
bool namesAreUnsafe = false;

bool isOurs(const char* path) {
    return !failingCalls.folder.empty() && std::string_view(path).starts_with(failingCalls.folder);
}

Handle& known(int handle) {
    return handles.at(static_cast<size_t>(handle));
}

bool isOurs(int handle) {
    return handle >= 0 && handle < std::ssize(handles) && known(handle).isOurs;
}

void mustBeSafe(bool isUnsafe) {
    if (isUnsafe && !failingCalls.failed) {
        std::fputs("A loss of power would take what was written.\n", stderr);
        std::abort();
    }
}

// Whether this call is to fail; `error` is what it then says.
bool fails(int error) {
    const int call = ++failingCalls.count;
    const int at = failingCalls.at;
    if (at == 0 || (failingCalls.stays ? call < at : call != at))
        return false;
    errno = error;
    failingCalls.failed = true;
    return true;
}

template <class Function>
Function* real(const char* name) {
    return reinterpret_cast<Function*>(::dlsym(RTLD_NEXT, name));
}

int opened(const char* name, const char* path, int flags, va_list rest) {
    const mode_t mode = va_arg(rest, mode_t);
    if (isOurs(path) && fails((flags & O_CREAT) != 0 ? ENOSPC : EIO))
        return -1;
    const bool isNew = (flags & O_CREAT) != 0;
    mustBeSafe(isNew && isOurs(path) && namesAreUnsafe);
    const int handle = real<int(const char*, int, ...)>(name)(path, flags, mode);
    if (handle >= 0 && handle < std::ssize(handles))
        known(handle) = {.isOurs = isOurs(path), .isNew = isNew};
    return handle;
}

// Passes a call on a file, by its path or its descriptor, on to the C library.
template <class Result = int, class File, class... Arguments>
Result passOn(const char* name, File file, Arguments... arguments) {
    if (isOurs(file) && fails(EIO))
        return -1;
    return real<Result(File, Arguments...)>(name)(file, arguments...);
}

}  // namespace

// These take the place of the C library's, for the toolkit's and SQLite's calls, too.
extern "C" {

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const int handle = opened("open", path, flags, rest);
    va_end(rest);
    return handle;
}
int open64(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const int handle = opened("open64", path, flags, rest);
    va_end(rest);
    return handle;
}
ssize_t read(int handle, void* bytes, size_t size) {
    return passOn<ssize_t>("read", handle, bytes, size);
}
ssize_t write(int handle, const void* bytes, size_t size) {
    // As on a full disk, the first part may be there, and no more.
    static int filled = -1;
    auto* const writes = real<ssize_t(int, const void*, size_t)>("write");
    if (isOurs(handle) && (handle == filled || fails(ENOSPC))) {
        const bool isRest = handle == filled;
        filled = isRest ? -1 : handle;
        errno = ENOSPC;
        return isRest ? -1 : writes(handle, bytes, 1);
    }
    if (isOurs(handle))
        known(handle).isUnsafe = true;
    return writes(handle, bytes, size);
}
int close(int handle) {
    const bool failed = isOurs(handle) && fails(EIO);
    if (isOurs(handle)) {
        const Handle closed = std::exchange(known(handle), {});
        mustBeSafe(closed.isUnsafe);
        namesAreUnsafe = namesAreUnsafe || closed.isNew;
    }
    const int result = real<int(int)>("close")(handle);
    return failed ? -1 : result;
}
int fsync(int handle) {
    const int result = passOn("fsync", handle);
    if (result == 0 && isOurs(handle)) {
        struct stat status{};
        real<int(int, struct stat*)>("fstat")(handle, &status);
        known(handle).isUnsafe = false;
        namesAreUnsafe = namesAreUnsafe && !S_ISDIR(status.st_mode);
    }
    return result;
}
int ftruncate(int handle, off_t size) noexcept {
    return passOn("ftruncate", handle, size);
}
int fstat(int handle, struct stat* status) noexcept {
    return passOn("fstat", handle, status);
}
int stat(const char* path, struct stat* status) noexcept {
    return passOn("stat", path, status);
}
int lstat(const char* path, struct stat* status) noexcept {
    return passOn("lstat", path, status);
}
int rename(const char* from, const char* to) noexcept {
    namesAreUnsafe = namesAreUnsafe || isOurs(to);
    return passOn("rename", from, to);
}
int unlink(const char* path) noexcept {
    return passOn("unlink", path);
}
int mkdir(const char* path, mode_t mode) noexcept {
    return passOn("mkdir", path, mode);
}
int chmod(const char* path, mode_t mode) noexcept {
    return passOn("chmod", path, mode);
}
int faccessat(int folder, const char* path, int mode, int flags) noexcept {
    if (isOurs(path) && fails(EIO))
        return -1;
    return real<int(int, const char*, int, int)>("faccessat")(folder, path, mode, flags);
}
// What the toolkit asks about a path.
int statx(int folder, const char* path, int flags, unsigned mask, struct statx* status) noexcept {
    if (isOurs(path) && fails(EIO))
        return -1;
    return real<int(int, const char*, int, unsigned, struct statx*)>("statx")(folder, path, flags,
                                                                              mask, status);
}
}

namespace {

constexpr int people = 5;
constexpr int longest = 60'000;  // milliseconds

/// An evening whose call number `at` fails. It prints how many calls there were, and fails when
/// a text leaves before all that was written is on the disk although nothing failed.
int runWithFault(const QStringList& arguments) {
    const QString& home = arguments[2];
    failingCalls = {.folder = (home + u"/.local"_s).toStdString(),
                    .at = arguments.value(4).toInt(),
                    .stays = arguments.value(5) == u"stays"};
    const int result = runEvening(home, 0);
    mustBeSafe(namesAreUnsafe);
    std::printf("%d", failingCalls.count);
    return result;
}

/// What is wrong after a fault and the next evening; empty when nothing is. `calls` becomes the
/// number of calls.
QString faultAfter(int at, bool stays, int& calls) {
    const QTemporaryDir home;
    prepareEvenings(home.path(), people);
    const QStringList fault = {QString::number(at), stays ? u"stays"_s : u"once"_s};
    const auto counted = playEvening(home.path(), 0, longest, fault);
    if (!counted)
        return u"the program crashed or hung"_s;
    calls = counted->toInt();
    if (!playEvening(home.path(), 0, longest))
        return u"the next evening came to nothing, or a text left before its line was on the disk"_s;
    return faultOfEvenings(home.path(), people);
}

int breakEachCall() {
    int faults = 0;
    for (const bool stays : {false, true}) {
        int calls = 1;
        for (int at = 1; at <= calls; ++at, ++faults) {
            const QString fault = faultAfter(at, stays, calls);
            if (!fault.isEmpty()) {
                std::printf("Call %d fails%s: %s.\n", at, stays ? " and all that follow" : "",
                            qPrintable(fault));
                return 1;
            }
        }
    }
    std::printf("%d faults: nobody twice, no line lost.\n", faults);
    return faults > 100 ? 0 : 1;
}

}  // namespace

int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    return arguments.value(1) == u"evening" ? runWithFault(arguments) : breakEachCall();
}
