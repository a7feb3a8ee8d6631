#include "app/push/QtPushService.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkRequest>
#include <algorithm>
#include <utility>

using namespace std::chrono_literals;

namespace {
constexpr auto firstDelay = 1s;
constexpr auto longestDelay = 60s;
/// The service says every 30 seconds that it is there.
constexpr std::chrono::milliseconds silence = 75s;
constexpr qint64 longestLine = 1 << 20;
constexpr int ok = 200;

int statusOf(const QNetworkReply *reply)
{
    return reply ? reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt() : 0;
}

/// What a service answers that has no such stream; 401, 408 and 429 may pass.
bool refusesForGood(int status)
{
    return status >= 400 && status < 500 && status != 401 && status != 408 && status != 429;
}
} // namespace

QtPushService::QtPushService(const QString &apiBaseUrl, DeveloperTrust developerTrust)
    : url(apiBaseUrl + QStringLiteral("sandbox/push")), trust(std::move(developerTrust)), delay(firstDelay)
{
}

QtPushService::~QtPushService()
{
    close();
}

void QtPushService::onRemoteNotification(std::function<void(const QVariantMap &)> receive)
{
    received = std::move(receive);
}

void QtPushService::setAlias(const QString &newAlias, const QString &)
{
    close();
    alias = newAlias == u"off_line" ? QByteArray() : newAlias.toUtf8();
    delay = firstDelay;
    // After the turn that sets it: at start-up the first picture comes before the network.
    if (!alias.isEmpty())
        reopening.startOnce(0ms, [this] { open(); });
}

void QtPushService::open()
{
    QNetworkRequest request(url);
    request.setSslConfiguration(trust.configuration());
    request.setRawHeader("alias", alias);
    request.setTransferTimeout(static_cast<int>(silence.count()));
    request.setAttribute(QNetworkRequest::RedirectPolicyAttribute, QNetworkRequest::ManualRedirectPolicy);
    request.setAttribute(QNetworkRequest::CookieLoadControlAttribute, QNetworkRequest::Manual);
    request.setAttribute(QNetworkRequest::CookieSaveControlAttribute, QNetworkRequest::Manual);
    stream = network.get(request);
    connect(stream, &QNetworkReply::readyRead, this, &QtPushService::readLines);
    connect(stream, &QNetworkReply::finished, this, &QtPushService::reopenLater);
}

void QtPushService::close()
{
    reopening.stop();
    if (QNetworkReply *const closed = std::exchange(stream, nullptr)) {
        // Aborting reports at once: nobody listens any more.
        closed->disconnect(this);
        closed->abort();
        closed->deleteLater();
    }
}

void QtPushService::readLines()
{
    if (statusOf(stream) != ok) {
        stream->readAll();
        return;
    }
    while (stream && stream->canReadLine()) {
        const QByteArray line = stream->readLine().trimmed();
        const QJsonObject message = QJsonDocument::fromJson(line).object();
        const bool isMessage = message.contains(QStringLiteral("pageId"));
        // Anything else is no such stream, and is not to be asked for every second.
        if (line.isEmpty() || isMessage)
            delay = firstDelay;
        // What receives the message may set another alias, which ends this stream.
        if (isMessage && received)
            received(message.toVariantMap());
    }
    if (stream && stream->bytesAvailable() > longestLine)
        reopenLater();
}

void QtPushService::reopenLater()
{
    // A service without such a stream is not asked for it again.
    const bool exists = !refusesForGood(statusOf(stream));
    close();
    if (!exists)
        return;
    reopening.startOnce(delay, [this] { open(); });
    delay = std::min<std::chrono::seconds>(delay * 2, longestDelay);
}
