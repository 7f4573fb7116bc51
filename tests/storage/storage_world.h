#pragma once

#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>

#include "core/fresh_id.h"
#include "storage/config_store.h"
#include "storage/files.h"
#include "storage/send_log.h"
#include "support/rehearsal_home.h"
#include "support/virtual_surroundings.h"

namespace velmora {

using namespace Qt::StringLiterals;

/// Does the work while no file grows beyond `bytes`: writing more fails as on a full disk.
template <class Work>
void onFullDisk(rlim_t bytes, Work work) {
    std::signal(SIGXFSZ, SIG_IGN);
    rlimit before{};
    ::getrlimit(RLIMIT_FSIZE, &before);
    const rlimit limit{bytes, before.rlim_max};
    ::setrlimit(RLIMIT_FSIZE, &limit);
    work();
    ::setrlimit(RLIMIT_FSIZE, &before);
}

/// Does the work while permissions count: an administrator's do not, so this is somebody else.
template <class Work>
void asOrdinaryUser(Work work) {
    const uid_t user = ::geteuid();
    EXPECT_EQ(::seteuid(user == 0 ? 65534 : user), 0);
    work();
    EXPECT_EQ(::seteuid(user), 0);
}

inline void permit(const QString& path, int permissions) {
    EXPECT_TRUE(QFile::setPermissions(path, QFile::Permissions(permissions)));
}

inline mode_t mode(const QString& path) {
    struct stat status{};
    ::stat(QFile::encodeName(path).constData(), &status);
    return status.st_mode & 0777;
}

inline QByteArray read(const QString& path) {
    return readFile(path).value_or("(unreadable)");
}

inline const QByteArray header = "time,batch,name,phone,service,line,status,detail\n";
inline const QByteArray row =
    "2025-03-14T11:00:00-04:00,Party,\"Ann, B\",+1,iMessage,+19995550000,";
/// The same of another person, up to the status.
inline QByteArray rowOf(const QByteArray& phone) {
    return QByteArray(row).replace(",+1,", ',' + phone + ',');
}

inline const QString party = u"Party"_s;

inline LogEntry entry(const QString& phone, const QString& status = u"sent"_s,
                      const QString& detail = {}) {
    return {freshID(),     {763657200.75},    party,  u"Ann, B"_s, phone,
            u"iMessage"_s, u"+19995550000"_s, status, detail};
}

/// An Application Support directory of the test's own, whose folder any user may write to.
class StorageTest : public ::testing::Test {
  protected:
    StorageTest() {
        permit(directory.path(), 0x7755);
        permit(folder.path(), 0x7777);
    }

    [[nodiscard]] QString logFile() { return log.logFile(party); }
    [[nodiscard]] QByteArray file() { return read(logFile()); }
    void put(const QByteArray& bytes) { writeTestFile(logFile(), bytes); }

    QTemporaryDir directory;
    SupportFolder folder{directory.path()};
    ConfigStore store{folder};
    VirtualClock clock{Moment{800000000}};
    SendLog log{folder, clock};
};

}  // namespace velmora
