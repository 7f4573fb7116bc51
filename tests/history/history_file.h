#pragma once

#include <gtest/gtest.h>

#include <QFile>
#include <QTemporaryDir>

#include "history/messages_db.h"
#include "support/rehearsal_home.h"

namespace velmora {

inline const QString annsPhone = QStringLiteral("+15551234567");

/// A history file of its own for each test. Whoever writes to it closes it again, so that its bytes
/// are all in the one file.
class HistoryFile : public ::testing::Test {
  protected:
    [[nodiscard]] QString path() const { return folder_.filePath(QStringLiteral("chat.db")); }

    qint64 record(const HistoryMessage& message, ChatStyle style = ChatStyle::oneToOne) {
        return HistoryWriter::open(path()).value().add(message, style).value();
    }
    auto change(const char* sql) { return changeHistory(path(), sql); }
    [[nodiscard]] MessagesDB open() const { return MessagesDB::open(path()).value(); }

  private:
    QTemporaryDir folder_;
};

}  // namespace velmora
