#include "ui/compose/compose_model.h"

#include <algorithm>
#include <array>

#include "compose/template_renderer.h"
#include "core/phone.h"
#include "ui/run/run_display.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

struct Snippet {
    QString title;  // empty for the line between the others
    QString text;
};

const std::array<Snippet, 4>& snippets() {
    static const std::array<Snippet, 4> all{
        {{u"First name"_s, TemplateRenderer::firstNamePlaceholder},
         {u"Personal note"_s, TemplateRenderer::customNotePlaceholder},
         {},
         {u"Another version"_s, u"\n---\n"_s}}};
    return all;
}

}  // namespace

ComposeModel::ComposeModel(AppModel& model)
    : model_(model),
      resuming_(model),
      senderNumber_(model.config().senderNumber),
      subject_(subject()) {
    connect(&model_, &AppModel::configChanged, this, &ComposeModel::followConfig);
    connect(&model_, &AppModel::contactsAllowedChanged, this, &ComposeModel::messageChanged);
    connect(&model_, &AppModel::numbersChanged, this, &ComposeModel::senderChanged);
    connect(&model_, &AppModel::selectionChanged, this, &ComposeModel::sendChanged);
    const Runner* runner = &model_.runner();
    connect(runner, &Runner::stateChanged, this, &ComposeModel::stageChanged);
    for (const auto signal :
         {&Runner::stateChanged, &Runner::messageChanged, &Runner::doneChanged,
          &Runner::totalChanged, &Runner::currentChanged, &Runner::nextInChanged})
        connect(runner, signal, this, &ComposeModel::statusChanged);
    for (const auto signal : {&Runner::logReplaced, &Runner::logAppended})
        connect(runner, signal, this, &ComposeModel::activityChanged);
}

void ComposeModel::followConfig() {
    Q_EMIT messageChanged();
    if (std::exchange(subject_, subject()) != subject())
        Q_EMIT subjectChanged();
    if (std::exchange(senderNumber_, model_.config().senderNumber) != model_.config().senderNumber)
        Q_EMIT senderChanged();
}

bool ComposeModel::showsComposer() const {
    return model_.contactsAllowed && model_.config().selectedGroupID.has_value();
}

QString ComposeModel::message() const {
    return model_.currentTemplate();
}

QString ComposeModel::subject() const {
    return model_.config().selectedGroupID.value_or(QString());
}

QString ComposeModel::hint() const {
    return messageHint(message());
}

QVariantList ComposeModel::insertEntries() {
    QVariantList entries;
    for (const Snippet& each : snippets())
        entries.append(QVariantMap{{u"text"_s, each.title}, {u"separator"_s, each.text.isEmpty()}});
    return entries;
}

QString ComposeModel::senderTitle() const {
    const QString& number = model_.config().senderNumber;
    return number.isEmpty() ? u"Choose number"_s : displayPhone(number);
}

QStringList ComposeModel::senderEntries() const {
    QStringList entries;
    for (const NumberInfo& each : model_.numbers.value())
        entries.append(displayPhone(each.number));
    return entries;
}

int ComposeModel::senderIndex() const {
    const std::vector<NumberInfo> numbers = model_.numbers;
    const auto chosen =
        std::ranges::find(numbers, model_.config().senderNumber, &NumberInfo::number);
    return chosen == numbers.end() ? -1 : static_cast<int>(chosen - numbers.begin());
}

bool ComposeModel::locked() const {
    return model_.runner().isActive();
}

ComposeModel::Stage ComposeModel::stage() const {
    switch (model_.runner().state.value()) {
        case Runner::State::running:
            return Stage::running;
        case Runner::State::paused:
            return Stage::paused;
        case Runner::State::stopping:
            return Stage::stopping;
        case Runner::State::idle:
        case Runner::State::done:
            break;
    }
    return Stage::ready;
}

QString ComposeModel::sendTitle() const {
    return velmora::sendTitle(model_.selection().size());
}

bool ComposeModel::canSend() const {
    return !model_.selection().isEmpty();
}

bool ComposeModel::showsStatus() const {
    const Runner& runner = model_.runner();
    const bool hasNews = runner.state == Runner::State::done || !runner.message.value().isEmpty() ||
                         runner.total >= 1;
    return stage() == Stage::ready ? hasNews : stage() != Stage::stopping;
}

QString ComposeModel::status() const {
    return statusLine(model_.runner());
}

double ComposeModel::progress() const {
    return static_cast<double>(model_.runner().done);
}

double ComposeModel::progressTotal() const {
    return static_cast<double>(std::max<qint64>(model_.runner().total, 1));
}

bool ComposeModel::showsActivity() const {
    return !model_.runner().log().empty();
}

void ComposeModel::setMessage(const QString& text) {
    if (!locked() && text != message())
        model_.setCurrentTemplate(text);
}

void ComposeModel::insert(int place) {
    if (locked() || place < 0 || place >= std::ssize(snippets()))
        return;
    const QString& text = snippets().at(static_cast<size_t>(place)).text;
    if (!text.isEmpty())
        model_.appendToTemplate(text);
}

void ComposeModel::chooseSender(int place) {
    const std::vector<NumberInfo> numbers = model_.numbers;
    if (place >= 0 && place < std::ssize(numbers))
        model_.setSenderNumber(numbers[static_cast<size_t>(place)].number);
}

void ComposeModel::requestRun() {
    model_.requestRun();
}

void ComposeModel::stop() {
    if (!resuming_.isUnderWay())
        model_.runner().stop();
}

void ComposeModel::resume() {
    resuming_.begin();
    model_.runner().resume();
}

}  // namespace velmora
