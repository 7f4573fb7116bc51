#pragma once

#include <qcoro/qcorotask.h>

#include <QObject>
#include <QString>
#include <QtQmlIntegration>
#include <optional>

#include "app/app_model.h"
#include "ui/controls/alert_content.h"
#include "ui/controls/empty_state_content.h"
#include "ui/look/tone.h"

namespace velmora {

/// The strip that names what the user still has to do. Without a text there is none.
struct Banner {
    Q_GADGET
    QML_VALUE_TYPE(banner)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(velmora::look::Tone tone MEMBER tone)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString button MEMBER button)

  public:
    QString symbol;
    Tone tone = Tone::primary;
    QString text;
    QString button;

    friend bool operator==(const Banner&, const Banner&) = default;
};

/// What the main window shows around its panes: title, banner, middle column, alert and sheet. All
/// of it is read from the application model at each look.
class MainWindowModel final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("RegisterEnumClassesUnscoped", "false")
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the presentation")
    Q_PROPERTY(QString title READ title NOTIFY changed)
    Q_PROPERTY(QString subtitle READ subtitle NOTIFY changed)
    Q_PROPERTY(bool showsList READ showsList NOTIFY changed)
    Q_PROPERTY(velmora::EmptyStateContent emptyState READ emptyState NOTIFY changed)
    Q_PROPERTY(velmora::Banner banner READ banner NOTIFY changed)
    Q_PROPERTY(bool alertShown READ alertShown NOTIFY changed)
    Q_PROPERTY(velmora::AlertContent alert READ alert NOTIFY changed)
    Q_PROPERTY(Sheet sheet READ sheet NOTIFY changed)
    Q_PROPERTY(bool commandsEnabled READ commandsEnabled NOTIFY changed)

  public:
    /// The sheets that can cover the window; at most one at a time.
    enum class Sheet { none, terms, confirm, fullDiskAccessHelp, senderSetup };
    Q_ENUM(Sheet)

    explicit MainWindowModel(AppModel& model);

    /// The chosen list's name, or the product's when none is chosen.
    [[nodiscard]] QString title() const;
    /// How many people are checked and how many need attention; empty without a list or people.
    [[nodiscard]] QString subtitle() const;

    /// Whether the middle column shows the chosen list; else it shows the empty state below.
    [[nodiscard]] bool showsList() const;
    [[nodiscard]] EmptyStateContent emptyState() const;
    Q_INVOKABLE void openContactsSettings();

    [[nodiscard]] Banner banner() const;
    /// Does what the banner's button says.
    Q_INVOKABLE void followBanner();

    [[nodiscard]] bool alertShown() const;
    /// The last alert's words, which stay while it leaves. The question whether to end a run comes
    /// before any other.
    [[nodiscard]] AlertContent alert() const { return alert_; }
    /// Lets the alert go; the run goes on.
    Q_INVOKABLE void dismissAlert();
    /// Ends the run, whose text in hand stands in the log, and the program.
    Q_INVOKABLE void stopAndQuit();

    /// The first sheet, in the order of the enumeration, whose condition holds.
    [[nodiscard]] Sheet sheet() const;

    /// Whether the commands that act on the window's content are offered: nothing covers it.
    [[nodiscard]] bool commandsEnabled() const;
    /// Whether the main window may close, and the application end with it. During a run it answers
    /// false and the alert asks, except at the end of the computer's session.
    Q_INVOKABLE bool mayClose();

    /// Starts the application model, at the first call only.
    void windowShown();
    /// Looks again whether the history can be read, if it could not be so far.
    void applicationActivated();

  Q_SIGNALS:
    void changed();
    void settingsRequested();
    /// A run waits for the user, or has ended.
    void attentionWanted();

  private:
    enum class Todo { none, fullDiskAccess, sendingNumber };

    [[nodiscard]] Todo todo() const;
    void followAlert();
    void followRun();
    [[nodiscard]] AlertContent question() const;

    AppModel& model_;
    bool asksToQuit_ = false;
    AlertContent alert_;
    std::optional<QCoro::Task<>> startUp_;
};

}  // namespace velmora
