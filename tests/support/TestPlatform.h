#pragma once

#include "core/platform/Analytics.h"
#include "core/platform/ApplicationInfo.h"
#include "core/platform/FeedbackService.h"
#include "core/platform/HttpTransport.h"
#include "core/platform/NotificationCenter.h"
#include "core/platform/Pasteboard.h"
#include "core/platform/Platform.h"
#include "core/platform/PushService.h"
#include "core/platform/Reachability.h"
#include "core/platform/RunLoop.h"
#include "core/platform/SettingsStore.h"
#include "core/platform/ShareService.h"
#include "core/platform/UrlOpener.h"
#include "core/shell/OverlayHost.h"

#include <QTemporaryDir>
#include <gtest/gtest.h>
#include <list>

/// Time that passes only when told.
class ManualRunLoop : public RunLoop {
public:
    ~ManualRunLoop() override;
    qint64 now() const override { return time; }
    std::unique_ptr<RunLoopTimer> start(std::chrono::milliseconds interval, Repeat repeat,
                                        std::function<void()> fire) override;
    /// Runs what falls due on the way, in its order.
    void advance(std::chrono::milliseconds by);
    int activeTimers() const { return static_cast<int>(timers.size()); }

    qint64 time = 1'700'000'000'000;

private:
    struct Handle;
    std::list<Handle *> timers;
};

/// A transport that records what is sent and answers when told, in any order.
class FakeTransport : public HttpTransport {
public:
    struct Sent {
        HttpRequest request;
        std::function<void(const HttpOutcome &)> done;
        bool answered = false;

        /// The path below the base URL without the query.
        QString path() const;
        /// The fields of the form body, or of the query for GET.
        QVariantMap fields() const;
        QByteArray header(const QByteArray &name) const;
    };

    void send(const HttpRequest &request, std::function<void(const HttpOutcome &)> done) override;

    int count() const { return static_cast<int>(sent.size()); }
    int countOf(const QString &path) const;
    Sent &last();
    /// The latest unanswered request to `path`; fails the test when there is none.
    Sent &pending(const QString &path);
    bool hasPending(const QString &path) const;

    void answer(Sent &which, const QVariantMap &json);
    void answer(const QString &path, const QVariantMap &json) { answer(pending(path), json); }
    void answerRaw(Sent &which, const HttpOutcome &outcome);
    void fail(const QString &path, HttpFailure failure) { answerRaw(pending(path), failure); }

    std::list<Sent> sent;
    /// The "Date" of answers from now on.
    qint64 date = 0;
};

class MemorySettings : public SettingsStore {
public:
    QVariant value(const QString &key) const override { return values.value(key); }
    void setValue(const QString &key, const QVariant &value) override { values.insert(key, value); }
    void remove(const QString &key) override { values.remove(key); }
    QStringList allKeys() const override { return values.keys(); }
    void synchronize() override { ++flushes; }

    QVariantMap values;
    int flushes = 0;
};

class FakeReachability : public Reachability {
public:
    void start(std::function<void(NetworkStatus)> report) override;
    NetworkStatus currentStatus() const override { return status; }
    void change(NetworkStatus now);

    NetworkStatus status = NetworkStatus::ReachableViaWiFi;
    int starts = 0;

private:
    std::function<void(NetworkStatus)> changed;
};

/// Stands for the outside kits, the pasteboard and the URL opener: writes down each call as one line, the
/// function's name and its texts: "setAlias t0ken api_token". The three kinds of `start` read "startPush
/// KEY", "startKit KEY" (share and feedback) and "startAnalytics KEY POLICY CHANNEL".
class RecordingKits : public PushService,
                      public Pasteboard,
                      public UrlOpener,
                      public ShareService,
                      public FeedbackService,
                      public Analytics {
public:
    void start(const QString &applicationKey, const QVariantMap &) override
    {
        note("startPush", applicationKey);
    }
    void setLogEnabled(bool enabled) override { note("setLogEnabled", int{enabled}); }
    void registerForTypes(int types, const QList<PushCategory> &asked) override
    {
        categories = asked;
        note("registerForTypes", types);
    }
    void registerDeviceToken(const QByteArray &token) override { note("registerDeviceToken", token); }
    void setAlias(const QString &alias, const QString &type) override
    {
        if (onAlias)
            onAlias(alias);
        note("setAlias", alias, type);
    }
    void didReceiveRemoteNotification(const QVariantMap &) override { note("didReceiveRemoteNotification"); }
    void onRemoteNotification(std::function<void(const QVariantMap &)> receive) override
    {
        push = std::move(receive);
    }

    void setText(const QString &text) override { note("setText", text); }
    bool open(const QString &url) override
    {
        note("open", url);
        return opens;
    }

    void start(const QString &applicationKey) override { note("startKit", applicationKey); }
    void hideTargetsNotInstalled() override { note("hideTargetsNotInstalled"); }
    void registerTarget(const ShareTarget &target) override { note("registerTarget", target.name); }
    void share(const ShareContent &content) override
    {
        shared = content;
        note("share", content.title);
    }
    bool handleOpenUrl(const QString &url) override
    {
        note("handleOpenUrl", url);
        return false;
    }
    void show() override { note("show"); }

    void start(const QString &applicationKey, int reportPolicy, const QString &channel) override
    {
        note("startAnalytics", applicationKey, reportPolicy, channel);
    }
    void checkUpdate() override { note("checkUpdate"); }
    void beginLogPageView(const QString &page) override { note("beginLogPageView", page); }
    void endLogPageView(const QString &page) override { note("endLogPageView", page); }

    QStringList calls;
    /// Whether there is something that opens URLs.
    bool opens = true;
    std::function<void(const QString &alias)> onAlias;
    QList<PushCategory> categories;
    ShareContent shared;
    std::function<void(const QVariantMap &)> push;

private:
    template <typename... Texts> void note(const char *function, const Texts &...texts)
    {
        calls.append((QStringList{function} << ... << QVariant(texts).toString()).join(u' '));
    }
};

class FakeApplication : public ApplicationInfo {
public:
    QString buildVersion() const override { return version; }
    QString apiBaseUrl() const override { return QStringLiteral("https://service.test/"); }
    QString documentsDirectory() const override { return directory.path(); }
    double systemVersion() const override { return system; }

    QString version = QStringLiteral("100");
    double system = 16.0;
    QTemporaryDir directory;
};

/// A test with a platform of fakes, installed while it runs, with a network and nobody signed in.
class PlatformTest : public testing::Test {
protected:
    PlatformTest();
    ~PlatformTest() override;

    /// Puts a signed-in user with the token "t0ken" into the settings.
    void signIn();
    /// The texts of the banners shown now, the oldest first.
    QStringList banners() const;
    /// Runs what was put off to the main loop (deleteLater).
    static void settle();

    ManualRunLoop runLoop;
    FakeTransport http;
    MemorySettings settings;
    FakeReachability reachability;
    RecordingKits kits;
    FakeApplication application;
    NotificationCenter notifications;
    OverlayHost overlays;

private:
    Platform platform;
    struct Install {
        explicit Install(const Platform *platform) { Platform::install(platform); }
        ~Install() { Platform::install(nullptr); }
    } install{&platform};
};

/// {"success": true, "data": data}
QVariantMap succeeded(const QVariant &data = QVariantMap());
/// {"success": false, "message": message}
QVariantMap refused(const QString &message);
