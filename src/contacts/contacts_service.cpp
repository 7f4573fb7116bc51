#include "contacts/contacts_service.h"

#include "core/collation.h"
#include "core/phone.h"

namespace velmora {

namespace {

constexpr int lowestRank = 3;

int labelRank(const std::optional<QString>& label) {
    if (label == PhoneLabel::mobile)
        return 0;
    if (label == PhoneLabel::iPhone)
        return 1;
    if (label == PhoneLabel::main)
        return 2;
    return lowestRank;
}

}  // namespace

QCoro::Task<bool> ContactsService::requestAccess() {
    if (store_.access() == ContactAccess::authorized)
        co_return true;
    const bool granted = co_await store_.requestAccess();
    co_return granted;
}

std::expected<std::vector<ContactRecord>, ContactsError> ContactsService::allContacts() {
    std::vector<ContactRecord> people;
    auto read = store_.enumerateContacts([&people](ContactRecord person) {
        if (!person.phoneNumbers.empty())
            people.push_back(std::move(person));
    });
    if (!read)
        return std::unexpected(std::move(read.error()));
    return people;
}

std::expected<std::vector<ContactRecord>, ContactsError> ContactsService::contactsInList(
    const QString& listID) {
    return listID == allContactsID ? allContacts() : store_.membersOfGroup(listID);
}

std::expected<std::vector<GroupInfo>, ContactsError> ContactsService::readGroups() {
    auto records = store_.allGroups();
    if (!records)
        return std::unexpected(std::move(records.error()));
    std::vector<GroupInfo> groups;
    groups.reserve(records->size());
    for (const GroupRecord& record : *records) {
        const auto members = contactsInList(record.identifier);
        const qint64 count = members ? std::ssize(*members) : 0;
        groups.push_back({record.identifier, record.name, count});
    }
    sortByName(groups, [](const GroupInfo& group) { return group.name; });
    return groups;
}

std::optional<BestPhone> ContactsService::bestPhone(const ContactRecord& person) const {
    for (int rank = 0; rank <= lowestRank; ++rank) {
        for (const PhoneEntry& entry : person.phoneNumbers) {
            if (labelRank(entry.label) != rank)
                continue;
            if (auto phone = normalizePhone(entry.value)) {
                QString label = entry.label ? store_.localizedLabel(*entry.label) : QString();
                return BestPhone{std::move(*phone), std::move(label)};
            }
        }
    }
    return std::nullopt;
}

}  // namespace velmora
