#include "ui/run/run_model.h"

#include <algorithm>

#include "ui/run/run_display.h"

namespace velmora {

RunModel::RunModel(AppModel& model) : model_(model), resuming_(model) {
    connect(&model_, &AppModel::selectionChanged, this, &RunModel::sendChanged);
    const Runner* runner = &model_.runner();
    connect(runner, &Runner::stateChanged, this, &RunModel::stageChanged);
    for (const auto signal :
         {&Runner::stateChanged, &Runner::messageChanged, &Runner::doneChanged,
          &Runner::totalChanged, &Runner::currentChanged, &Runner::nextInChanged})
        connect(runner, signal, this, &RunModel::statusChanged);
    for (const auto signal : {&Runner::logReplaced, &Runner::logAppended})
        connect(runner, signal, this, &RunModel::activityChanged);
}

RunModel::Stage RunModel::stage() const {
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

QString RunModel::sendTitle() const {
    return velmora::sendTitle(model_.selection().size());
}

bool RunModel::canSend() const {
    return !model_.selection().isEmpty();
}

QString RunModel::status() const {
    return statusLine(model_.runner());
}

double RunModel::progress() const {
    return static_cast<double>(model_.runner().done);
}

double RunModel::progressTotal() const {
    return static_cast<double>(std::max<qint64>(model_.runner().total, 1));
}

bool RunModel::showsActivity() const {
    return !model_.runner().log().empty();
}

void RunModel::requestRun() {
    model_.requestRun();
}

void RunModel::stop() {
    if (!resuming_.isUnderWay())
        model_.runner().stop();
}

void RunModel::resume() {
    resuming_.begin();
    model_.runner().resume();
}

}  // namespace velmora
