#include "platform/rehearsal/address_book.h"

#include <QHash>
#include <QSet>
#include <algorithm>
#include <ranges>
#include <utility>

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

// A value that is no text denies nothing: it is an error of the file.
bool isDenied(JsonFile& file) {
    const auto access = file.optionalText(file.root(), u"access"_s);
    return access && *access != u"granted"_s && !file.error();
}

ContactRecord contactOf(JsonFile& file, const QJsonObject& object) {
    ContactRecord contact{
        .identifier = file.text(object, u"identifier"_s),
        .givenName = file.text(object, u"givenName"_s),
        .familyName = file.text(object, u"familyName"_s),
        .nickname = file.text(object, u"nickname"_s),
        .organizationName = file.text(object, u"organizationName"_s),
        .phoneNumbers = {},
        .emailAddresses = file.texts(object, u"emailAddresses"_s),
    };
    for (const QJsonObject& entry : file.objects(object, u"phoneNumbers"_s))
        contact.phoneNumbers.push_back(
            {.label = file.optionalText(entry, u"label"_s), .value = file.text(entry, u"value"_s)});
    return contact;
}

}  // namespace

AddressBook::AddressBook(const QString& home)
    : path_(home + u"/Library/Contacts/contacts.json"_s) {}

ContactAccess AddressBook::access() const {
    auto file = JsonFile::read(path_);
    return file && isDenied(*file) ? ContactAccess::denied : ContactAccess::authorized;
}

QCoro::Task<bool> AddressBook::requestAccess() {
    co_return access() == ContactAccess::authorized;
}

std::expected<AddressBook::Book, ContactsError> AddressBook::parse() const {
    auto file = JsonFile::read(path_);
    if (!file)
        return std::unexpected(ContactsError{file.error().description});
    if (isDenied(*file))
        return std::unexpected(ContactsError{u"Access to the address book was denied."_s});
    Book book;
    for (const QJsonObject& object : file->objects(file->root(), u"contacts"_s))
        book.contacts.push_back(contactOf(*file, object));
    for (const QJsonObject& object : file->objects(file->root(), u"groups"_s))
        book.groups.push_back({.record = {.identifier = file->text(object, u"identifier"_s),
                                          .name = file->text(object, u"name"_s)},
                               .members = file->texts(object, u"members"_s)});
    if (file->error())
        return std::unexpected(ContactsError{file->error()->description});
    QSet<QString> identifiers;
    for (const ContactRecord& contact : book.contacts) {
        if (identifiers.contains(contact.identifier))
            return std::unexpected(
                ContactsError{u"Two people in %1 have the same identifier, \"%2\"."_s.arg(
                    path_, contact.identifier)});
        identifiers.insert(contact.identifier);
    }
    return book;
}

std::expected<std::shared_ptr<const AddressBook::Book>, ContactsError> AddressBook::read() {
    const QByteArray bytes = readFile(path_).value_or(QByteArray());
    if (book_ && bytes == bytes_)
        return book_;
    auto book = parse();
    if (!book)
        return std::unexpected(book.error());
    auto parsed = std::make_shared<const Book>(std::move(*book));
    // A file that is missing or cannot be read has no bytes to know it by.
    if (!bytes.isEmpty())
        keep(parsed, bytes);
    return parsed;
}

void AddressBook::keep(std::shared_ptr<const Book> book, QByteArray bytes) {
    book_ = std::move(book);
    bytes_ = std::move(bytes);
    QMetaObject::invokeMethod(&turn_, [this] { forget(); }, Qt::QueuedConnection);
}

void AddressBook::forget() {
    book_.reset();
    bytes_.clear();
}

std::expected<void, ContactsError> AddressBook::enumerateContacts(
    const std::function<void(ContactRecord)>& visit) {
    const auto book = read();
    if (!book)
        return std::unexpected(book.error());
    for (const ContactRecord& contact : (*book)->contacts)
        visit(contact);
    return {};
}

std::expected<std::vector<ContactRecord>, ContactsError> AddressBook::membersOfGroup(
    const QString& identifier) {
    const auto read = this->read();
    if (!read)
        return std::unexpected(read.error());
    const Book& book = **read;
    const auto group = std::ranges::find(book.groups, identifier,
                                         [](const Group& each) { return each.record.identifier; });
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
    const auto book = read();
    if (!book)
        return std::unexpected(book.error());
    std::vector<GroupRecord> groups;
    for (const Group& group : (*book)->groups)
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
