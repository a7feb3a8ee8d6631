#pragma once

class Analytics;
class ApplicationInfo;
class FeedbackService;
class HttpTransport;
class NotificationCenter;
class Overlays;
class Pasteboard;
class PushService;
class Reachability;
class RunLoop;
class SettingsStore;
class ShareService;
class UrlOpener;

/// What the client needs of the platform below it. The service's tools are stateless classes of static
/// functions, so this is the one process-wide access point: installed once by `main`, and by each test.
struct Platform {
    HttpTransport &http;
    SettingsStore &settings;
    Reachability &reachability;
    RunLoop &runLoop;
    PushService &push;
    Pasteboard &pasteboard;
    UrlOpener &urlOpener;
    ShareService &share;
    FeedbackService &feedback;
    Analytics &analytics;
    ApplicationInfo &application;
    NotificationCenter &notifications;
    Overlays &overlays;

    static const Platform &current();
    /// `platform` must outlive its use; null uninstalls.
    static void install(const Platform *platform);
};
