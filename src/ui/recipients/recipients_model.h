#pragma once

#include <QAbstractListModel>
#include <QHash>
#include <QSet>
#include <QtQmlIntegration>
#include <vector>

#include "app/app_model.h"
#include "ui/controls/empty_state_content.h"
#include "ui/recipients/recipient_entry.h"

namespace velmora {

/// The rows of the recipient list, those who can be texted first, and what stands around them:
/// search, filter and the empty states. It keeps which rows the view knows, so that each change
/// touches only the rows that it changes.
class RecipientsModel final : public QAbstractListModel {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("Belongs to the presentation")
    Q_PROPERTY(bool enabled READ enabled NOTIFY enabledChanged)
    Q_PROPERTY(bool selectedOnly READ selectedOnly NOTIFY filterChanged)
    Q_PROPERTY(QString searchText READ searchText NOTIFY filterChanged)
    Q_PROPERTY(QString selectTitle READ selectTitle NOTIFY filterChanged)
    Q_PROPERTY(QString clearTitle READ clearTitle NOTIFY filterChanged)
    Q_PROPERTY(bool showsNobody READ showsNobody NOTIFY contentChanged)
    Q_PROPERTY(velmora::EmptyStateContent emptyState READ emptyState NOTIFY contentChanged)
    Q_PROPERTY(int revision READ revision NOTIFY contentChanged)
    Q_PROPERTY(int topRow READ topRow WRITE setTopRow NOTIFY topRowChanged)

  public:
    enum Role {
        entryRole = Qt::UserRole  ///< `entry`: a `RecipientEntry`, all that the row shows
    };

    explicit RecipientsModel(AppModel& model);

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QHash<int, QByteArray> roleNames() const override;

    /// False during a run, which keeps its people.
    [[nodiscard]] bool enabled() const;
    [[nodiscard]] bool selectedOnly() const;
    [[nodiscard]] QString searchText() const;
    /// The two buttons' titles, which tell whether they mean everyone or who is shown.
    [[nodiscard]] QString selectTitle() const;
    [[nodiscard]] QString clearTitle() const;

    /// Whether the empty state below is shown: the list has been read, and nobody is left to show.
    [[nodiscard]] bool showsNobody() const;
    [[nodiscard]] EmptyStateContent emptyState() const;

    /// Another number each time when other people may be shown.
    [[nodiscard]] int revision() const { return revision_; }

    /// The view's uppermost row when it last moved, told by the view: when nearly everything
    /// changes, the rows around it stay. -1 at the beginning of the list, and when nobody is left.
    [[nodiscard]] int topRow() const { return topRow_; }
    void setTopRow(int row);

    /// These four do nothing during a run.
    Q_INVOKABLE void search(const QString& text);
    Q_INVOKABLE void showSelectedOnly(bool only);
    Q_INVOKABLE void selectShown();
    Q_INVOKABLE void clearShown();

    /// Checks or unchecks the person at `row`, where that can be done.
    Q_INVOKABLE void setChecked(int row, bool checked);
    Q_INVOKABLE void toggle(int row);
    /// Keeps the note's field of `row` open, whatever is typed.
    Q_INVOKABLE void editNote(int row);
    Q_INVOKABLE void setNote(int row, const QString& note);

  Q_SIGNALS:
    void enabledChanged();
    void filterChanged();
    void contentChanged();
    void topRowChanged();
    /// The keyboard is wanted in the search.
    void searchRequested();

  private:
    [[nodiscard]] const Recipient* recipientAt(int row) const;
    [[nodiscard]] RecipientEntry entryAt(int row) const;
    [[nodiscard]] int firstBlocked() const;
    [[nodiscard]] QString heading(int row) const;
    [[nodiscard]] bool isChecked(const Recipient& recipient) const;
    [[nodiscard]] bool isCheckable(const Recipient& recipient) const;
    [[nodiscard]] bool isFiltered() const;
    [[nodiscard]] std::vector<qsizetype> visibleRows() const;
    [[nodiscard]] int rowOf(const QString& id) const;

    void followRecipients();
    void followRows();
    void followFilter();
    void followSelection();
    void followConfig();
    void followRun();
    void followEditing();
    void announce(int first, int last);
    void announceRow(int row) { announce(row, row); }
    void announceAll() { announce(0, rowCount() - 1); }

    AppModel& model_;
    std::vector<QString> keys_;    // of the model's recipients
    std::vector<qsizetype> rows_;  // that the view knows, as indexes into the recipients
    int revision_ = 0;
    int topRow_ = -1;

    // What the rows were last told.
    QSet<QString> selection_;
    QString senderNumber_;
    std::optional<QString> editingNoteID_;
    bool enabled_ = true;
};

}  // namespace velmora
