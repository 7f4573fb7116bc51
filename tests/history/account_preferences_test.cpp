#include "history/account_preferences.h"

#include <gtest/gtest.h>

namespace velmora {
namespace {

using namespace Qt::StringLiterals;

struct StoredAliases final : AccountPreferences {
    explicit StoredAliases(QVariant value) : value(std::move(value)) {}
    [[nodiscard]] QVariant aliases() const override { return value; }

    QVariant value;
};

QStringList aliasesOf(const QVariant& selected, const QVariant& all) {
    return phoneAliases(
        StoredAliases(QVariantMap{{u"selectedAliases"_s, selected}, {u"allAliases"_s, all}}));
}

TEST(PhoneAliases, AreTheSelectedNumbersElseAllAndNoneWithoutAList) {
    const QStringList all{u"ann@example.com"_s, u"+1"_s, u"+2"_s};
    EXPECT_EQ(aliasesOf(QStringList{u"+2"_s, u"a@b.c"_s, u"+1"_s}, all),
              (QStringList{u"+2"_s, u"+1"_s}));
    EXPECT_EQ(aliasesOf(QStringList{u"ann@example.com"_s}, all), all.sliced(1));
    EXPECT_EQ(aliasesOf(u"+2"_s, all), all.sliced(1)) << "selection of another type";
    EXPECT_EQ(aliasesOf(QVariantList{u"+2"_s, 7}, all), all.sliced(1)) << "not only texts";
    EXPECT_EQ(aliasesOf(QVariantList{u"+2"_s}, QVariantList{u"+1"_s}), QStringList{u"+2"_s});
    EXPECT_EQ(aliasesOf({}, QStringList{u"ann@example.com"_s}), QStringList());
    const QStringList selected{u"+2"_s};
    EXPECT_EQ(aliasesOf(selected, {}), QStringList());
    EXPECT_EQ(aliasesOf(selected, QVariantList{u"+1"_s, 7}), QStringList());
    for (const QVariant& value : {QVariant(), QVariant(u"+1"_s), QVariant(QVariantMap())})
        EXPECT_EQ(phoneAliases(StoredAliases(value)), QStringList());
}

}  // namespace
}  // namespace velmora
