#include "storage/support_folder.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <utility>

#include "storage/files.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

// A folder of an older version may be open to others; what it holds is not for them.
void makePrivate(const QString& folder) {
    static_cast<void>(createPrivateFolder(folder));
    QFile::setPermissions(folder, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
}

}  // namespace

SupportFolder::SupportFolder(QString applicationSupport)
    : applicationSupport_(std::move(applicationSupport)) {}

const QString& SupportFolder::path() {
    if (!path_.isEmpty())
        return path_;
    path_ = applicationSupport_ + u"/Velmora"_s;
    const QString older = applicationSupport_ + u"/Kestrune"_s;
    if (QFileInfo(older).isDir() && !QFileInfo::exists(path_))
        QDir().rename(older, path_);
    makePrivate(path_);
    return path_;
}

const QString& SupportFolder::logs() {
    if (!logs_.isEmpty())
        return logs_;
    logs_ = path() + u"/logs"_s;
    makePrivate(logs_);
    return logs_;
}

}  // namespace velmora
