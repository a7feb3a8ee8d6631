#include "tour/SandboxProcess.h"

#include "core/net/FormBody.h"
#include "tour/Hand.h"

#include <QCoreApplication>
#include <QFile>
#include <QJsonDocument>
#include <QJsonObject>
#include <QNetworkAccessManager>
#include <QNetworkReply>
#include <QRegularExpression>
#include <QSslConfiguration>

using namespace std::chrono_literals;

SandboxProcess::SandboxProcess(const QStringList &options)
{
    connect(&process, &QProcess::readyReadStandardOutput, this, &SandboxProcess::readLines);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QStringLiteral(ZORVANE_SANDBOX),
                  QStringList{QStringLiteral("--port"), QStringLiteral("0"), QStringLiteral("--data-dir"),
                              folder.path(), QStringLiteral("--seed"), QStringLiteral("7")} +
                      options);
    if (!Hand::wait([this] { return !url.isEmpty(); }, 60s))
        qFatal("the sandbox did not start");
}

SandboxProcess::~SandboxProcess()
{
    process.terminate();
    process.waitForFinished(5000);
}

QString SandboxProcess::authority() const
{
    return folder.filePath(QStringLiteral("ca.pem"));
}

QByteArray SandboxProcess::exchange(const QString &path, const QByteArray &form) const
{
    QNetworkRequest request(QUrl(url + path));
    QSslConfiguration tls = QSslConfiguration::defaultConfiguration();
    tls.setCaCertificates(QSslCertificate::fromPath(authority()));
    request.setSslConfiguration(tls);
    request.setHeader(QNetworkRequest::ContentTypeHeader,
                      QStringLiteral("application/x-www-form-urlencoded"));
    QNetworkAccessManager manager;
    const std::unique_ptr<QNetworkReply> reply(form.isNull() ? manager.get(request)
                                                             : manager.post(request, form));
    Hand::wait([&] { return reply->isFinished(); });
    return reply->readAll();
}

QVariant SandboxProcess::data(const QString &path) const
{
    return QJsonDocument::fromJson(exchange(path, {})).object().toVariantMap().value(QStringLiteral("data"));
}

QVariantMap SandboxProcess::state() const
{
    return data(QStringLiteral("sandbox/state")).toMap();
}

QString SandboxProcess::initialsOf(const QString &name) const
{
    const QVariantList stocks = data(QStringLiteral("info")).toList();
    for (const QVariant &stock : stocks) {
        if (stock.toMap().value(QStringLiteral("n")) == name)
            return stock.toMap().value(QStringLiteral("s")).toString();
    }
    return {};
}

void SandboxProcess::post(const QString &path, const QVariantMap &fields) const
{
    exchange(QStringLiteral("sandbox/") + path, formFields(fields));
}

int SandboxProcess::unknownRequests() const
{
    return state().value(QStringLiteral("unknown")).toMap().value(QStringLiteral("count")).toInt();
}

void SandboxProcess::readLines()
{
    static const QRegularExpression ready(QStringLiteral("^ready (https://\\S+)"));
    static const QRegularExpression sms(QStringLiteral("^SMS (\\d{11}): (\\d{6})"));
    while (process.canReadLine()) {
        const QString line = QString::fromUtf8(process.readLine());
        if (const auto found = ready.match(line); found.hasMatch())
            url = found.captured(1);
        if (const auto found = sms.match(line); found.hasMatch())
            codes.insert(found.captured(1), found.captured(2));
    }
}
