#pragma once

#include <QHash>
#include <QStringList>
#include <QTcpServer>
#include <QTcpSocket>

/// Answers requests on this machine with prepared bytes, one a connection.
class HttpServer : public QTcpServer
{
public:
    HttpServer()
    {
        listen(QHostAddress::LocalHost);
        connect(this, &QTcpServer::newConnection, this, [this] { accept(); });
    }

    [[nodiscard]] QString address() const
    {
        return QStringLiteral("http://127.0.0.1:%1").arg(serverPort());
    }
    /// What a path is answered with; paths that were not given one are never answered.
    void answer(const QByteArray& path, const QByteArray& status, const QByteArray& body,
                const QByteArray& header = {})
    {
        m_answers[path] = "HTTP/1.1 " + status + "\r\n" + header + "Connection: close\r\n"
            + "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body;
    }
    /// The first lines of the requests, in order.
    [[nodiscard]] const QStringList& requests() const { return m_requests; }

private:
    void accept()
    {
        QTcpSocket* socket = nextPendingConnection();
        connect(socket, &QTcpSocket::readyRead, socket, [this, socket] { read(*socket); });
        connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
    }
    void read(QTcpSocket& socket)
    {
        if (!socket.peek(65'536).contains("\r\n\r\n")) {
            return;
        }
        const QByteArray line = socket.readAll().split('\r').first();
        m_requests << QString::fromLatin1(line);
        const QByteArray path = line.split(' ').value(1);
        if (m_answers.contains(path)) {
            socket.write(m_answers.value(path));
            socket.disconnectFromHost();
        }
    }

    QHash<QByteArray, QByteArray> m_answers;
    QStringList m_requests;
};
