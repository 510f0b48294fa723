#pragma once

#include <QNetworkAccessManager>
#include <QObject>
#include <QString>

#include <chrono>
#include <functional>

class QNetworkReply;
class QUrl;
class UserPrompts;

/// Asks the product web site for a newer version and offers its download page. Nothing is said when
/// there is none; what goes wrong on the way is told in passing.
class UpdateCheck : public QObject
{
    Q_OBJECT

public:
    struct Setup
    {
        QString webSite;  ///< without a slash at its end
        QString version;  ///< of this program, year.month.day
        /// Shows a page to the user; in their browser when empty.
        std::function<void(const QUrl&)> openPage = {};
        std::chrono::milliseconds timeLimit = std::chrono::seconds(15);  ///< of the whole answer
        qint64 sizeLimit = 65'536;  ///< of the answer in bytes
    };

    /// @param prompts  outlives the check
    UpdateCheck(Setup setup, UserPrompts& prompts, QObject* parent = nullptr);

    /// Begins to ask. Nothing happens while an answer is still awaited.
    void check();
    /// Whether an answer is awaited.
    [[nodiscard]] bool isBusy() const { return m_reply != nullptr; }

signals:
    void signalFailed(const QString& message);

private:
    void limitSize();
    void giveUp(const QString& reason);
    void finish();
    void offer(const QString& latest);

    Setup m_setup;
    UserPrompts& m_prompts;
    QNetworkReply* m_reply = nullptr;  ///< a child of m_network, null while nothing is awaited
    QString m_refusal;  ///< why we ended the answer ourselves
    QNetworkAccessManager m_network;
};
