#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QMutex>
#include <QObject>
#include <QString>
#include <QThread>

class QTcpServer;
class QTcpSocket;

struct PeerRequest {
    QByteArray line;
    QHash<QByteArray, QByteArray> headers; // by lower-case name
    QByteArray body;
};

// An HTTP server on a loopback port of its own, in a thread of its own.
class OllamaPeer : public QObject {
    Q_OBJECT

public:
    // Held waits for release(), Silent for ever; Dripping takes 150 ms a byte; Half and Closing hang up.
    enum Manner { Whole, Held, Silent, Dripping, Half, Closing };

    struct Answer {
        QByteArray body;
        Manner manner = Whole;
        QByteArray status = "200 OK";
    };

    OllamaPeer();
    ~OllamaPeer() override;
    Q_DISABLE_COPY_MOVE(OllamaPeer)

    [[nodiscard]] QString url() const { return QString("http://127.0.0.1:%1/").arg(_port); }
    // One answer a request; the last stays.
    void setAnswers(const QByteArray& path, const QList<Answer>& answers);
    [[nodiscard]] QList<PeerRequest> requests(const QByteArray& path) const;
    void release();

signals:
    // Sent before the answer; a receiver in another thread gets it queued.
    void requested(int count);

private:
    void readFrom(QTcpSocket* socket);
    void answerTo(QTcpSocket* socket, const Answer& answer);
    static void drip(QTcpSocket* socket, const QByteArray& bytes);

    mutable QMutex _mutex;
    QHash<QByteArray, QList<Answer>> _answers;
    QList<PeerRequest> _requests;
    // Of the peer's thread alone.
    QHash<QTcpSocket*, QByteArray> _received;
    QHash<QTcpSocket*, QByteArray> _held;
    QObject _worker;
    QThread _thread;
    quint16 _port = 0;
};
