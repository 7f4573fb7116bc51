#pragma once

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <QFile>
#include <QTemporaryDir>
#include <csignal>

#include "core/files.h"
#include "core/support_folder.h"
#include "support/rehearsal_home.h"

namespace velmora {

/// An Application Support directory of the test's own, with what may go wrong below it.
struct StorageHome {
    QTemporaryDir directory;
    SupportFolder folder{directory.path()};

    StorageHome() { QFile::setPermissions(directory.path(), QFile::Permissions(0x7755)); }

    [[nodiscard]] static QByteArray read(const QString& path) {
        return readFile(path).value_or("(unreadable)");
    }
    [[nodiscard]] static mode_t mode(const QString& path) {
        struct stat status{};
        ::stat(QFile::encodeName(path).constData(), &status);
        return status.st_mode & 0777;
    }
};

/// While it lives, no file grows beyond `bytes`: writing more fails as on a full disk.
class FullDisk {
  public:
    explicit FullDisk(rlim_t bytes) : signal_(std::signal(SIGXFSZ, SIG_IGN)) {
        ::getrlimit(RLIMIT_FSIZE, &before_);
        const rlimit limit{bytes, before_.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk() {
        ::setrlimit(RLIMIT_FSIZE, &before_);
        static_cast<void>(std::signal(SIGXFSZ, signal_));
    }
    Q_DISABLE_COPY_MOVE(FullDisk)

  private:
    rlimit before_{};
    void (*signal_)(int);
};

/// While it lives, permissions count: an administrator's do not, so it acts as somebody else.
class OrdinaryUser {
  public:
    OrdinaryUser() {
        constexpr uid_t nobody = 65534;
        if (user_ == 0) {
            EXPECT_EQ(::seteuid(nobody), 0);
        }
    }
    ~OrdinaryUser() { EXPECT_EQ(::seteuid(user_), 0); }
    Q_DISABLE_COPY_MOVE(OrdinaryUser)

  private:
    uid_t user_ = ::geteuid();
};

}  // namespace velmora
