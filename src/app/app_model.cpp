#include "app/app_model.h"

#include <QLocale>
#include <utility>

using namespace Qt::StringLiterals;

namespace velmora {

AppModel::AppModel(Doors doors, Surroundings surroundings, Places places)
    : doors_(doors),
      surroundings_(surroundings),
      historyPath_(messagesHistoryPath(places.home)),
      supportFolder_(places.applicationSupport),
      configStore_(supportFolder_),
      sendLog_(supportFolder_, surroundings.clock),
      contacts_(doors.contacts),
      sender_(doors.scripts),
      runner_({sender_, doors.desktop, sendLog_, historyPath_, surroundings}),
      config_(configStore_.load()) {}

AppModel::~AppModel() = default;

void AppModel::setConfig(const AppConfig& config) {
    const AppConfig previous = std::exchange(config_, AppConfig(config));
    Q_EMIT configChanged();
    // An observer may have stored yet another record by now: the newest is the one to keep.
    if (config_ == previous)
        return;
    if (auto kept = configStore_.save(config_))
        alert = std::move(kept);
}

void AppModel::setSenderNumber(const QString& number) {
    if (runner_.isActive() || number == config_.senderNumber)
        return;
    editConfig([number](AppConfig& config) { config.senderNumber = number; });
    loadList();
}

void AppModel::acceptTerms() {
    editConfig([](AppConfig& config) { config.termsAccepted = currentTermsVersion; });
    const Moment now = surroundings_.clock.now();
    editConfig([now](AppConfig& config) { config.termsAcceptedAt = now; });
}

bool AppModel::termsAccepted() const {
    return config_.termsAccepted == currentTermsVersion;
}

bool AppModel::isAllContacts() const {
    return config_.selectedGroupID == allContactsID;
}

std::optional<GroupInfo> AppModel::currentGroup() const {
    if (isAllContacts())
        return GroupInfo{allContactsID, u"All Contacts"_s, allContactsCount};
    for (const GroupInfo& group : groups.value())
        if (config_.selectedGroupID == group.id)
            return group;
    return std::nullopt;
}

bool AppModel::needsFDAHelp() const {
    return showingFDAHelp ||
           (termsAccepted() && bootstrapped && contactsAllowed && !dbOK && !skippedFDAHelp);
}

bool AppModel::needsSenderSetup() const {
    return termsAccepted() && bootstrapped && contactsAllowed && dbOK && !needsFDAHelp() &&
           config_.senderNumber.isEmpty() && !skippedSenderSetup;
}

QString AppModel::defaultBatchName() const {
    const std::optional<GroupInfo> group = currentGroup();
    const QDate today = localTime(surroundings_.clock.now()).date();
    return (group ? group->name : u"run"_s) + u' ' + QLocale().toString(today, u"yyyy-MM-dd"_s);
}

}  // namespace velmora
