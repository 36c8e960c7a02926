#include "platform/HandOver.h"

#include "platform/FileLock.h"

#include <QCryptographicHash>
#include <QSocketNotifier>
#include <algorithm>
#include <cstring>
#include <map>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr std::size_t kMostMessage = 4 * 1024 * 1024;  // bytes of one start's paths
constexpr char kTaken = 'y';

int NewSocket(bool blocking)
{
    return socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | (blocking ? 0 : SOCK_NONBLOCK), 0);
}

// False if the path is too long for a socket's address.
bool AddressOf(const std::string& path, sockaddr_un* address)
{
    *address = {};
    address->sun_family = AF_UNIX;
    if (path.size() >= sizeof address->sun_path)
        return false;
    std::memcpy(address->sun_path, path.c_str(), path.size() + 1);
    return true;
}

// A short name for a place, whose path is too long for one.
std::string NameOf(const std::string& folder, const std::string& place)
{
    const QByteArray hash =
        QCryptographicHash::hash(QByteArray::fromStdString(place), QCryptographicHash::Sha1);
    return folder + '/' + hash.toHex().left(16).toStdString();
}

bool IsOurUser(int socket)
{
    ucred peer{};
    socklen_t size = sizeof peer;
    return getsockopt(socket, SOL_SOCKET, SO_PEERCRED, &peer, &size) == 0 && peer.uid == getuid();
}

void SetPatience(int socket, int milliseconds)
{
    const timeval time{milliseconds / 1000, (milliseconds % 1000) * 1000};
    setsockopt(socket, SOL_SOCKET, SO_RCVTIMEO, &time, sizeof time);
    setsockopt(socket, SOL_SOCKET, SO_SNDTIMEO, &time, sizeof time);
}

bool SendAll(int socket, const std::string& bytes)
{
    for (std::size_t sent = 0; sent < bytes.size();) {
        const ssize_t n = send(socket, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
        if (n <= 0)
            return false;
        sent += static_cast<std::size_t>(n);
    }
    return true;
}

enum class Handed { Taken, Refused, Unanswered };

// Paths, each with a zero byte behind it; their end is the end of the stream.
Handed HandTo(int socket, const std::vector<std::string>& paths, int patience_ms)
{
    std::string message;
    for (const std::string& path : paths)
        message += path + '\0';
    char answer = 0;
    SetPatience(socket, patience_ms);
    if (!SendAll(socket, message) || shutdown(socket, SHUT_WR) != 0)
        return errno == EAGAIN ? Handed::Unanswered : Handed::Refused;
    const ssize_t n = recv(socket, &answer, 1, 0);
    if (n == 1 && answer == kTaken)
        return Handed::Taken;
    return n < 0 && errno == EAGAIN ? Handed::Unanswered : Handed::Refused;
}

std::vector<std::string> PathsOf(const std::string& message)
{
    std::vector<std::string> paths;
    for (std::size_t start = 0; start < message.size();) {
        const std::size_t end = std::min(message.find('\0', start), message.size());
        paths.push_back(message.substr(start, end - start));
        start = end + 1;
    }
    return paths;
}

bool IsWaiting(int guest)
{
    pollfd other{guest, POLLOUT, 0};
    return poll(&other, 1, 0) >= 0 && (other.revents & (POLLHUP | POLLERR)) == 0;
}

class Receiver final : public HandOver {
public:
    Receiver(int socket, std::string path) : fSocket(socket), fPath(std::move(path)) {}
    ~Receiver() override
    {
        fNotifier.reset();
        for (const auto& [guest, talk] : fTalks)
            close(guest);
        if (fSocket >= 0) {
            unlink(fPath.c_str());
            close(fSocket);
        }
    }
    void setReceived(Received received) override
    {
        fReceived = std::move(received);
        if (fSocket < 0)
            return;
        fNotifier = std::make_unique<QSocketNotifier>(fSocket, QSocketNotifier::Read);
        QObject::connect(fNotifier.get(), &QSocketNotifier::activated, [this] { welcome(); });
    }

private:
    struct Talk {
        std::unique_ptr<QSocketNotifier> notifier;
        std::string message;
    };
    void welcome()
    {
        const int guest = accept4(fSocket, nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK);
        if (guest < 0)
            return;
        if (!IsOurUser(guest)) {
            close(guest);
            return;
        }
        Talk& talk = fTalks[guest];
        talk.notifier = std::make_unique<QSocketNotifier>(guest, QSocketNotifier::Read);
        QObject::connect(talk.notifier.get(), &QSocketNotifier::activated,
                         [this, guest] { listenTo(guest); });
    }
    void listenTo(int guest)
    {
        char bytes[4096];
        Talk& talk = fTalks[guest];
        const ssize_t n = recv(guest, bytes, sizeof bytes, 0);
        if (n > 0 && talk.message.size() + static_cast<std::size_t>(n) <= kMostMessage) {
            talk.message.append(bytes, static_cast<std::size_t>(n));
            return;
        }
        if (n < 0 && (errno == EAGAIN || errno == EINTR))
            return;
        const std::string message = std::move(talk.message);
        talk.notifier->setEnabled(false);
        talk.notifier.release()->deleteLater();  // this runs within its signal
        fTalks.erase(guest);
        // Who has waited too long has gone on alone, and opens the paths there.
        if (n == 0 && IsWaiting(guest) && fReceived && fReceived(PathsOf(message)))
            static_cast<void>(!send(guest, &kTaken, 1, MSG_NOSIGNAL));
        close(guest);
    }

    int fSocket;
    std::string fPath;
    Received fReceived;
    std::unique_ptr<QSocketNotifier> fNotifier;
    std::map<int, Talk> fTalks;  // by socket
};

// Listens where nobody does any more. -1 if that can't be.
int ListenAt(const std::string& path, const sockaddr_un& address)
{
    const int socket = NewSocket(false);
    if (socket < 0)
        return -1;
    unlink(path.c_str());
    if (bind(socket, reinterpret_cast<const sockaddr*>(&address), sizeof address) == 0 &&
        listen(socket, SOMAXCONN) == 0)
        return socket;
    close(socket);
    return -1;
}

}  // namespace

std::unique_ptr<HandOver> HandOverOrStart(const std::string& folder, const std::string& place,
                                          const std::vector<std::string>& paths, int patience_ms)
{
    const std::string name = NameOf(folder, place), path = name + ".socket";
    sockaddr_un address{};
    if (folder.empty() || !AddressOf(path, &address))
        return std::make_unique<Receiver>(-1, path);
    constexpr int kPause_ms = 50;
    for (int waited_ms = 0;; waited_ms += kPause_ms) {
        // Of two starts at one moment the second sees the first one's socket.
        std::unique_ptr<FileLock> gate = std::make_unique<FileLock>(name + ".lock");
        const int caller = NewSocket(true);
        if (caller < 0 ||
            connect(caller, reinterpret_cast<const sockaddr*>(&address), sizeof address) != 0) {
            if (caller >= 0)
                close(caller);
            return std::make_unique<Receiver>(ListenAt(path, address), path);
        }
        gate.reset();
        const Handed handed =
            IsOurUser(caller) ? HandTo(caller, paths, patience_ms) : Handed::Unanswered;
        close(caller);
        if (handed == Handed::Taken)
            return nullptr;
        if (handed == Handed::Unanswered || waited_ms >= patience_ms)
            return std::make_unique<Receiver>(-1, path);
        usleep(kPause_ms * 1000);
    }
}
