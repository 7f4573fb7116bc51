// Preloaded into a program, makes the n-th call on files below one folder fail, once or from then
// on: VELMORA_FAULT_FOLDER, VELMORA_FAULT_AT and, for the latter, VELMORA_FAULT_STAYS. At the end
// it writes how many calls there were into the file VELMORA_FAULT_COUNT. Until one fails, whatever
// is written must be on the disk before its file is closed, and a file's new name before the next
// one.

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace {

int calls = 0;
bool hasFailed = false;
struct Handle {
    bool isWatched = false;
    bool isNew = false;
    bool isUnsafe = false;  // what was written is not on the disk
};
std::array<Handle, 1024> handles{};
bool namesAreUnsafe = false;

const char* setting(const char* name) {
    const char* value = std::getenv(name);
    return value == nullptr ? "" : value;
}

bool lies(const char* path) {
    static const char* const folder = setting("VELMORA_FAULT_FOLDER");
    return *folder != 0 && std::strncmp(path, folder, std::strlen(folder)) == 0;
}

bool watched(int handle) {
    return handle >= 0 && handle < static_cast<int>(handles.size()) &&
           handles[static_cast<size_t>(handle)].isWatched;
}

void mustBeSafe(bool isUnsafe) {
    if (isUnsafe && !hasFailed) {
        std::fputs("A loss of power would take what was written.\n", stderr);
        std::abort();
    }
}

// Whether this call is to fail; `error` is what it then says.
bool fails(int error) {
    static const int at = std::atoi(setting("VELMORA_FAULT_AT"));
    static const bool stays = *setting("VELMORA_FAULT_STAYS") != 0;
    ++calls;
    if (at == 0 || (stays ? calls < at : calls != at))
        return false;
    errno = error;
    hasFailed = true;
    return true;
}

template <class Function>
Function real(const char* name) {
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

int opened(const char* name, const char* path, int flags, mode_t mode) {
    if (lies(path) && fails((flags & O_CREAT) != 0 ? ENOSPC : EIO))
        return -1;
    const bool isNew = (flags & O_CREAT) != 0;
    mustBeSafe(isNew && lies(path) && namesAreUnsafe);
    const int handle = real<int (*)(const char*, int, ...)>(name)(path, flags, mode);
    if (handle >= 0 && handle < static_cast<int>(handles.size()))
        handles[static_cast<size_t>(handle)] = {.isWatched = lies(path), .isNew = isNew};
    return handle;
}

// A call that looks at the file of this path, or changes what the folder says of it.
template <class... Arguments>
int named(const char* name, const char* path, Arguments... arguments) {
    if (lies(path) && fails(EIO))
        return -1;
    return real<int (*)(const char*, Arguments...)>(name)(path, arguments...);
}

struct Report {
    ~Report() {
        mustBeSafe(namesAreUnsafe);
        if (FILE* file = std::fopen(setting("VELMORA_FAULT_COUNT"), "w")) {
            std::fprintf(file, "%d", calls);
            std::fclose(file);
        }
    }
} report;

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return opened("open", path, flags, mode);
}
int open64(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = va_arg(rest, mode_t);
    va_end(rest);
    return opened("open64", path, flags, mode);
}
ssize_t read(int handle, void* bytes, size_t size) {
    if (watched(handle) && fails(EIO))
        return -1;
    return real<ssize_t (*)(int, void*, size_t)>("read")(handle, bytes, size);
}
ssize_t write(int handle, const void* bytes, size_t size) {
    // As on a full disk, the first part may be there, and no more.
    static int filled = -1;
    if (watched(handle) && (handle == filled || fails(ENOSPC))) {
        const bool isRest = filled == handle;
        filled = isRest ? -1 : handle;
        errno = ENOSPC;
        return isRest ? -1 : real<ssize_t (*)(int, const void*, size_t)>("write")(handle, bytes, 1);
    }
    if (watched(handle))
        handles[static_cast<size_t>(handle)].isUnsafe = true;
    return real<ssize_t (*)(int, const void*, size_t)>("write")(handle, bytes, size);
}
int fsync(int handle) {
    if (watched(handle) && fails(EIO))
        return -1;
    struct stat status{};
    if (watched(handle) && real<int (*)(int, struct stat*)>("fstat")(handle, &status) == 0) {
        handles[static_cast<size_t>(handle)].isUnsafe = false;
        namesAreUnsafe = namesAreUnsafe && !S_ISDIR(status.st_mode);
    }
    return real<int (*)(int)>("fsync")(handle);
}
int ftruncate(int handle, off_t size) noexcept {
    if (watched(handle) && fails(EIO))
        return -1;
    return real<int (*)(int, off_t)>("ftruncate")(handle, size);
}
int rename(const char* from, const char* to) noexcept {
    namesAreUnsafe = namesAreUnsafe || lies(to);
    return named("rename", from, to);
}
int unlink(const char* path) noexcept {
    return named("unlink", path);
}
int mkdir(const char* path, mode_t mode) noexcept {
    return named("mkdir", path, mode);
}
int chmod(const char* path, mode_t mode) noexcept {
    return named("chmod", path, mode);
}
int stat(const char* path, struct stat* status) noexcept {
    return named("stat", path, status);
}
int lstat(const char* path, struct stat* status) noexcept {
    return named("lstat", path, status);
}
int fstat(int handle, struct stat* status) noexcept {
    if (watched(handle) && fails(EIO))
        return -1;
    return real<int (*)(int, struct stat*)>("fstat")(handle, status);
}
int faccessat(int folder, const char* path, int mode, int flags) noexcept {
    if (lies(path) && fails(EIO))
        return -1;
    return real<int (*)(int, const char*, int, int)>("faccessat")(folder, path, mode, flags);
}
// What the toolkit asks about a path.
int statx(int folder, const char* path, int flags, unsigned mask, struct statx* status) noexcept {
    if (lies(path) && fails(EIO))
        return -1;
    return real<int (*)(int, const char*, int, unsigned, struct statx*)>("statx")(
        folder, path, flags, mask, status);
}
int close(int handle) {
    const bool failed = watched(handle) && fails(EIO);
    if (watched(handle)) {
        Handle& closed = handles[static_cast<size_t>(handle)];
        mustBeSafe(closed.isUnsafe);
        namesAreUnsafe = namesAreUnsafe || closed.isNew;
        closed = {};
    }
    const int result = real<int (*)(int)>("close")(handle);
    return failed ? -1 : result;
}
}
