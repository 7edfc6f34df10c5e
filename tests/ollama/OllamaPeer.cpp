#include "ollama/OllamaPeer.h"

#include <QMutexLocker>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>

namespace {

constexpr int dripMs = 150;

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
    _worker.moveToThread(&_thread);
    _thread.start();
    QMetaObject::invokeMethod(
        &_worker,
        [this] {
            auto* server = new QTcpServer(&_worker);
            if (!server->listen(QHostAddress::LocalHost))
                qFatal("no port for the peer");
            _port = server->serverPort();
            QObject::connect(server, &QTcpServer::newConnection, &_worker, [this, server] {
                QTcpSocket* socket = server->nextPendingConnection();
                QObject::connect(socket, &QTcpSocket::readyRead, &_worker,
                                 [this, socket] { readFrom(socket); });
                QObject::connect(socket, &QTcpSocket::disconnected, &_worker, [this, socket] {
                    _held.remove(socket);
                    _received.remove(socket);
                    socket->deleteLater();
                });
            });
        },
        Qt::BlockingQueuedConnection);
}

OllamaPeer::~OllamaPeer() {
    QMetaObject::invokeMethod(
        &_worker,
        [this] {
            for (const auto* server : _worker.findChildren<QTcpServer*>()) {
                for (QTcpSocket* socket : server->findChildren<QTcpSocket*>())
                    socket->disconnect(&_worker);
                delete server;
            }
        },
        Qt::BlockingQueuedConnection);
    _thread.quit();
    _thread.wait();
}

void OllamaPeer::setAnswers(const QByteArray& path, const QList<Answer>& answers) {
    const QMutexLocker lock(&_mutex);
    _answers.insert(path, answers);
}

QList<PeerRequest> OllamaPeer::requests(const QByteArray& path) const {
    const QMutexLocker lock(&_mutex);
    QList<PeerRequest> found;
    for (const PeerRequest& request : _requests) {
        if (request.line.split(' ').value(1) == path)
            found.append(request);
    }
    return found;
}

void OllamaPeer::release() {
    QMetaObject::invokeMethod(&_worker, [this] {
        for (const auto& [socket, bytes] : std::as_const(_held).asKeyValueRange())
            socket->write(bytes);
        _held.clear();
    });
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
    const QByteArray path = request.line.split(' ').value(1);
    QMutexLocker lock(&_mutex);
    _requests.append(request);
    QList<Answer>& answers = _answers[path];
    const Answer answer = answers.size() > 1 ? answers.takeFirst() : answers.value(0);
    const auto count = static_cast<int>(_requests.size());
    lock.unlock();
    answerTo(socket, answer);
    emit requested(count);
}

void OllamaPeer::answerTo(QTcpSocket* socket, const Answer& answer) {
    const QByteArray head = "HTTP/1.1 " + answer.status +
                            "\r\nContent-Length: " + QByteArray::number(answer.body.size()) + "\r\n\r\n";
    if (answer.manner == Whole) {
        socket->write(head + answer.body);
    } else if (answer.manner == Held) {
        _held.insert(socket, head + answer.body);
    } else if (answer.manner == Dripping) {
        socket->write(head);
        drip(socket, answer.body);
    } else if (answer.manner == Half) {
        socket->write(head + answer.body.first(answer.body.size() / 2));
        socket->disconnectFromHost();
    } else if (answer.manner == Closing) {
        socket->disconnectFromHost();
    }
}

void OllamaPeer::drip(QTcpSocket* socket, const QByteArray& bytes) {
    if (bytes.isEmpty())
        return;
    socket->write(bytes.first(1));
    QTimer::singleShot(dripMs, socket, [socket, bytes] { drip(socket, bytes.sliced(1)); });
}
