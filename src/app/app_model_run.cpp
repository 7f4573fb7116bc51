#include <QPointer>
#include <algorithm>

#include "app/app_model.h"
#include "compose/template_renderer.h"
#include "core/phone.h"
#include "history/sent_record_wait.h"

namespace velmora {

namespace {

QString testOutcome(const std::optional<SentRecord>& record, const QString& senderNumber) {
    if (!record)
        return QStringLiteral("Sent, but Messages hasn't recorded it yet. Check the thread.");
    if (record->error != 0)
        return QStringLiteral("Messages reported error %1. That number may not have iMessage.")
            .arg(record->error);
    const bool matches = senderNumber.isEmpty() || record->line == senderNumber;
    return QStringLiteral("Sent by %1 from %2. %3")
        .arg(
            record->service,
            record->line.isEmpty() ? QStringLiteral("an unknown line") : displayPhone(record->line),
            matches ? QStringLiteral("That matches your sending number.")
                    : QStringLiteral("That is NOT your sending number."));
}

}  // namespace

std::optional<QString> AppModel::validationError() const {
    if (!config_.selectedGroupID)
        return QStringLiteral("Choose a list first.");
    if (config_.senderNumber.isEmpty())
        return QStringLiteral("Choose the number you send from.");
    if (!dbOK)
        return QStringLiteral(
            "Turn on Full Disk Access for Velmora first, so it can check which line each text "
            "uses.");
    if (TemplateRenderer::splitVersions(currentTemplate()).isEmpty())
        return QStringLiteral("The message is empty.");
    if (selection_.isEmpty())
        return QStringLiteral("Select at least one person.");
    if (selection_.size() > config_.maxPerRun)
        return QStringLiteral(
                   "You've selected %1 people, and one run sends at most %2. Uncheck "
                   "some, or send the rest in a second run with the same run name.")
            .arg(selection_.size())
            .arg(config_.maxPerRun);
    return std::nullopt;
}

void AppModel::requestRun() {
    if (runner_.isActive() || !termsAccepted())
        return;
    // At the loop's next turn, so that an edit under way in a field has arrived.
    surroundings_.clock.after(0, [self = QPointer<AppModel>(this)] {
        if (self && !self->runner_.isActive())
            self->offerRun();
    });
}

void AppModel::offerRun() {
    const std::optional<QString> refusal = validationError();
    if (refusal)
        alert = refusal;
    else
        confirmingRun = true;
}

void AppModel::confirmRun() {
    confirmingRun = false;
    // The people and not their number: the other name may check someone for each that it unchecks.
    const QSet<QString> before = selection_;
    if (batchName.value() != loadedBatch_)
        loadList();
    if (selection_ == before)
        return startRun();
    alert = QStringLiteral(
                "Some people were already sent in the run \"%1\", so they were "
                "unchecked. Check the list, then send again.")
                .arg(batchName.value());
}

void AppModel::startRun() {
    const std::optional<QString> refusal = validationError();
    if (refusal) {
        alert = refusal;
        return;
    }
    std::vector<Runner::Item> items;
    for (const Recipient& each : recipients_)
        if (isQueued(each))
            items.push_back({each.name, each.phone, each.text});
    runner_.start(batchName, items, config_);
}

std::optional<Recipient> AppModel::exampleRecipient() const {
    const auto example =
        std::ranges::find_if(recipients_, [this](const Recipient& each) { return isQueued(each); });
    return example == recipients_.end() ? std::nullopt : std::optional(*example);
}

bool AppModel::isQueued(const Recipient& recipient) const {
    return recipient.usable && selection_.contains(recipient.id);
}

QCoro::Task<> AppModel::sendTest() {
    if (runner_.isActive())
        co_return;
    const QPointer<AppModel> self(this);
    const std::optional<QString> phone = normalizePhone(testPhone);
    if (!phone) {
        testResult = QStringLiteral("Enter a valid phone number.");
        co_return;
    }
    testing = true;
    testResult = QStringLiteral("Sending and checking which line it used...");
    const qint64 since = historyTimestamp(surroundings_.clock.now());
    const auto sent = sender_.send(*phone, Service::iMessage, QStringLiteral("Test from Velmora."));
    if (!sent) {
        testResult = sent.error().description;
    } else if (!dbOK) {
        testResult = QStringLiteral("Sent. Turn on Full Disk Access to see which line it used.");
    } else {
        const std::optional<SentRecord> record = co_await waitForSentRecord(
            surroundings_, historyPath_, *phone, since, config_.verifyWait);
        if (!self)
            co_return;
        testResult = testOutcome(record, config_.senderNumber);
    }
    testing = false;
}

}  // namespace velmora
