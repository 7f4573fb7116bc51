#include <QPointer>
#include <QTimeZone>
#include <algorithm>

#include "app/app_model.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

QString AppConfig::* settingOf(QuietField field) {
    return field == QuietField::start ? &AppConfig::quietStart : &AppConfig::quietEnd;
}

// The moment at which a clock on the wall shows `time` on `date`: the first of two, and the end of
// the gap when the clock jumps over it.
QDateTime wallTime(QDate date, QTime time) {
    const QTimeZone zone = QTimeZone::systemTimeZone();
    const QDateTime asUtc(date, time, QTimeZone::utc());
    const int before = zone.offsetFromUtc(asUtc.addDays(-1));
    const int after = zone.offsetFromUtc(asUtc.addDays(1));
    for (const int offset : {std::max(before, after), std::min(before, after)}) {
        const QDateTime candidate = asUtc.addSecs(-offset);
        if (zone.offsetFromUtc(candidate) == offset)
            return candidate.toLocalTime();
    }
    return zone.nextTransition(asUtc.addSecs(-std::max(before, after))).atUtc.toLocalTime();
}

std::expected<std::vector<NumberInfo>, DBError> senderNumbers(const QString& path, Moment now) {
    auto history = MessagesDB::open(path);
    if (!history)
        return std::unexpected(history.error());
    return history->senderNumbers(now);
}

}  // namespace

QCoro::Task<> AppModel::bootstrap() {
    const QPointer<AppModel> self(this);
    refreshNumbers();
    const bool allowed = co_await contacts_.requestAccess();
    if (!self)
        co_return;
    contactsAllowed = allowed;
    if (allowed) {
        loadGroups();
        if (!currentGroup())
            editConfig([](AppConfig& config) { config.selectedGroupID = allContactsID; });
        batchName = defaultBatchName();
        loadList();
    }
    bootstrapped = true;
}

void AppModel::refreshNumbers() {
    const Moment now = surroundings_.clock.now();
    auto found = senderNumbers(historyPath_, now);
    if (!found) {
        numbers = std::vector<NumberInfo>{};
        dbError = found.error().description();
        dbOK = false;
        return;
    }
    for (const QString& alias : phoneAliases(doors_.accountPreferences))
        if (std::ranges::find(*found, alias, &NumberInfo::number) == found->end())
            found->push_back({alias, 0});
    numbers = *found;
    numbersCheckedAt = now;
    if (config_.senderNumber.isEmpty() && found->size() == 1)
        editConfig([&](AppConfig& config) { config.senderNumber = found->front().number; });
    // Last, so that nobody is asked for a number that has just been chosen.
    dbError = QString();
    showingFDAHelp = false;
    dbOK = true;
}

void AppModel::loadGroups() {
    const auto everyone = contacts_.allContacts();
    allContactsCount = everyone ? std::ssize(*everyone) : 0;
    const auto read = contacts_.readGroups();
    if (read)
        groups = *read;
    else
        alert = u"Couldn't read your Contacts groups: "_s + read.error().description;
}

QDateTime AppModel::timeOfDay(QuietField field) const {
    constexpr qint64 tenOClock = 600;
    const qint64 minutes = minutesOfDay(config_.*settingOf(field)).value_or(tenOClock);
    const QDateTime now = localTime(surroundings_.clock.now());
    if (minutes < 0 || minutes >= qint64{24} * 60)
        return now;
    const QTime time(static_cast<int>(minutes / 60), static_cast<int>(minutes % 60));
    const QDateTime moment = wallTime(now.date(), time);
    return moment.isValid() ? moment : now;
}

void AppModel::setTimeOfDay(int hour, int minute, QuietField field) {
    const QString text = u"%1:%2"_s.arg(hour, 2, 10, '0'_L1).arg(minute, 2, 10, '0'_L1);
    editConfig([&](AppConfig& config) { config.*settingOf(field) = text; });
}

void AppModel::setTimeOfDay(const QDateTime& time, QuietField field) {
    const QTime clock = time.isValid() ? time.toLocalTime().time() : QTime(0, 0);
    setTimeOfDay(clock.hour(), clock.minute(), field);
}

void AppModel::openSettings() {
    Q_EMIT settingsRequested();
}

void AppModel::openContactsSettings() {
    doors_.desktop.openPrivacyPane(PrivacyPane::contacts);
}

void AppModel::openFullDiskAccessSettings() {
    doors_.desktop.openPrivacyPane(PrivacyPane::fullDiskAccess);
}

void AppModel::openMessages() {
    doors_.desktop.openMessages();
}

void AppModel::openPage(ProductPage page) {
    doors_.desktop.openPage(page);
}

}  // namespace velmora
