#include "ui/first_run/first_run_model.h"

#include <QCoreApplication>

#include "core/phone.h"
#include "ui/first_run/clock_time.h"
#include "ui/first_run/full_disk_access_timeline.h"

using namespace Qt::StringLiterals;

namespace velmora {

FirstRunModel::FirstRunModel(AppModel& model) : model_(model) {
    // At the loop's next turn: a look that finds one number chooses it, and the sheet leaves.
    connect(&model_, &AppModel::numbersChanged, this, &FirstRunModel::follow, Qt::QueuedConnection);
    connect(&model_, &AppModel::numbersCheckedAtChanged, this, &FirstRunModel::follow,
            Qt::QueuedConnection);
}

void FirstRunModel::follow() {
    if (model_.needsSenderSetup())
        Q_EMIT changed();
}

void FirstRunModel::openTerms() {
    model_.openPage(ProductPage::terms);
}

void FirstRunModel::acceptTerms() {
    if (!model_.termsAccepted())
        model_.acceptTerms();
}

void FirstRunModel::quit() {
    QCoreApplication::quit();
}

bool FirstRunModel::numbersFound() const {
    return !model_.numbers.value().empty();
}

QStringList FirstRunModel::numbers() const {
    QStringList shown;
    for (const NumberInfo& each : model_.numbers.value())
        shown.append(displayPhone(each.number));
    return shown;
}

QString FirstRunModel::senderText() const {
    if (numbersFound())
        return u"Velmora sends through Messages, from your own number. Choose it once. You can "
               "change it later in Settings."_s;
    return u"Velmora couldn't find a number on this Mac. Open Messages, choose Settings, then "
           "iMessage, and tick your phone number under \"You can be reached for messages at\". "
           "Then check again."_s;
}

QString FirstRunModel::checkedText() const {
    const std::optional<Moment> checkedAt = model_.numbersCheckedAt;
    if (numbersFound() || !checkedAt)
        return {};
    return u"Checked at %1. Still nothing found."_s.arg(clockTimeText(*checkedAt));
}

void FirstRunModel::chooseNumber(int index) {
    const std::vector<NumberInfo> numbers = model_.numbers;
    if (index >= 0 && static_cast<size_t>(index) < numbers.size())
        model_.setSenderNumber(numbers[static_cast<size_t>(index)].number);
}

void FirstRunModel::chooseLater() {
    model_.skippedSenderSetup = true;
}

void FirstRunModel::openMessages() {
    model_.openMessages();
}

void FirstRunModel::checkAgain() {
    model_.refreshNumbers();
}

double FirstRunModel::animationTime() const {
    return FullDiskAccessTimeline::phase(model_.now());
}

void FirstRunModel::openSystemSettings() {
    model_.openFullDiskAccessSettings();
}

void FirstRunModel::notNow() {
    model_.skippedFDAHelp = true;
    model_.showingFDAHelp = false;
}

}  // namespace velmora
