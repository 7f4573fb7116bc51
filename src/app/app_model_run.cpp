#include <QPointer>
#include <algorithm>

#include "app/app_model.h"
#include "compose/template_renderer.h"
#include "core/phone.h"
#include "history/sent_record_wait.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

QString testOutcome(const std::optional<SentRecord>& record, const QString& senderNumber) {
    if (!record)
        return u"Sent, but Messages hasn't recorded it yet. Check the thread."_s;
    if (record->error != 0)
        return u"Messages reported error %1. That number may not have iMessage."_s.arg(
            record->error);
    const bool matches = senderNumber.isEmpty() || record->line == senderNumber;
    return u"Sent by %1 from %2. %3"_s.arg(
        record->service, record->line.isEmpty() ? u"an unknown line"_s : displayPhone(record->line),
        matches ? u"That matches your sending number."_s : u"That is NOT your sending number."_s);
}

}  // namespace

std::optional<QString> AppModel::validationError() const {
    if (!config_.selectedGroupID)
        return u"Choose a list first."_s;
    if (config_.senderNumber.isEmpty())
        return u"Choose the number you send from."_s;
    if (!dbOK)
        return u"Turn on Full Disk Access for Velmora first, so it can check which line each text "
               "uses."_s;
    if (TemplateRenderer::splitVersions(currentTemplate()).isEmpty())
        return u"The message is empty."_s;
    if (selection_.isEmpty())
        return u"Select at least one person."_s;
    if (selection_.size() > config_.maxPerRun)
        return u"You've selected %1 people, and one run sends at most %2. Uncheck "
               "some, or send the rest in a second run with the same run name."_s
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
    const qsizetype told = toldOf_.size();
    if (batchName.value() != loadedBatch_)
        loadList();
    // Another program may have changed the log since then, and where the list cannot be read
    // nobody has looked at it.
    static_cast<void>(sendLog_.alreadySent(batchName));
    tellOfLog();
    if (toldOf_.size() != told)
        return;
    if (selection_ == before)
        return startRun();
    alert =
        u"Some people were already sent in the run \"%1\", so they were "
        "unchecked. Check the list, then send again."_s.arg(batchName.value());
}

void AppModel::startRun() {
    const std::optional<QString> refusal = validationError();
    if (refusal) {
        alert = refusal;
        return;
    }
    const QStringList versions = TemplateRenderer::splitVersions(currentTemplate());
    std::vector<Runner::Item> items;
    for (const Recipient& each : recipients_)
        if (isQueued(each))
            items.push_back({each.name, each.phone, textFor(each, versions)});
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
        testResult = u"Enter a valid phone number."_s;
        co_return;
    }
    testing = true;
    testResult = u"Sending and checking which line it used..."_s;
    const qint64 since = historyTimestamp(surroundings_.clock.now());
    const auto sent = sender_.send(*phone, Service::iMessage, u"Test from Velmora."_s);
    if (!sent) {
        testResult = sent.error().description;
    } else if (!dbOK) {
        testResult = u"Sent. Turn on Full Disk Access to see which line it used."_s;
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
