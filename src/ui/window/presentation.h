#pragma once

#include <QObject>
#include <QtQmlIntegration>

#include "app/app_model.h"
#include "ui/compose/compose_model.h"
#include "ui/first_run/first_run_model.h"
#include "ui/menus/menu_commands.h"
#include "ui/recipients/recipients_model.h"
#include "ui/run/activity_model.h"
#include "ui/run/confirm_model.h"
#include "ui/run/run_model.h"
#include "ui/settings/settings_model.h"
#include "ui/sidebar/sidebar_model.h"
#include "ui/window/main_window_model.h"

namespace velmora {

/// All that the views are given: one model for each of them.
class Presentation final : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Made with the main window")
    Q_PROPERTY(velmora::MainWindowModel* window READ window CONSTANT)
    Q_PROPERTY(velmora::MenuCommands* menus READ menus CONSTANT)
    Q_PROPERTY(velmora::SidebarModel* sidebar READ sidebar CONSTANT)
    Q_PROPERTY(velmora::RecipientsModel* recipients READ recipients CONSTANT)
    Q_PROPERTY(velmora::ComposeModel* compose READ compose CONSTANT)
    Q_PROPERTY(velmora::RunModel* run READ run CONSTANT)
    Q_PROPERTY(velmora::ActivityModel* activity READ activity CONSTANT)
    Q_PROPERTY(velmora::ConfirmModel* confirm READ confirm CONSTANT)
    Q_PROPERTY(velmora::SettingsModel* settings READ settings CONSTANT)
    Q_PROPERTY(velmora::FirstRunModel* firstRun READ firstRun CONSTANT)

  public:
    /// `model` outlives it.
    explicit Presentation(AppModel& model);

    [[nodiscard]] MainWindowModel* window() { return &window_; }
    [[nodiscard]] MenuCommands* menus() { return &menus_; }
    [[nodiscard]] SidebarModel* sidebar() { return &sidebar_; }
    [[nodiscard]] RecipientsModel* recipients() { return &recipients_; }
    [[nodiscard]] ComposeModel* compose() { return &compose_; }
    [[nodiscard]] RunModel* run() { return &run_; }
    [[nodiscard]] ActivityModel* activity() { return &activity_; }
    [[nodiscard]] ConfirmModel* confirm() { return &confirm_; }
    [[nodiscard]] SettingsModel* settings() { return &settings_; }
    [[nodiscard]] FirstRunModel* firstRun() { return &firstRun_; }

  private:
    MainWindowModel window_;
    MenuCommands menus_;
    SidebarModel sidebar_;
    RecipientsModel recipients_;
    ComposeModel compose_;
    RunModel run_;
    ActivityModel activity_;
    ConfirmModel confirm_;
    SettingsModel settings_;
    FirstRunModel firstRun_;
};

}  // namespace velmora
