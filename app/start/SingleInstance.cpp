#include "app/start/SingleInstance.h"

#include "data/FilePath.h"

#include <QDir>
#include <QFile>
#include <QLocalSocket>
#include <QStandardPaths>

#include <algorithm>
#include <cstdio>
#include <utility>

namespace {

constexpr int waitMilliseconds = 300;

}  // namespace

SingleInstance::SingleInstance(InstanceChannel channel, QObject* parent)
    : QObject(parent)
    , m_channel(std::move(channel))
{ }

SingleInstance::~SingleInstance()
{
    if (!m_server.isListening()) {
        return;
    }
    // Closing removes whatever bears the socket's name, and that may be the socket of a newer
    // instance by now, which is put out of the way meanwhile.
    const QByteArray path = QFile::encodeName(m_server.fullServerName());
    const QByteArray aside = path + ".kept";
    const bool isTaken = socketowner::fileAt(m_server.fullServerName()) != m_socketFile
        && std::rename(path.constData(), aside.constData()) == 0;
    m_server.close();
    if (isTaken && std::rename(aside.constData(), path.constData()) != 0) {
        QFile::remove(QFile::decodeName(aside));
    }
}

bool SingleInstance::handOver(const QString& path) const
{
    return std::ranges::any_of(addresses(),
                               [&](const QString& address) { return sendTo(address, path); });
}

bool SingleInstance::listen()
{
    const QString address = addresses().constFirst();
    QLocalServer::removeServer(address);
    m_server.setSocketOptions(QLocalServer::UserAccessOption);
    if (!m_server.listen(address)) {
        return false;
    }
    m_socketFile = socketowner::fileAt(m_server.fullServerName());
    return true;
}

void SingleInstance::serve()
{
    connect(&m_server, &QLocalServer::newConnection, this, &SingleInstance::acceptConnections);
    acceptConnections();
}

/// The names under which the channel may be found, the one to listen on first. An instance may
/// still listen in the private folder after the other user has given the common name up.
QStringList SingleInstance::addresses() const
{
    if (socketowner::isHeldByOther(QDir(QDir::tempPath()).filePath(m_channel.name),
                                   m_channel.user)) {
        return {privateAddress()};
    }
    QStringList addresses{m_channel.name};
    // Where the system names no runtime directory Qt would make one, with a warning.
    if (!m_channel.privateFolder.isEmpty() || qEnvironmentVariableIsSet("XDG_RUNTIME_DIR")) {
        addresses << privateAddress();
    }
    return addresses;
}

QString SingleInstance::privateAddress() const
{
    const QString folder = m_channel.privateFolder.isEmpty()
        ? QStandardPaths::writableLocation(QStandardPaths::RuntimeLocation)
        : m_channel.privateFolder;
    return QDir(folder).filePath(m_channel.name);
}

bool SingleInstance::sendTo(const QString& address, const QString& path) const
{
    QLocalSocket socket;
    socket.connectToServer(address, QIODevice::WriteOnly);
    if (!socket.waitForConnected(waitMilliseconds)
        || !socketowner::isPeer(socket.socketDescriptor(), m_channel.user)) {
        return false;
    }
    socket.write(QByteArray::fromStdString(filepath::toBytes(path)));
    socket.flush();
    socket.waitForBytesWritten(waitMilliseconds);
    return true;
}

void SingleInstance::acceptConnections()
{
    while (QLocalSocket* socket = m_server.nextPendingConnection()) {
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { receive(*socket); });
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        // What came before now is announced no more.
        receive(*socket);
    }
}

void SingleInstance::receive(QLocalSocket& socket)
{
    const QString path = filepath::fromBytes(socket.readAll().trimmed().toStdString());
    if (!path.isEmpty() && filepath::stateOf(path).exists) {
        // Later, as opening a file may show a dialog, and the socket would die inside its own read.
        QMetaObject::invokeMethod(
            this, [this, path] { emit signalFileReceived(path); }, Qt::QueuedConnection);
    }
}
