#include "ui/run/confirm_model.h"

#include "core/phone.h"
#include "ui/run/run_display.h"

using namespace Qt::StringLiterals;

namespace velmora {

ConfirmModel::ConfirmModel(AppModel& model) : model_(model), opening_(model) {
    connect(&model_, &AppModel::configChanged, this, &ConfirmModel::follow);
    connect(&model_, &AppModel::selectionChanged, this, &ConfirmModel::follow);
    connect(&model_, &AppModel::recipientsReplaced, this, &ConfirmModel::follow);
    connect(&model_, &AppModel::recipientTextChanged, this, &ConfirmModel::follow);
    connect(&model_, &AppModel::recipientTextsChanged, this, &ConfirmModel::follow);
    connect(&model_, &AppModel::batchNameChanged, this, &ConfirmModel::runNameChanged);
    connect(&model_, &AppModel::confirmingRunChanged, this, [this] {
        if (model_.confirmingRun)
            opening_.begin();
    });
}

void ConfirmModel::follow() {
    if (model_.confirmingRun)
        Q_EMIT changed();
}

QString ConfirmModel::title() const {
    return confirmTitle(model_.selection().size());
}

QString ConfirmModel::exampleCaption() const {
    const auto example = model_.exampleRecipient();
    return example ? u"Example for "_s + example->name : QString();
}

QString ConfirmModel::exampleText() const {
    const auto example = model_.exampleRecipient();
    return example ? model_.textFor(*example) : QString();
}

QString ConfirmModel::from() const {
    return displayPhone(model_.config().senderNumber);
}

QString ConfirmModel::pace() const {
    return paceLine(model_.config());
}

QString ConfirmModel::runName() const {
    return model_.batchName;
}

void ConfirmModel::setRunName(const QString& name) {
    model_.batchName = name;
}

void ConfirmModel::cancel() {
    model_.confirmingRun = false;
}

void ConfirmModel::startSending() {
    if (model_.confirmingRun && !opening_.isUnderWay())
        model_.confirmRun();
}

}  // namespace velmora
