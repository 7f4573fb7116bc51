#pragma once

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <QFile>
#include <QTemporaryDir>
#include <memory>

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
    /// Runs `sql` as some other program would, whose connection this returns.
    std::unique_ptr<sqlite3, decltype(&sqlite3_close)> change(const char* sql) {
        sqlite3* db = nullptr;
        EXPECT_EQ(sqlite3_open(path().toUtf8().constData(), &db), SQLITE_OK);
        EXPECT_EQ(sqlite3_exec(db, sql, nullptr, nullptr, nullptr), SQLITE_OK)
            << sqlite3_errmsg(db);
        return {db, &sqlite3_close};
    }
    [[nodiscard]] MessagesDB open() const { return MessagesDB::open(path()).value(); }

  private:
    QTemporaryDir folder_;
};

}  // namespace velmora
