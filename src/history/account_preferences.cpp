#include "history/account_preferences.h"

#include <algorithm>
#include <optional>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

// `value` as a list of texts; nothing when it is no list or holds anything but text.
std::optional<QStringList> textList(const QVariant& value) {
    if (value.typeId() == QMetaType::QStringList)
        return value.toStringList();
    if (value.typeId() != QMetaType::QVariantList)
        return std::nullopt;
    const QVariantList entries = value.toList();
    const auto isText = [](const QVariant& entry) { return entry.typeId() == QMetaType::QString; };
    if (!std::ranges::all_of(entries, isText))
        return std::nullopt;
    return value.toStringList();
}

QStringList phonesAmong(const QStringList& aliases) {
    QStringList phones;
    std::ranges::copy_if(aliases, std::back_inserter(phones),
                         [](const QString& alias) { return alias.startsWith(u'+'); });
    return phones;
}

}  // namespace

QStringList phoneAliases(const AccountPreferences& preferences) {
    const QVariant stored = preferences.aliases();
    if (stored.typeId() != QMetaType::QVariantMap)
        return {};
    const QVariantMap dictionary = stored.toMap();
    const auto all = textList(dictionary.value(u"allAliases"_s));
    if (!all)
        return {};
    const auto selected = textList(dictionary.value(u"selectedAliases"_s));
    const QStringList selectedPhones = phonesAmong(selected.value_or(QStringList()));
    return selectedPhones.isEmpty() ? phonesAmong(*all) : selectedPhones;
}

}  // namespace velmora
