#pragma once

#include "app/start/SocketOwner.h"

#include <QLocalServer>
#include <QObject>

#include <optional>

/// The channel over which a program that is started with a file hands it to the one that runs.
struct InstanceChannel
{
    /// Of the socket, in the folder for temporary files; on Windows of the pipe.
    QString name = QStringLiteral("QuorlaneSingleInstance");
    /// Where the socket stands when another user has taken that name; the user's runtime directory
    /// when empty.
    QString privateFolder = {};
    /// Whose programs the channel connects.
    uint user = socketowner::currentUser();
};

/// One end of the channel: hands a file over, or listens for those that others hand over. A message
/// is the UTF-8 bytes of one path, and each chunk that arrives is taken for a whole one.
class SingleInstance : public QObject
{
    Q_OBJECT

public:
    explicit SingleInstance(InstanceChannel channel = {}, QObject* parent = nullptr);
    ~SingleInstance() override;

    /// Hands a path to the program that listens; never to another user's.
    /// @return  false when none answers within 300 milliseconds
    [[nodiscard]] bool handOver(const QString& path) const;

    /// Takes the channel over from whoever had it, and refuses other users' programs.
    [[nodiscard]] bool listen();
    /// Why listen() failed.
    [[nodiscard]] QString errorString() const { return m_server.errorString(); }
    /// Begins to announce what is handed over, with what came since listen().
    void serve();

signals:
    /// A path that exists was handed over.
    void signalFileReceived(const QString& path);

private:
    [[nodiscard]] QStringList addresses() const;
    [[nodiscard]] QString privateAddress() const;
    [[nodiscard]] bool sendTo(const QString& address, const QString& path) const;
    void acceptConnections();
    void receive(QLocalSocket& socket);

    InstanceChannel m_channel;
    QLocalServer m_server;
    std::optional<socketowner::FileId> m_socketFile;
};
