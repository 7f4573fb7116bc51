#include "core/support_folder.h"

#include <QDir>
#include <QFileInfo>
#include <utility>

#include "core/files.h"

using namespace Qt::StringLiterals;

namespace velmora {

SupportFolder::SupportFolder(QString applicationSupport)
    : applicationSupport_(std::move(applicationSupport)) {}

const QString& SupportFolder::path() {
    if (!path_.isEmpty())
        return path_;
    path_ = applicationSupport_ + u"/Velmora"_s;
    const QString older = applicationSupport_ + u"/Kestrune"_s;
    if (QFileInfo(older).isDir() && !QFileInfo::exists(path_))
        QDir().rename(older, path_);
    static_cast<void>(createPrivateFolder(path_));
    return path_;
}

const QString& SupportFolder::logs() {
    if (!logs_.isEmpty())
        return logs_;
    logs_ = path() + u"/logs"_s;
    static_cast<void>(createPrivateFolder(logs_));
    return logs_;
}

}  // namespace velmora
