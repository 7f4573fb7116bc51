#pragma once

#include <QByteArray>
#include <optional>

#include "storage/app_config.h"
#include "storage/support_folder.h"

namespace velmora {

/// Keeps the settings in the file "config.json".
class ConfigStore {
  public:
    /// `folder` outlives the store.
    explicit ConfigStore(SupportFolder& folder) : folder_(folder) {}

    /// The stored settings. A missing key or null takes its default; a file that is missing, cannot
    /// be read, is no JSON object, or holds a value of a wrong type gives all defaults. Writes
    /// nothing.
    [[nodiscard]] AppConfig load();

    /// Replaces the file by `config`. A failure is dropped: the next change tries again. A file
    /// that `load` found and could not use is kept beside the new one first, under a name that is
    /// free; then the answer is the sentence that names it. While that fails, nothing is replaced.
    std::optional<QString> save(const AppConfig& config);

  private:
    SupportFolder& folder_;
    QString unused_;  // what was wrong with the file that `load` could not use
};

/// The settings in `json`, or nothing when the text is no JSON object or a present key has a wrong
/// type. An integer may be written as 60.0; unknown keys are ignored.
[[nodiscard]] std::optional<AppConfig> decodeConfig(const QByteArray& json);

/// Indented JSON with the keys in code-point order at every level. Nothing when a number is not
/// finite.
[[nodiscard]] std::optional<QByteArray> encodeConfig(const AppConfig& config);

}  // namespace velmora
