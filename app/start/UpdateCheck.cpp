#include "app/start/UpdateCheck.h"

#include "app/dialogs/UserPrompts.h"

#include <spdlog/spdlog.h>

#include <QDesktopServices>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkReply>
#include <QNetworkRequest>
#include <QTimer>
#include <QUrl>

#include <utility>

UpdateCheck::UpdateCheck(Setup setup, UserPrompts& prompts, QObject* parent)
    : QObject(parent)
    , m_setup(std::move(setup))
    , m_prompts(prompts)
{
    if (!m_setup.openPage) {
        m_setup.openPage = [](const QUrl& page) { QDesktopServices::openUrl(page); };
    }
}

void UpdateCheck::check()
{
    if (m_reply != nullptr) {
        return;
    }
    m_refusal.clear();
    QNetworkRequest request(QUrl(m_setup.webSite + QStringLiteral("/updates/update.json")));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute,
                         QNetworkRequest::NoLessSafeRedirectPolicy);
    request.setMaximumRedirectsAllowed(5);
    m_reply = m_network.get(request);
    connect(m_reply, &QNetworkReply::readyRead, this, &UpdateCheck::limitSize);
    connect(m_reply, &QNetworkReply::finished, this, &UpdateCheck::finish);
    // The reply's own time limit begins anew with every byte that arrives.
    QTimer::singleShot(m_setup.timeLimit, m_reply, [this] { giveUp(tr("no answer in time")); });
}

void UpdateCheck::limitSize()
{
    if (m_reply != nullptr && m_reply->bytesAvailable() > m_setup.sizeLimit) {
        giveUp(tr("the answer is too large"));
    }
}

void UpdateCheck::giveUp(const QString& reason)
{
    if (m_reply != nullptr) {
        m_refusal = reason;
        m_reply->abort();
    }
}

void UpdateCheck::finish()
{
    QNetworkReply* const reply = std::exchange(m_reply, nullptr);
    reply->deleteLater();
    if (reply->error() != QNetworkReply::NoError) {
        const QString reason = m_refusal.isEmpty() ? reply->errorString() : m_refusal;
        spdlog::warn("Update check failed: {}", reason.toStdString());
        emit signalFailed(tr("The check for updates has failed: %1").arg(reason));
        return;
    }
    const QJsonDocument manifest = QJsonDocument::fromJson(reply->readAll());
    const QString latest = manifest.object().value(u"version").toString();
    // Texts of the form year.month.day order as their dates do.
    if (latest > m_setup.version) {
        offer(latest);
    }
}

void UpdateCheck::offer(const QString& latest)
{
    const QString page = m_setup.webSite + QStringLiteral("/download/");
    const QString text =
        tr("A new version is available!\n\nLatest version: %1\nYour version: %2\n\n"
           "Click 'Open' to get the latest version:\n%3")
            .arg(latest, m_setup.version, page);
    if (m_prompts.offerToOpen(tr("Update Available"), text)) {
        m_setup.openPage(QUrl(page));
    }
}
