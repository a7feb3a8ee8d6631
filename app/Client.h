#pragma once

#include "app/AppRouter.h"
#include "app/CommandLine.h"
#include "app/Views.h"
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
#include "core/shell/KRWindow.h"
#include "core/shell/OverlayHost.h"

#include <optional>

class QQuickWindow;

/// The client put together: the Qt platform, the shell, the window; torn down in the opposite order. One at a
/// time, with a QGuiApplication around it.
class Client {
public:
    explicit Client(Options startOptions);
    ~Client();
    Client(const Client &) = delete;
    Client &operator=(const Client &) = delete;

    /// What stands in the way of a start, as one line; empty when nothing does.
    QString problem() const;
    /// Starts the shell and shows the window; null when the views cannot be loaded.
    QQuickWindow *show();

private:
    const Options options;
    // Made first, gone first: it reads in the background, and shows what the others hold.
    std::optional<Views> views;
    const DeveloperTrust trust;
    QtSettingsStore settings;
    QtApplicationInfo application;
    QtRunLoop runLoop;
    QtHttpTransport http;
    QtReachability reachability;
    QtPasteboard pasteboard;
    QtUrlOpener urlOpener;
    DesktopShare share;
    MailFeedback feedback;
    SilentAnalytics analytics;
    NotificationCenter notifications;
    OverlayHost overlays;
#ifdef ZORVANE_DEVELOPER_OPTIONS
    QtPushService push;
#else
    QuietPushService push;
#endif
    const Platform platform;
    struct Installation {
        explicit Installation(const Platform &used) { Platform::install(&used); }
        ~Installation() { Platform::install(nullptr); }
    } installation{platform};
    KRWindow window;
    AppRouter router{window};
    AppDelegate shell;
};
