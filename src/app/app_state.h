#pragma once

#include <QObject>
#include <QObjectBindableProperty>
#include <QString>
#include <optional>
#include <vector>

#include "core/moment.h"
#include "core/records.h"

namespace velmora {

/// What the interface observes of the application model: fields that announce themselves when
/// another value is assigned, and what else the model tells.
class AppState : public QObject {
    Q_OBJECT

  Q_SIGNALS:
    void configChanged();
    void groupsChanged();
    void recipientsReplaced();                   ///< the whole list is another
    void recipientTextChanged(qsizetype index);  ///< one person's text (and note) is another
    void recipientTextsChanged();                ///< everyone's text may be another
    void selectionChanged();
    void searchTextChanged();
    void selectedOnlyChanged();
    void allContactsCountChanged();
    void batchNameChanged();
    void numbersChanged();
    void contactsAllowedChanged();
    void dbOKChanged();
    void dbErrorChanged();
    void loadingChanged();
    void alertChanged();
    void testPhoneChanged();
    void testResultChanged();
    void testingChanged();
    void skippedSenderSetupChanged();
    void showingFDAHelpChanged();
    void skippedFDAHelpChanged();
    void numbersCheckedAtChanged();
    void bootstrappedChanged();
    void confirmingRunChanged();
    void editingNoteIDChanged();
    void settingsRequested();

  public:
    /// The address-book groups, sorted by name; All Contacts is not among them.
    Q_OBJECT_BINDABLE_PROPERTY(AppState, std::vector<GroupInfo>, groups, &AppState::groupsChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppState, QString, searchText, &AppState::searchTextChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppState, bool, selectedOnly, false,
                                         &AppState::selectedOnlyChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppState, qint64, allContactsCount, 0,
                                         &AppState::allContactsCountChanged)
    /// The run name.
    Q_OBJECT_BINDABLE_PROPERTY(AppState, QString, batchName, &AppState::batchNameChanged)
    /// The user's own sending numbers, the busiest first.
    Q_OBJECT_BINDABLE_PROPERTY(AppState, std::vector<NumberInfo>, numbers,
                               &AppState::numbersChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppState, bool, contactsAllowed, true,
                                         &AppState::contactsAllowedChanged)
    /// Whether the Messages history can be opened and read, and the sentence that says why not.
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppState, bool, dbOK, true, &AppState::dbOKChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppState, QString, dbError, &AppState::dbErrorChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppState, bool, loading, false, &AppState::loadingChanged)
    /// The one sentence of the main window's alert.
    Q_OBJECT_BINDABLE_PROPERTY(AppState, std::optional<QString>, alert, &AppState::alertChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppState, QString, testPhone, &AppState::testPhoneChanged)
    Q_OBJECT_BINDABLE_PROPERTY(AppState, QString, testResult, &AppState::testResultChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppState, bool, testing, false, &AppState::testingChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppState, bool, skippedSenderSetup, false,
                                         &AppState::skippedSenderSetupChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppState, bool, showingFDAHelp, false,
                                         &AppState::showingFDAHelpChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppState, bool, skippedFDAHelp, false,
                                         &AppState::skippedFDAHelpChanged)
    /// When the sending numbers were last read successfully.
    Q_OBJECT_BINDABLE_PROPERTY(AppState, std::optional<Moment>, numbersCheckedAt,
                               &AppState::numbersCheckedAtChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppState, bool, bootstrapped, false,
                                         &AppState::bootstrappedChanged)
    Q_OBJECT_BINDABLE_PROPERTY_WITH_ARGS(AppState, bool, confirmingRun, false,
                                         &AppState::confirmingRunChanged)
    /// The person whose personal note is being edited.
    Q_OBJECT_BINDABLE_PROPERTY(AppState, std::optional<QString>, editingNoteID,
                               &AppState::editingNoteIDChanged)

  protected:
    AppState() = default;
};

}  // namespace velmora
