#include "app/Client.h"

#include "core/shell/Configuration.h"
#include "trading/api/TZStockInfoTool.h"

#include <QQuickWindow>

namespace {
QString settingsPath(const Options &options)
{
    return options.dataDirectory + QStringLiteral("/settings");
}
} // namespace

Client::Client(const Options &options)
    : settings(settingsPath(options)), application(options.apiBaseUrl, options.dataDirectory),
      http(options.trust), reachability(QUrl(options.apiBaseUrl)), share(pasteboard, urlOpener),
      feedback(urlOpener, Configuration::serviceMail, QStringLiteral("用户反馈")),
#ifdef ZORVANE_DEVELOPER_OPTIONS
      push(options.apiBaseUrl, options.trust),
#endif
      platform{http,  settings, reachability, runLoop,     push,          pasteboard, urlOpener,
               share, feedback, analytics,    application, notifications, overlays},
      shell(window, router, [] { TZStockInfoTool::getStockInfoWithParam({}, {}, {}); })
{
}

Client::~Client() = default;

QString Client::problem() const
{
    const QString path = settingsPath({application.apiBaseUrl(), application.documentsDirectory(), {}});
    switch (settings.problem()) {
    case SettingsProblem::None:
        return {};
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
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.setInitialProperties({{QStringLiteral("window"), QVariant::fromValue(&window)},
                                 {QStringLiteral("overlays"), QVariant::fromValue(&overlays)}});
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Zorvane/Ui/Main.qml")));
    return engine.rootObjects().isEmpty() ? nullptr
                                          : qobject_cast<QQuickWindow *>(engine.rootObjects().first());
}
