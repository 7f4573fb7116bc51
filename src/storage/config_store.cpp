#include "storage/config_store.h"

#include <QFile>
#include <QFileInfo>
#include <cerrno>
#include <cstdio>

#include "storage/files.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

QString configFile(SupportFolder& folder) {
    return folder.path() + u"/config.json"_s;
}

// A name beside the file that nothing has.
QString freeName(const QString& path) {
    const QString stem = path.chopped(".json"_L1.size());
    QString name = stem + u" (kept).json"_s;
    for (int number = 2; QFileInfo::exists(name) || QFileInfo(name).isSymLink(); ++number)
        name = stem + u" (kept %1).json"_s.arg(number);
    return name;
}

// Works without reading, so also for what cannot be read, and for a folder. True when nothing is
// left at `path`.
bool moveAside(const QString& path, const QString& name) {
    return std::rename(QFile::encodeName(path).constData(), QFile::encodeName(name).constData()) ==
               0 ||
           errno == ENOENT;
}

}  // namespace

AppConfig ConfigStore::load() {
    const QString path = configFile(folder_);
    unused_.clear();
    auto json = readFile(path);
    // A disk may fail once and read the next time; defaults last for the whole session.
    if (!json && json.error().kind != FileError::Kind::missing)
        json = readFile(path);
    if (json) {
        if (const auto config = decodeConfig(*json))
            return *config;
        unused_ = u"understand"_s;
    } else if (json.error().kind != FileError::Kind::missing) {
        unused_ = u"read"_s;
    }
    return {};
}

std::optional<QString> ConfigStore::save(const AppConfig& config) {
    const auto json = encodeConfig(config);
    if (!json)
        return std::nullopt;
    std::optional<QString> sentence;
    if (!unused_.isEmpty()) {
        const QString kept = freeName(configFile(folder_));
        if (!moveAside(configFile(folder_), kept))
            return std::nullopt;
        sentence =
            u"Velmora couldn't %1 its settings file, which is kept as \"%2\", and starts with new "
            "settings."_s.arg(unused_, kept);
        unused_.clear();
    }
    static_cast<void>(replaceFile(configFile(folder_), *json));
    return sentence;
}

}  // namespace velmora
