#include "platform/rehearsal/messages_application.h"

#include <sys/stat.h>

#include <QFile>
#include <algorithm>
#include <utility>

#include "platform/rehearsal/history_writer.h"
#include "platform/rehearsal/messages_settings.h"
#include "platform/rehearsal/script_parser.h"

using namespace Qt::StringLiterals;

namespace velmora {

namespace {

using FileIdentity = std::pair<dev_t, ino_t>;

// Which file stands under the path: the history may be deleted or replaced while this runs.
std::optional<FileIdentity> fileIdentity(const QString& path) {
    struct stat status{};
    if (::stat(QFile::encodeName(path).constData(), &status) != 0)
        return {};
    return FileIdentity(status.st_dev, status.st_ino);
}

// A text on its way: its row once it has one, the file that holds it, and the flags that it has
// earned.
struct Progress {
    std::optional<qint64> row;
    std::optional<FileIdentity> file;
    bool sent = false;
    bool delivered = false;
};

ScriptResult failed(const QString& message) {
    return {.outcome = ScriptResult::Outcome::failure, .message = message};
}

}  // namespace

class MessagesApplication::History {
  public:
    explicit History(QString path) : path_(std::move(path)) {}

    void record(const HistoryMessage& message, Progress& progress) {
        HistoryWriter* writer = current();
        if (!writer)
            return;
        progress.file = identity_;
        if (const auto row = writer->add(message))
            progress.row = *row;
        else
            warn(row.error());
        if (progress.sent || progress.delivered)
            mark(progress);
    }

    void mark(const Progress& progress) {
        HistoryWriter* writer = progress.row ? current() : nullptr;
        // In another file the row is somebody else's.
        if (!writer || progress.file != identity_)
            return;
        if (const auto set = writer->setFlags(*progress.row, progress.sent, progress.delivered);
            !set)
            warn(set.error());
    }

  private:
    HistoryWriter* current() {
        const auto identity = fileIdentity(path_);
        if (writer_ && identity && identity == identity_)
            return &*writer_;
        writer_.reset();
        auto opened = HistoryWriter::open(path_);
        if (!opened) {
            warn(opened.error());
            return nullptr;
        }
        identity_ = fileIdentity(path_);
        return &writer_.emplace(std::move(*opened));
    }

    static void warn(const FileError& error) {
        qWarning("Rehearsal: %s", qUtf8Printable(error.description));
    }

    QString path_;
    std::optional<HistoryWriter> writer_;
    std::optional<FileIdentity> identity_;
};

MessagesApplication::MessagesApplication(Clock& clock, const QString& home)
    : clock_(clock),
      settingsPath_(messagesSettingsPath(home)),
      history_(std::make_shared<History>(home + u"/Library/Messages/chat.db"_s)) {}

MessagesApplication::~MessagesApplication() = default;

ScriptResult MessagesApplication::run(const QString& source) {
    const auto text = parseMessageScript(source);
    if (!text)
        return failed(text.error().description);
    const auto behaviour = readSendBehaviour(settingsPath_, text->phone, text->service);
    if (!behaviour)
        return failed(u"Messages got an error: "_s + behaviour.error().description);
    if (behaviour->scriptError)
        return failed(*behaviour->scriptError);
    if (!behaviour->recordAfter)
        return {};

    const HistoryMessage message{
        .handle = text->phone,
        .service = serviceName(text->service),
        .line = behaviour->line,
        .date = static_cast<qint64>(clock_.now().seconds * 1e9),
        .fromMe = true,
        .error = behaviour->error,
        .text = text->text,
    };
    const auto progress = std::make_shared<Progress>();
    const auto later = [this, progress](double seconds, auto change) {
        clock_.after(seconds, [weak = std::weak_ptr(history_), progress, change] {
            if (const auto history = weak.lock())
                change(*history, *progress);
        });
    };
    const double recordAfter = *behaviour->recordAfter;
    later(recordAfter,
          [message](History& history, Progress& state) { history.record(message, state); });
    if (behaviour->error != 0)
        return {};
    const auto flag = [&](std::optional<double> seconds, bool Progress::* earned) {
        if (seconds)
            later(std::max(*seconds, recordAfter), [earned](History& history, Progress& state) {
                state.*earned = true;
                history.mark(state);
            });
    };
    flag(behaviour->sentAfter, &Progress::sent);
    flag(behaviour->deliveredAfter, &Progress::delivered);
    return {};
}

QVariant RehearsalAccount::aliases() const {
    return readAliases(messagesSettingsPath(home_));
}

}  // namespace velmora
