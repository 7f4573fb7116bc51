#pragma once

#include <qcoro/qcorotask.h>

#include <QSet>
#include <optional>
#include <vector>

#include "app/app_state.h"
#include "app/desktop.h"
#include "app/recipient_search.h"
#include "contacts/contacts_service.h"
#include "core/records.h"
#include "core/surroundings.h"
#include "history/account_preferences.h"
#include "history/messages_db.h"
#include "sending/message_sender.h"
#include "sending/runner.h"
#include "storage/app_config.h"
#include "storage/config_store.h"
#include "storage/send_log.h"

namespace velmora {

/// The doors to the world outside. All outlive the model.
struct Doors {
    ContactSource& contacts;
    ScriptRunner& scripts;
    AccountPreferences& accountPreferences;
    Desktop& desktop;
};

/// Where the user's files lie.
struct Places {
    QString home;                ///< the user's home folder
    QString applicationSupport;  ///< the folder that holds each application's own folder
};

/// One of the two ends of the sending hours.
enum class QuietField { start, end };

/// The one object that the whole interface observes: settings, lists, people, permissions, the run.
/// Lives on the interface thread. No operation returns an error: problems end up in `alert`,
/// `dbOK`, `contactsAllowed` or `testResult`.
class AppModel final : public AppState {
    Q_OBJECT

  public:
    /// Loads the settings; nothing else is read before `bootstrap`.
    AppModel(Doors doors, Surroundings surroundings, Places places);
    ~AppModel() override;

    // Settings.

    [[nodiscard]] const AppConfig& config() const { return config_; }
    /// Stores the record and, when it differs from the one before, saves it.
    void setConfig(const AppConfig& config);
    /// Changes a copy of the settings by `edit` and stores it.
    template <class Edit>
    void editConfig(Edit edit) {
        AppConfig changed = config_;
        edit(changed);
        setConfig(changed);
    }
    /// Chooses the number to send from and, when it is another, checks the chosen list against it.
    /// Does nothing during a run.
    void setSenderNumber(const QString& number);
    /// Stores that the terms are accepted, then since when: two changes of the settings.
    void acceptTerms();
    [[nodiscard]] bool termsAccepted() const;
    /// Today at the field's time: the next time that exists where the clocks jump over it, the
    /// first of two where it comes twice; 10:00 when the field's text cannot be read, now when the
    /// calendar has no such moment (such as 25:99).
    [[nodiscard]] QDateTime timeOfDay(QuietField field) const;
    /// Stores `hour` (0 to 23) and `minute` (0 to 59) as the field's text, such as "07:05".
    void setTimeOfDay(int hour, int minute, QuietField field);
    /// The same with the hour and the minute that `time` has here, 00:00 for an invalid one.
    void setTimeOfDay(const QDateTime& time, QuietField field);

    // Start-up, permissions and the desktop.

    /// The start-up sequence, once; suspends only while access to the address book is asked for.
    QCoro::Task<> bootstrap();
    /// Reads the user's sending numbers and with them whether the history can be read: when it can
    /// not, `dbOK` is false, `dbError` says why and there are no numbers. When it can, the help for
    /// Full Disk Access ends, and a number that is the only one is chosen where none was.
    void refreshNumbers();
    /// Reads the groups and all counts afresh. Groups that cannot be read stay as they were and put
    /// a sentence into `alert`; people who cannot be counted are 0.
    void loadGroups();
    /// Asks whoever shows windows for the settings window.
    void openSettings();
    // What the desktop is asked to open; where it cannot, nothing happens and nobody is told.
    void openContactsSettings();
    void openFullDiskAccessSettings();
    void openMessages();
    void openPage(ProductPage page);
    /// Whether the computer's session ends, which a run does not hold up.
    [[nodiscard]] bool sessionEnds() const { return doors_.desktop.sessionEnds(); }

    /// The wall clock's moment.
    [[nodiscard]] Moment now() const { return surroundings_.clock.now(); }
    /// Seconds since an arbitrary start, never going back.
    [[nodiscard]] double uptime() const { return surroundings_.clock.uptime(); }
    [[nodiscard]] bool isAllContacts() const;
    /// The chosen list, the synthetic All Contacts included.
    [[nodiscard]] std::optional<GroupInfo> currentGroup() const;
    /// Whether the Full Disk Access help is to be shown.
    [[nodiscard]] bool needsFDAHelp() const;
    /// Whether the choice of a sending number is to be shown.
    [[nodiscard]] bool needsSenderSetup() const;
    /// The list's name, a space and today's date.
    [[nodiscard]] QString defaultBatchName() const;

    // The list and its people.

    /// Chooses a list; the empty text chooses none. Does nothing during a run.
    void selectGroup(const QString& listID);
    /// Reads and checks the people of the chosen list, and checks again who was checked in it; does
    /// nothing without a list. A list that cannot be read leaves people and selection as they were
    /// and puts a sentence into `alert`; so does, once for each run name, a log that does not tell
    /// who was texted. A run that is active keeps its name, log and texts.
    void loadList();
    [[nodiscard]] const std::vector<Recipient>& recipients() const { return recipients_; }
    /// Indexes into `recipients` of those that the search and the filter leave, in order.
    [[nodiscard]] std::vector<qsizetype> visibleRecipients() const;
    [[nodiscard]] const QSet<QString>& selection() const { return selection_; }
    /// Stores who is checked and, unless it is being restored, remembers it for the chosen list.
    void setSelection(const QSet<QString>& selection);
    /// Checks or unchecks one person.
    void setSelected(const QString& id, bool selected);
    /// Checks everyone shown who can be sent and was not sent yet. Does nothing during a run.
    void selectShown();
    /// Unchecks everyone shown; everyone at all while neither search nor filter hides anybody. Does
    /// nothing during a run.
    void clearShown();
    /// Stores the note as typed; an empty one is removed.
    void setNote(const QString& id, const QString& note);
    /// How many people have an issue beyond a new thread.
    [[nodiscard]] qsizetype attentionCount() const { return attentionCount_; }

    // The message.

    /// The chosen list's message: the built-in one when it has none of its own, empty without a
    /// list.
    [[nodiscard]] QString currentTemplate() const;
    /// Stores the chosen list's message and with it everyone's text. Does nothing without a list;
    /// the texts of a run that is active stay as they are.
    void setCurrentTemplate(const QString& text);
    /// Adds `snippet` at the end of the message, as `setCurrentTemplate` does.
    void appendToTemplate(const QString& snippet);
    [[nodiscard]] bool isPersonalised() const;
    /// What this person is to receive: the message with their name and note put in. Empty for
    /// someone who cannot be sent, and without a message.
    [[nodiscard]] QString textFor(const Recipient& recipient) const;

    // The run and the test send.

    /// The sentence that says why no run can start, or nothing.
    [[nodiscard]] std::optional<QString> validationError() const;
    /// Sets `confirmingRun`, or `alert` to why no run can start, at the event loop's next turn.
    /// Does nothing during a run and before the terms are accepted.
    void requestRun();
    /// Ends the confirmation and starts the run. A run name edited meanwhile has the list loaded
    /// first; when that unchecks anyone, or finds a log that does not tell who was texted, nothing
    /// is sent and `alert` says so. Called only while no run is active.
    void confirmRun();
    /// Starts a run of everyone checked who can be sent, or sets `alert` to why none can start.
    /// While one is active, that one goes on alone.
    void startRun();
    /// The first checked person that can be sent, in the list's order; nothing without one.
    [[nodiscard]] std::optional<Recipient> exampleRecipient() const;
    /// Sends the fixed test text to `testPhone` over iMessage and says in `testResult` what became
    /// of it, after at most `verifyWait` seconds and one poll (2 seconds) more. Does nothing during
    /// a run; the caller sees to it that no two tests overlap.
    QCoro::Task<> sendTest();

    [[nodiscard]] Runner& runner() { return runner_; }
    [[nodiscard]] const Runner& runner() const { return runner_; }

  private:
    // The list (app_model_list.cpp).
    [[nodiscard]] std::vector<Recipient> checked(const std::vector<ContactRecord>& people);
    void publish(std::vector<Recipient> list);
    void tellOfLog();
    void restorePicks(const QString& listID);
    void restoreSelection(const QSet<QString>& selection);

    // The message (app_model_message.cpp).
    [[nodiscard]] QString textFor(const Recipient& recipient, const QStringList& versions) const;

    // The run (app_model_run.cpp).
    void offerRun();
    [[nodiscard]] bool isQueued(const Recipient& recipient) const;

    Doors doors_;
    Surroundings surroundings_;
    QString historyPath_;
    SupportFolder supportFolder_;
    ConfigStore configStore_;
    SendLog sendLog_;
    ContactsService contacts_;
    MessageSender sender_;
    Runner runner_;
    AppConfig config_;
    std::vector<Recipient> recipients_;
    qsizetype attentionCount_ = 0;
    mutable std::optional<RecipientSearch> search_;  // made when somebody searches
    QSet<QString> selection_;
    QString loadedBatch_;
    QSet<QString> toldOf_;  // the run names whose logs do not tell who was texted
    bool suppressPickSave_ = false;
};

}  // namespace velmora
