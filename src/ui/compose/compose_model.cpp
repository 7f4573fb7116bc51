#include "ui/compose/compose_model.h"

#include <algorithm>
#include <array>
#include <utility>

#include "compose/template_renderer.h"
#include "core/phone.h"

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
    : model_(model), senderNumber_(model.config().senderNumber), subject_(subject()) {
    connect(&model_, &AppModel::configChanged, this, &ComposeModel::followConfig);
    connect(&model_, &AppModel::contactsAllowedChanged, this, &ComposeModel::messageChanged);
    connect(&model_, &AppModel::numbersChanged, this, &ComposeModel::senderChanged);
    connect(&model_.runner(), &Runner::stateChanged, this, &ComposeModel::lockedChanged);
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
    return message().contains("---"_L1)
               ? u"Each person always gets the same version."_s
               : u"Insert adds a first name, a note, or another version."_s;
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

QVariantList ComposeModel::senderEntries() const {
    QVariantList entries;
    for (const NumberInfo& each : model_.numbers.value())
        entries.append(displayPhone(each.number));
    if (entries.isEmpty())
        entries.append(
            QVariantMap{{u"text"_s, u"No number found on this Mac"_s}, {u"enabled"_s, false}});
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

}  // namespace velmora
