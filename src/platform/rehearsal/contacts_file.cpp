#include "platform/rehearsal/contacts_file.h"

#include <QFileInfo>
#include <QSet>
#include <filesystem>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <system_error>
#include <utility>

#include "core/shared_texts.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

using nlohmann::json;

// Takes each person and each group as soon as the parser has it, so that only one of them is ever
// held in the parser's form.
class ContactsReader {
  public:
    explicit ContactsReader(QString fileName) : fileName_(std::move(fileName)) {}

    [[nodiscard]] std::expected<ContactsFile, FileError> read(const QByteArray& bytes);

  private:
    bool keep(int depth, json::parse_event_t event, const json& value);
    void addContact(const json& object);
    void addGroup(const json& object);
    void finish(const json& root);

    QString text(const json& object, const char* key);
    std::optional<QString> optionalText(const json& object, const char* key);
    QStringList texts(const json& object, const char* key);
    const json& list(const json& object, const char* key);
    void refuse(const QString& problem);
    void refuse(const char* key, const QString& wanted);

    QString fileName_;
    QString section_;  // the file's key that is being read
    ContactsFile file_;
    QSet<QString> identifiers_;
    SharedTexts texts_;
    std::optional<FileError> error_;
};

std::expected<ContactsFile, FileError> ContactsReader::read(const QByteArray& bytes) {
    try {
        finish(json::parse(bytes.begin(), bytes.end(),
                           [this](int depth, json::parse_event_t event, const json& value) {
                               return keep(depth, event, value);
                           }));
    } catch (const json::parse_error& problem) {
        return std::unexpected(FileError{u"The file %1 is no JSON from byte %2 on."_s.arg(
            fileName_, QString::number(problem.byte))});
    } catch (const json::out_of_range&) {
        return std::unexpected(
            FileError{u"A number in the file %1 is beyond all numbers."_s.arg(fileName_)});
    }
    if (error_ && !file_.isDenied)
        return std::unexpected(*error_);
    return std::move(file_);
}

bool ContactsReader::keep(int depth, json::parse_event_t event, const json& value) {
    if (depth == 1 && event == json::parse_event_t::key)
        section_ = QString::fromStdString(value.get<std::string>());
    if (depth != 2 || event != json::parse_event_t::object_end)
        return true;
    if (section_ == u"contacts")
        addContact(value);
    else if (section_ == u"groups")
        addGroup(value);
    return false;
}

void ContactsReader::addContact(const json& object) {
    ContactRecord contact{
        .identifier = text(object, "identifier"),
        .givenName = text(object, "givenName"),
        .familyName = text(object, "familyName"),
        .nickname = text(object, "nickname"),
        .organizationName = texts_.shared(text(object, "organizationName")),
        .phoneNumbers = {},
        .emailAddresses = texts(object, "emailAddresses"),
    };
    for (const json& entry : list(object, "phoneNumbers")) {
        if (!entry.is_object())
            return refuse("phoneNumbers", u"a list of objects"_s);
        const auto label = optionalText(entry, "label");
        contact.phoneNumbers.append({.label = label ? std::optional(texts_.shared(*label)) : label,
                                     .value = text(entry, "value")});
    }
    if (identifiers_.contains(contact.identifier))
        refuse(u"Two people in %1 have the same identifier, \"%2\"."_s.arg(fileName_,
                                                                           contact.identifier));
    identifiers_.insert(contact.identifier);
    file_.contacts.push_back(std::move(contact));
}

void ContactsReader::addGroup(const json& object) {
    file_.groups.push_back(
        {.record = {.identifier = text(object, "identifier"), .name = text(object, "name")},
         .members = texts(object, "members")});
}

// What is left when every person and every group is taken.
void ContactsReader::finish(const json& root) {
    if (!root.is_object())
        return refuse(u"The file %1 is no JSON object."_s.arg(fileName_));
    for (const char* key : {"contacts", "groups"})
        if (!list(root, key).empty())
            refuse(key, u"a list of objects"_s);
    // A value that is no text denies nothing: it is an error of the file.
    const auto access = optionalText(root, "access");
    if (access && *access != u"granted")
        file_ = {.isDenied = true, .contacts = {}, .groups = {}};
}

std::optional<QString> ContactsReader::optionalText(const json& object, const char* key) {
    const auto value = object.find(key);
    if (value == object.end() || value->is_null())
        return {};
    const auto* text = value->get_ptr<const std::string*>();
    if (text == nullptr) {
        refuse(key, u"a text"_s);
        return {};
    }
    return QString::fromStdString(*text);
}

QString ContactsReader::text(const json& object, const char* key) {
    return optionalText(object, key).value_or(QString());
}

QStringList ContactsReader::texts(const json& object, const char* key) {
    QStringList found;
    for (const json& each : list(object, key)) {
        const auto* text = each.get_ptr<const std::string*>();
        if (text == nullptr)
            refuse(key, u"a list of texts"_s);
        else
            found.append(QString::fromStdString(*text));
    }
    return found;
}

const json& ContactsReader::list(const json& object, const char* key) {
    static const json none = json::array();
    const auto value = object.find(key);
    if (value == object.end())
        return none;
    if (!value->is_array())
        refuse(key, u"a list"_s);
    return value->is_array() ? *value : none;
}

void ContactsReader::refuse(const QString& problem) {
    if (!error_)
        error_ = FileError{problem};
}

void ContactsReader::refuse(const char* key, const QString& wanted) {
    refuse(u"In the file %1, \"%2\" is not %3."_s.arg(fileName_, QLatin1StringView(key), wanted));
}

}  // namespace

std::expected<ContactsFile, FileError> readContactsFile(const QString& path) {
    const QFileInfo info(path);
    // A file that cannot be reached is a problem, and no missing one.
    std::error_code obstacle;
    if (!std::filesystem::exists(info.filesystemFilePath(), obstacle) && !obstacle)
        return ContactsFile{};
    const auto bytes = readFile(path);
    if (!bytes)
        return std::unexpected(bytes.error());
    return ContactsReader(info.fileName()).read(*bytes);
}

}  // namespace velmora
