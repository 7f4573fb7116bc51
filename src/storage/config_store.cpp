#include "storage/config_store.h"

#include "storage/files.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

QString configFile(SupportFolder& folder) {
    return folder.path() + u"/config.json"_s;
}

}  // namespace

AppConfig ConfigStore::load() {
    const auto json = readFile(configFile(folder_));
    return json ? decodeConfig(*json).value_or(AppConfig()) : AppConfig();
}

void ConfigStore::save(const AppConfig& config) {
    if (const auto json = encodeConfig(config))
        static_cast<void>(replaceFile(configFile(folder_), *json));
}

}  // namespace velmora
