#include "storage/home_lock.h"

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

#include <QFile>
#include <cerrno>

namespace velmora {

HomeLock::HomeLock(const QString& folder)
    : folder_(::open(QFile::encodeName(folder).constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC)),
      isTaken_(folder_ >= 0 && ::flock(folder_, LOCK_EX | LOCK_NB) != 0 && errno == EWOULDBLOCK) {}

HomeLock::~HomeLock() {
    if (folder_ >= 0)
        ::close(folder_);
}

}  // namespace velmora
