#include "platform/qt/SsipConnection.h"

#include <QFile>

namespace ondrilo {

SsipConnection::SsipConnection(Events events) : events(std::move(events)) {
    constexpr qint64 kSlice = 16 * 1024; // bytes: what is read at once of a list of thousands of voices
    socket.setReadBufferSize(kSlice);
    deadline.setSingleShot(true);
    end.setSingleShot(true);
    QObject::connect(&socket, &QLocalSocket::connected, &end, [this] {
        reached = true;
        deadline.stop();
        this->events.opened();
    });
    QObject::connect(&socket, &QLocalSocket::readyRead, &end, [this] { Read(); });
    QObject::connect(&socket, &QLocalSocket::errorOccurred, &end, [this] { Fail(); });
    QObject::connect(&socket, &QLocalSocket::disconnected, &end, [this] { Fail(); });
    QObject::connect(&deadline, &QTimer::timeout, &end, [this] { Fail(); });
    QObject::connect(&end, &QTimer::timeout, &end, [this] { Lose(); });
}

void SsipConnection::Open(const std::string& socketPath) {
    used = true;
    reached = false;
    reader = {};
    deadline.start(kPatience);
    socket.connectToServer(QFile::decodeName(socketPath.c_str()));
}

void SsipConnection::Send(std::string_view bytes, OnLine onLine, Milliseconds patience) {
    expected.push_back({std::move(onLine), patience});
    if (expected.size() == 1)
        WaitForReply();
    socket.write(bytes.data(), static_cast<qint64>(bytes.size()));
}

void SsipConnection::Read() {
    const QByteArray bytes = socket.readAll();
    reader.Append({bytes.constData(), static_cast<std::size_t>(bytes.size())});
    bool isAnswered = false;
    while (const auto line = reader.Next()) {
        if (line->IsEvent())
            continue;
        if (line->code == 0 || expected.empty())
            return Fail();
        expected.front().onLine(*line);
        if (line->last)
            expected.pop_front();
        isAnswered = true;
    }
    if (isAnswered) // else whoever sends half a line or events for ever would never be late
        WaitForReply();
}

void SsipConnection::WaitForReply() {
    if (expected.empty())
        deadline.stop();
    else
        deadline.start(expected.front().patience);
}

void SsipConnection::Fail() {
    if (used)
        end.start(0);
}

void SsipConnection::Lose() {
    used = false;
    deadline.stop();
    expected.clear();
    socket.abort();
    events.lost(reached);
}

} // namespace ondrilo
