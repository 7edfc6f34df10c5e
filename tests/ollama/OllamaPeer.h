#pragma once

#include <QByteArray>
#include <QHash>
#include <QList>
#include <QString>
#include <QTcpServer>

class QTcpSocket;

struct PeerRequest {
    QByteArray line;
    QHash<QByteArray, QByteArray> headers; // by lower-case name
    QByteArray body;
};

// An HTTP server on a loopback port, served by the event loop in which the client waits.
class OllamaPeer : public QTcpServer {
    Q_OBJECT

public:
    // Held waits for release(), Silent never answers; Half and Closing close the connection.
    enum Manner { Whole, Held, Silent, Half, Closing };

    struct Answer {
        QByteArray body;
        Manner manner = Whole;
        QByteArray status = "200 OK";
    };

    OllamaPeer();

    [[nodiscard]] QString url() const { return QString("http://127.0.0.1:%1/").arg(serverPort()); }
    // One answer a request; the last one is repeated.
    void setAnswers(const QByteArray& path, const QList<Answer>& answers) { _answers.insert(path, answers); }
    [[nodiscard]] QList<PeerRequest> requests(const QByteArray& path) const;
    void release();

signals:
    void requested(int count);

private:
    void readFrom(QTcpSocket* socket);
    void answerTo(QTcpSocket* socket, const Answer& answer);

    QHash<QByteArray, QList<Answer>> _answers;
    QList<PeerRequest> _requests;
    QHash<QTcpSocket*, QByteArray> _received;
    QHash<QTcpSocket*, QByteArray> _held;
};
