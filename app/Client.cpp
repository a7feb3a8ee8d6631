#include "app/Client.h"

#include "core/shell/Configuration.h"
#include "trading/api/TZStockInfoTool.h"

#include <QQuickWindow>

namespace {
QString settingsPath(const Options &options)
{
    return options.dataDirectory + QStringLiteral("/settings");
}

DeveloperTrust trustOf(const Options &options)
{
    if (options.trustFile.isEmpty())
        return {{}, options.loopbackHttp};
    return {QSslCertificate::fromPath(options.trustFile), options.loopbackHttp};
}
} // namespace

Client::Client(Options startOptions)
    : options(std::move(startOptions)), views(std::in_place), trust(trustOf(options)),
      settings(settingsPath(options)), application(options.apiBaseUrl, options.dataDirectory), http(trust),
      reachability(QUrl(options.apiBaseUrl)), share(pasteboard, urlOpener),
      feedback(pasteboard, urlOpener, Configuration::serviceMail, QStringLiteral("用户反馈")),
#ifdef ZORVANE_DEVELOPER_OPTIONS
      push(options.apiBaseUrl, trust),
#endif
      platform{http,  settings, reachability, runLoop,     push,          pasteboard, urlOpener,
               share, feedback, analytics,    application, notifications, overlays},
      shell(window, router, [] { TZStockInfoTool::getStockInfoWithParam({}, {}, {}); })
{
}

Client::~Client()
{
    views.reset();
}

QString Client::problem() const
{
    if (!options.trustFile.isEmpty() && trust.authorities.isEmpty())
        return QStringLiteral("zorvane: '%1' holds no certificate; give a readable PEM file\n")
            .arg(options.trustFile);
    const QString path = settingsPath(options);
    switch (settings.problem()) {
    case SettingsProblem::None:
        return {};
    case SettingsProblem::InUse:
        return QStringLiteral("zorvane: another client is using '%1'; close it and start again\n")
            .arg(options.dataDirectory);
    case SettingsProblem::Garbled:
        return QStringLiteral("zorvane: '%1' is not a settings file; move it away and start again\n")
            .arg(path);
    case SettingsProblem::Unreadable:
    case SettingsProblem::Unwritable:
        break;
    }
    return QStringLiteral("zorvane: '%1' cannot be read and written; make it yours and start again\n")
        .arg(path);
}

QQuickWindow *Client::show()
{
    shell.didFinishLaunchingWithOptions({});
    return views->show(window, overlays);
}
