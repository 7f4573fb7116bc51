#pragma once

#include <QObject>
#include <QString>
#include <QtQmlIntegration>

#include "ui/look/tone.h"

namespace velmora {

/// A few words beside a symbol; either may be empty, and is then not shown.
struct Remark {
    Q_GADGET
    QML_VALUE_TYPE(remark)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QString symbol MEMBER symbol)
    Q_PROPERTY(QString spoken MEMBER spoken)
    Q_PROPERTY(velmora::look::Tone textTone MEMBER textTone)
    Q_PROPERTY(velmora::look::Tone symbolTone MEMBER symbolTone)

  public:
    QString text;
    QString symbol;
    QString spoken = {};  ///< the text, and what the symbol says
    Tone textTone = Tone::primary;
    Tone symbolTone = Tone::primary;

    friend bool operator==(const Remark&, const Remark&) = default;
};

/// What a row of the recipient list shows of one person. What is empty is not shown.
struct RecipientEntry {
    Q_GADGET
    QML_VALUE_TYPE(recipientEntry)
    Q_PROPERTY(QString name MEMBER name)
    Q_PROPERTY(QString company MEMBER company)
    Q_PROPERTY(QString sentText MEMBER sentText)
    Q_PROPERTY(velmora::Remark issue MEMBER issue)
    Q_PROPERTY(QString preview MEMBER preview)
    Q_PROPERTY(QString note MEMBER note)
    Q_PROPERTY(bool showsNote MEMBER showsNote)
    Q_PROPERTY(bool offersNote MEMBER offersNote)
    Q_PROPERTY(QString phone MEMBER phone)
    Q_PROPERTY(QString phoneLabel MEMBER phoneLabel)
    Q_PROPERTY(velmora::Remark thread MEMBER thread)
    Q_PROPERTY(bool checked MEMBER checked)
    Q_PROPERTY(bool checkable MEMBER checkable)
    Q_PROPERTY(QString checkName MEMBER checkName)
    Q_PROPERTY(bool faint MEMBER faint)
    Q_PROPERTY(QString spoken MEMBER spoken)
    Q_PROPERTY(QString heading MEMBER heading)

  public:
    QString name;
    QString company;  ///< beside the name, unless it stands as the name
    QString sentText;
    Remark issue;
    QString preview = {};  ///< the text they will receive
    QString note = {};     ///< their personal note
    bool showsNote = false;
    bool offersNote = false;  ///< whether "Add note" shows
    QString phone;
    QString phoneLabel;  ///< unless it is the usual "mobile"
    Remark thread;       ///< the line of the conversation, and whether it is the one sent from
    bool checked = false;
    bool checkable = false;
    QString checkName;     ///< the check box in words
    bool faint = false;    ///< for a person who could be checked and is not
    QString spoken;        ///< name, company, whether checked, sent or blocked, and the issue
    QString heading = {};  ///< above the first of those who can't be texted

    friend bool operator==(const RecipientEntry&, const RecipientEntry&) = default;
};

}  // namespace velmora
