#include "platform/rehearsal/address_book.h"

#include <QHash>
#include <QSet>
#include <algorithm>
#include <ranges>
#include <utility>

namespace velmora {

namespace {

// A value that is no text denies nothing: it is an error of the file.
bool isDenied(JsonFile& file) {
    const auto access = file.optionalText(file.root(), QStringLiteral("access"));
    return access && *access != QStringLiteral("granted") && !file.error();
}

ContactRecord contactOf(JsonFile& file, const QJsonObject& object) {
    ContactRecord contact{
        .identifier = file.text(object, QStringLiteral("identifier")),
        .givenName = file.text(object, QStringLiteral("givenName")),
        .familyName = file.text(object, QStringLiteral("familyName")),
        .nickname = file.text(object, QStringLiteral("nickname")),
        .organizationName = file.text(object, QStringLiteral("organizationName")),
        .phoneNumbers = {},
        .emailAddresses = file.texts(object, QStringLiteral("emailAddresses")),
    };
    for (const QJsonObject& entry : file.objects(object, QStringLiteral("phoneNumbers")))
        contact.phoneNumbers.push_back({.label = file.optionalText(entry, QStringLiteral("label")),
                                        .value = file.text(entry, QStringLiteral("value"))});
    return contact;
}

}  // namespace

AddressBook::AddressBook(const QString& home)
    : path_(home + QStringLiteral("/Library/Contacts/contacts.json")) {}

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
        return std::unexpected(
            ContactsError{QStringLiteral("Access to the address book was denied.")});
    Book book;
    for (const QJsonObject& object : file->objects(file->root(), QStringLiteral("contacts")))
        book.contacts.push_back(contactOf(*file, object));
    for (const QJsonObject& object : file->objects(file->root(), QStringLiteral("groups")))
        book.groups.push_back(
            {.record = {.identifier = file->text(object, QStringLiteral("identifier")),
                        .name = file->text(object, QStringLiteral("name"))},
             .members = file->texts(object, QStringLiteral("members"))});
    if (file->error())
        return std::unexpected(ContactsError{file->error()->description});
    QSet<QString> identifiers;
    for (const ContactRecord& contact : book.contacts) {
        if (identifiers.contains(contact.identifier))
            return std::unexpected(
                ContactsError{QStringLiteral("Two people in %1 have the same identifier, \"%2\".")
                                  .arg(path_, contact.identifier)});
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
        return std::unexpected(
            ContactsError{QStringLiteral("The group is no longer in the address book.")});
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
        {PhoneLabel::mobile, QStringLiteral("mobile")},
        {PhoneLabel::iPhone, QStringLiteral("iPhone")},
        {PhoneLabel::main, QStringLiteral("main")},
        {QStringLiteral("_$!<Home>!$_"), QStringLiteral("home")},
        {QStringLiteral("_$!<Work>!$_"), QStringLiteral("work")},
        {QStringLiteral("_$!<Other>!$_"), QStringLiteral("other")},
    };
    return words.value(label, label);
}

}  // namespace velmora
