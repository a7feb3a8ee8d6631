#pragma once

#include "app/platform/DeveloperTrust.h"
#include "app/push/QuietPushService.h"
#include "core/platform/Timer.h"

#include <QByteArray>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QObject>
#include <QUrl>
#include <chrono>

/// The push of developer builds: while an alias is set, a stream is held open to "sandbox/push" below the
/// base URL with the alias as a header, and none of those that calls of the service have. It brings one JSON
/// object a line, {"pageId": n, "data": {…}}; an empty line only says that the service is there. A lost
/// stream is opened again after 1 second, then 2, 4, … up to 60, until a line has come through; where there
/// is none (a 4xx status that does not pass), not until there is another alias.
class QtPushService : public QObject, public QuietPushService {
    Q_OBJECT
public:
    /// `apiBaseUrl` ends in "/".
    QtPushService(const QString &apiBaseUrl, DeveloperTrust developerTrust);
    ~QtPushService() override;

    /// "off_line" ends the stream for good, another alias begins one of its own.
    void setAlias(const QString &alias, const QString &type) override;
    void onRemoteNotification(std::function<void(const QVariantMap &)> receive) override;

private:
    void open();
    void close();
    void readLines();
    void reopenLater();

    const QUrl url;
    const DeveloperTrust trust;
    QNetworkAccessManager network;
    /// Belongs to `network`; null while none is open.
    QNetworkReply *stream = nullptr;
    std::function<void(const QVariantMap &)> received;
    QByteArray alias;
    Timer reopening;
    std::chrono::seconds delay;
};
