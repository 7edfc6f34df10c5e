#include "ollama/OllamaPeer.h"

#include <QTcpSocket>

namespace {

PeerRequest parsedRequest(const QByteArray& head) {
    PeerRequest request;
    QList<QByteArray> lines = head.split('\n');
    request.line = lines.takeFirst().trimmed();
    for (const QByteArray& line : std::as_const(lines)) {
        const qsizetype colon = line.indexOf(':');
        request.headers.insert(line.first(colon).toLower(), line.sliced(colon + 1).trimmed());
    }
    return request;
}

} // namespace

OllamaPeer::OllamaPeer() {
    if (!listen(QHostAddress::LocalHost))
        qFatal("no port for the peer");
    connect(this, &QTcpServer::newConnection, this, [this] {
        QTcpSocket* socket = nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, this, [this, socket] { readFrom(socket); });
        connect(socket, &QTcpSocket::disconnected, this, [this, socket] {
            _held.remove(socket);
            _received.remove(socket);
            socket->deleteLater();
        });
    });
}

QList<PeerRequest> OllamaPeer::requests(const QByteArray& path) const {
    QList<PeerRequest> found;
    for (const PeerRequest& request : _requests) {
        if (request.line.split(' ').value(1) == path)
            found.append(request);
    }
    return found;
}

void OllamaPeer::release() {
    for (const auto& [socket, bytes] : std::exchange(_held, {}).asKeyValueRange())
        socket->write(bytes);
}

void OllamaPeer::readFrom(QTcpSocket* socket) {
    QByteArray& received = _received[socket];
    received += socket->readAll();
    const qsizetype end = received.indexOf("\r\n\r\n");
    if (end < 0)
        return;
    PeerRequest request = parsedRequest(received.first(end));
    if (received.size() < end + 4 + request.headers.value("content-length").toLongLong())
        return;
    request.body = received.sliced(end + 4);
    received.clear();
    _requests.append(request);
    QList<Answer>& answers = _answers[request.line.split(' ').value(1)];
    answerTo(socket, answers.size() > 1 ? answers.takeFirst() : answers.value(0));
    // Queued, as a receiver may wait for further requests.
    const auto count = static_cast<int>(_requests.size());
    QMetaObject::invokeMethod(this, [this, count] { emit requested(count); }, Qt::QueuedConnection);
}

void OllamaPeer::answerTo(QTcpSocket* socket, const Answer& answer) {
    const QByteArray head = "HTTP/1.1 " + answer.status +
                            "\r\nContent-Length: " + QByteArray::number(answer.body.size()) + "\r\n\r\n";
    if (answer.manner == Whole) {
        socket->write(head + answer.body);
    } else if (answer.manner == Held) {
        _held.insert(socket, head + answer.body);
    } else if (answer.manner == Half) {
        socket->write(head + answer.body.first(answer.body.size() / 2));
        socket->disconnectFromHost();
    } else if (answer.manner == Closing) {
        socket->disconnectFromHost();
    }
}
