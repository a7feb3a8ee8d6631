#include "app/AppRouter.h"
#include "app/CommandLine.h"
#include "app/platform/DesktopShare.h"
#include "app/platform/MailFeedback.h"
#include "app/platform/QtApplicationInfo.h"
#include "app/platform/QtHttpTransport.h"
#include "app/platform/QtPasteboard.h"
#include "app/platform/QtReachability.h"
#include "app/platform/QtRunLoop.h"
#include "app/platform/QtSettingsStore.h"
#include "app/platform/QtUrlOpener.h"
#include "app/platform/SilentAnalytics.h"
#include "app/push/QtPushService.h"
#include "core/platform/NotificationCenter.h"
#include "core/platform/Platform.h"
#include "core/shell/AppDelegate.h"
#include "core/shell/Configuration.h"
#include "core/shell/KRWindow.h"
#include "core/shell/OverlayHost.h"
#include "trading/api/TZStockInfoTool.h"
#include "ui/Look.h"

#include <QGuiApplication>
#include <QQmlApplicationEngine>

#include <cstdio>

namespace {
constexpr int cannotStart = 2;

int answer(const Answered &answered)
{
    std::fputs(qPrintable(answered.text), answered.status == 0 ? stdout : stderr);
    return answered.status;
}

QString problemText(SettingsProblem problem, const QString &path)
{
    switch (problem) {
    case SettingsProblem::None:
        return {};
    case SettingsProblem::Garbled:
        return QStringLiteral("zorvane: '%1' is not a settings file; move it away and start again\n").arg(path);
    case SettingsProblem::Unreadable:
    case SettingsProblem::Unwritable:
        break;
    }
    return QStringLiteral("zorvane: '%1' cannot be read and written; make it yours and start again\n").arg(path);
}

int run(QGuiApplication &qt, const Options &options)
{
    const QString settingsPath = options.dataDirectory + QStringLiteral("/settings");
    QtSettingsStore settings(settingsPath);
    if (const QString problem = problemText(settings.problem(), settingsPath); !problem.isEmpty())
        return answer({cannotStart, problem});

    QtApplicationInfo application(options.apiBaseUrl, options.dataDirectory);
    QtRunLoop runLoop;
    QtHttpTransport http(options.trust);
    QtReachability reachability(QUrl(options.apiBaseUrl));
    QtPasteboard pasteboard;
    QtUrlOpener urlOpener;
    DesktopShare share(pasteboard, urlOpener);
    MailFeedback feedback(urlOpener, Configuration::serviceMail, QStringLiteral("用户反馈"));
    SilentAnalytics analytics;
    NotificationCenter notifications;
    OverlayHost overlays;
#ifdef ZORVANE_DEVELOPER_OPTIONS
    QtPushService push(options.apiBaseUrl, options.trust);
#else
    QuietPushService push;
#endif
    const Platform platform{http,  settings, reachability, runLoop,     push,          pasteboard, urlOpener,
                            share, feedback, analytics,    application, notifications, overlays};
    Platform::install(&platform);

    KRWindow window;
    AppRouter router(window);
    AppDelegate shell(window, router, [] { TZStockInfoTool::getStockInfoWithParam({}, {}, {}); });
    shell.didFinishLaunchingWithOptions({});

    QQmlApplicationEngine engine;
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    engine.setInitialProperties({{QStringLiteral("window"), QVariant::fromValue(&window)},
                                 {QStringLiteral("overlays"), QVariant::fromValue(&overlays)}});
    engine.load(QUrl(QStringLiteral("qrc:/qt/qml/Zorvane/Ui/Main.qml")));
    return engine.rootObjects().isEmpty() ? cannotStart : qt.exec();
}
} // namespace

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments << QString::fromLocal8Bit(argv[index]);
    const auto line = readCommandLine(arguments);
    if (const auto *const answered = std::get_if<Answered>(&line))
        return answer(*answered);

    QGuiApplication::setApplicationName(QStringLiteral("zorvane"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Zorvane"));
    QGuiApplication::setApplicationVersion(QStringLiteral(ZORVANE_VERSION));
    QGuiApplication qt(argc, argv);
    installLook();
    return run(qt, std::get<Options>(line));
}
