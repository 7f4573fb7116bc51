#include "ui/settings/settings_model.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "core/phone.h"
#include "ui/controls/whole_numbers.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

QString optionOf(const NumberInfo& info) {
    const QString number = displayPhone(info.number);
    if (info.count < 1)
        return number;
    return u"%1  (%2 messages)"_s.arg(number, QString::number(info.count));
}

bool isListed(const std::vector<NumberInfo>& numbers, const QString& number) {
    return std::ranges::find(numbers, number, &NumberInfo::number) != numbers.end();
}

}  // namespace

SettingsModel::SettingsModel(AppModel& model)
    : model_(model), senderNumber_(model.config().senderNumber) {
    connect(&model_, &AppModel::configChanged, this, &SettingsModel::followConfig);
    connect(&model_, &AppModel::numbersChanged, this, &SettingsModel::senderChanged);
    connect(&model_, &AppModel::testPhoneChanged, this, &SettingsModel::changed);
    connect(&model_, &AppModel::testResultChanged, this, &SettingsModel::changed);
    connect(&model_, &AppModel::testingChanged, this, &SettingsModel::changed);
    connect(&model_.runner(), &Runner::stateChanged, this, &SettingsModel::changed);
}

void SettingsModel::followConfig() {
    Q_EMIT changed();
    if (std::exchange(senderNumber_, model_.config().senderNumber) != model_.config().senderNumber)
        Q_EMIT senderChanged();
}

bool SettingsModel::locked() const {
    return model_.runner().isActive();
}

QStringList SettingsModel::senderOptions() const {
    const std::vector<NumberInfo> numbers = model_.numbers;
    QStringList options{u"Choose a number"_s};
    for (const NumberInfo& each : numbers)
        options.append(optionOf(each));
    const QString chosen = model_.config().senderNumber;
    if (!chosen.isEmpty() && !isListed(numbers, chosen))
        options.append(displayPhone(chosen) + u"  (not found on this Mac)"_s);
    return options;
}

QStringList SettingsModel::senderValues() const {
    const std::vector<NumberInfo> numbers = model_.numbers;
    QStringList values{QString()};
    for (const NumberInfo& each : numbers)
        values.append(each.number);
    const QString chosen = model_.config().senderNumber;
    if (!chosen.isEmpty() && !isListed(numbers, chosen))
        values.append(chosen);
    return values;
}

int SettingsModel::senderIndex() const {
    const QString chosen = model_.config().senderNumber;
    return chosen.isEmpty() ? 0 : static_cast<int>(senderValues().indexOf(chosen));
}

void SettingsModel::chooseSender(int index) {
    const QStringList values = senderValues();
    if (index >= 0 && index < values.size())
        model_.setSenderNumber(values[index]);
}

bool SettingsModel::numbersMissing() const {
    return model_.numbers.value().empty();
}

double SettingsModel::delayMin() const {
    return model_.config().delayMin;
}

void SettingsModel::setDelayMin(double seconds) {
    edit([&](AppConfig& config) { config.delayMin = std::max(0.0, seconds); });
}

double SettingsModel::delayMax() const {
    return model_.config().delayMax;
}

void SettingsModel::setDelayMax(double seconds) {
    edit([&](AppConfig& config) { config.delayMax = std::max(0.0, seconds); });
}

int SettingsModel::startHour() const {
    return model_.timeOfDay(QuietField::start).time().hour();
}

int SettingsModel::startMinute() const {
    return model_.timeOfDay(QuietField::start).time().minute();
}

int SettingsModel::endHour() const {
    return model_.timeOfDay(QuietField::end).time().hour();
}

int SettingsModel::endMinute() const {
    return model_.timeOfDay(QuietField::end).time().minute();
}

void SettingsModel::setStart(int hour, int minute) {
    setTime(QuietField::start, hour, minute);
}

void SettingsModel::setEnd(int hour, int minute) {
    setTime(QuietField::end, hour, minute);
}

int SettingsModel::maxFailures() const {
    const qint64 count = model_.config().maxFailures;
    return static_cast<int>(std::clamp<qint64>(count, std::numeric_limits<int>::min(),
                                               std::numeric_limits<int>::max()));
}

void SettingsModel::setMaxFailures(int count) {
    edit([&](AppConfig& config) {
        config.maxFailures = std::clamp(count, fewestFailures(), mostFailures());
    });
}

QString SettingsModel::failuresText() const {
    return u"Pause after %1 failures in a row"_s.arg(QString::number(model_.config().maxFailures));
}

QString SettingsModel::testPhone() const {
    return model_.testPhone;
}

void SettingsModel::setTestPhone(const QString& typed) {
    model_.testPhone = typed;
}

bool SettingsModel::canSendTest() const {
    return !model_.testing && !model_.testPhone.value().isEmpty() && !locked();
}

void SettingsModel::sendTest() {
    if (canSendTest())
        test_ = model_.sendTest();
}

QString SettingsModel::testResult() const {
    return withWholeNumbers(model_.testResult);
}

void SettingsModel::edit(const std::function<void(AppConfig&)>& change) {
    if (!locked())
        model_.editConfig(change);
}

void SettingsModel::setTime(QuietField field, int hour, int minute) {
    if (!locked())
        model_.setTimeOfDay(hour, minute, field);
}

}  // namespace velmora
