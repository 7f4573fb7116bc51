#pragma once

namespace velmora {

/// The tables and indexes of the Messages history, as far as anyone reads them.
// Short, for every reading of the history parses it anew. The keys of the two joins are the indexes
// that the readers join by. destination_caller_id has no index: the count of the sending numbers
// reads every message with one on that column, too, and takes as long.
inline constexpr auto historySchema = R"sql(
CREATE TABLE IF NOT EXISTS message (
    ROWID INTEGER PRIMARY KEY, guid TEXT, text TEXT, handle_id INTEGER, service TEXT,
    destination_caller_id TEXT, date INTEGER, is_from_me INTEGER, error INTEGER, is_sent INTEGER,
    is_delivered INTEGER);
CREATE TABLE IF NOT EXISTS handle (
    ROWID INTEGER PRIMARY KEY, id TEXT, service TEXT, UNIQUE (id, service));
CREATE TABLE IF NOT EXISTS chat (ROWID INTEGER PRIMARY KEY, guid TEXT, style INTEGER);
CREATE TABLE IF NOT EXISTS chat_handle_join (
    chat_id INTEGER, handle_id INTEGER, PRIMARY KEY (handle_id, chat_id)) WITHOUT ROWID;
CREATE TABLE IF NOT EXISTS chat_message_join (
    chat_id INTEGER, message_id INTEGER, PRIMARY KEY (chat_id, message_id)) WITHOUT ROWID;
CREATE INDEX IF NOT EXISTS message_idx_handle ON message (handle_id, date);
)sql";

}  // namespace velmora
