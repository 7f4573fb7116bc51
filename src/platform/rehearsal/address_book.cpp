#include "platform/rehearsal/address_book.h"

#include <QFileInfo>
#include <QHash>
#include <QSet>
#include <algorithm>
#include <ranges>
#include <system_error>
#include <utility>

#include "core/freed_memory.h"

using namespace Qt::StringLiterals;

namespace velmora {

AddressBook::AddressBook(const QString& home)
    : path_(home + u"/Library/Contacts/contacts.json"_s) {}

ContactAccess AddressBook::access() const {
    const auto file = read();
    return file && (*file)->isDenied ? ContactAccess::denied : ContactAccess::authorized;
}

QCoro::Task<bool> AddressBook::requestAccess() {
    co_return access() == ContactAccess::authorized;
}

std::expected<AddressBook::SharedFile, ContactsError> AddressBook::read() const {
    const auto path = QFileInfo(path_).filesystemFilePath();
    std::error_code obstacle;
    const FileState state{std::filesystem::last_write_time(path, obstacle),
                          std::filesystem::file_size(path, obstacle)};
    if (file_ && !obstacle && state == state_)
        return file_;
    auto file = readContactsFile(path_);
    if (!file)
        return std::unexpected(ContactsError{file.error().description});
    SharedFile read = std::make_shared<const ContactsFile>(std::move(*file));
    if (!obstacle) {
        file_ = read;
        state_ = state;
        QMetaObject::invokeMethod(
            &turn_,
            [this] {
                const FreedMemoryReturns afterReading;
                file_.reset();
            },
            Qt::QueuedConnection);
    }
    return read;
}

std::expected<AddressBook::SharedFile, ContactsError> AddressBook::granted() const {
    auto file = read();
    if (file && (*file)->isDenied)
        return std::unexpected(ContactsError{u"Access to the address book was denied."_s});
    return file;
}

std::expected<void, ContactsError> AddressBook::enumerateContacts(
    const std::function<void(ContactRecord)>& visit) {
    const auto book = granted();
    if (!book)
        return std::unexpected(book.error());
    for (const ContactRecord& contact : (*book)->contacts)
        visit(contact);
    return {};
}

std::expected<std::vector<ContactRecord>, ContactsError> AddressBook::membersOfGroup(
    const QString& identifier) {
    const auto read = granted();
    if (!read)
        return std::unexpected(read.error());
    const ContactsFile& book = **read;
    const auto group =
        std::ranges::find(book.groups, identifier,
                          [](const ContactsFile::Group& each) { return each.record.identifier; });
    if (group == book.groups.end())
        return std::unexpected(ContactsError{u"The group is no longer in the address book."_s});
    const QSet<QString> members(group->members.begin(), group->members.end());
    std::vector<ContactRecord> found;
    for (const ContactRecord& contact : book.contacts)
        if (members.contains(contact.identifier))
            found.push_back(contact);
    return found;
}

std::expected<std::vector<GroupRecord>, ContactsError> AddressBook::allGroups() {
    const auto book = granted();
    if (!book)
        return std::unexpected(book.error());
    std::vector<GroupRecord> groups;
    for (const ContactsFile::Group& group : (*book)->groups)
        groups.push_back(group.record);
    return groups;
}

QString AddressBook::localizedLabel(const QString& label) const {
    static const QHash<QString, QString> words{
        {PhoneLabel::mobile, u"mobile"_s}, {PhoneLabel::iPhone, u"iPhone"_s},
        {PhoneLabel::main, u"main"_s},     {u"_$!<Home>!$_"_s, u"home"_s},
        {u"_$!<Work>!$_"_s, u"work"_s},    {u"_$!<Other>!$_"_s, u"other"_s},
    };
    return words.value(label, label);
}

}  // namespace velmora
