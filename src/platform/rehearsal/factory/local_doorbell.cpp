#include "platform/rehearsal/factory/local_doorbell.h"

#include <poll.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

#include <QByteArray>
#include <QFile>
#include <algorithm>
#include <cstddef>
#include <optional>
#include <utility>

namespace velmora {

namespace {

constexpr int answerMilliseconds = 2000;

struct Address {
    sockaddr_un name{};
    socklen_t size = 0;

    [[nodiscard]] const sockaddr* data() const { return reinterpret_cast<const sockaddr*>(&name); }
};

// The name of the folder itself, whatever path leads there. It begins with a zero: it lies in the
// system's own list of names, not in a folder.
std::optional<Address> addressOf(const QString& folder) {
    struct stat status{};
    if (::stat(QFile::encodeName(folder).constData(), &status) != 0)
        return std::nullopt;
    const QByteArray text = "velmora " + QByteArray::number(quint64{status.st_dev}) + ' ' +
                            QByteArray::number(quint64{status.st_ino});
    Address address;
    address.name.sun_family = AF_UNIX;
    std::ranges::copy(text, address.name.sun_path + 1);
    address.size = static_cast<socklen_t>(offsetof(sockaddr_un, sun_path) + 1) +
                   static_cast<socklen_t>(text.size());
    return address;
}

int makeSocket() {
    return ::socket(AF_UNIX, SOCK_STREAM | SOCK_NONBLOCK | SOCK_CLOEXEC, 0);
}

// Names are free to all users of the computer: another's program may have taken this one, or ring.
bool isOurs(int connection) {
    ucred peer{};
    socklen_t size = sizeof peer;
    return ::getsockopt(connection, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 &&
           peer.uid == ::geteuid();
}

bool hearsAnswer(int connection) {
    pollfd waiting{connection, POLLIN, 0};
    char said = 0;
    return ::poll(&waiting, 1, answerMilliseconds) == 1 && ::read(connection, &said, 1) == 1;
}

}  // namespace

LocalDoorbell::~LocalDoorbell() {
    ringing_.reset();
    if (listening_ >= 0)
        ::close(listening_);
}

bool LocalDoorbell::ring(const QString& folder) {
    const auto address = addressOf(folder);
    const int connection = makeSocket();
    if (connection < 0)
        return false;
    const bool answered = address && ::connect(connection, address->data(), address->size) == 0 &&
                          isOurs(connection) && hearsAnswer(connection);
    ::close(connection);
    return answered;
}

void LocalDoorbell::answer(const QString& folder, std::function<void()> open) {
    const auto address = addressOf(folder);
    listening_ = makeSocket();
    if (!address || listening_ < 0 || ::bind(listening_, address->data(), address->size) != 0 ||
        ::listen(listening_, 1) != 0)
        return;
    ringing_ = std::make_unique<QSocketNotifier>(listening_, QSocketNotifier::Read);
    QObject::connect(ringing_.get(), &QSocketNotifier::activated, ringing_.get(),
                     [listening = listening_, open = std::move(open)] {
                         const int connection = ::accept(listening, nullptr, nullptr);
                         if (connection < 0)
                             return;
                         if (isOurs(connection)) {
                             open();
                             ::send(connection, "", 1, MSG_NOSIGNAL | MSG_DONTWAIT);
                         }
                         ::close(connection);
                     });
}

}  // namespace velmora
