#pragma once

#include <QByteArray>
#include <nlohmann/json_fwd.hpp>
#include <optional>
#include <string>

namespace velmora {

/// The JSON object in `text` with the values of the known keys, or nothing when the text is no
/// JSON, no object, or nests below a known key what no setting holds. What stands under other keys
/// may be anything that JSON allows.
[[nodiscard]] std::optional<nlohmann::json> parseSettings(
    const QByteArray& text, bool (*isKnownKey)(const std::string& key));

}  // namespace velmora
