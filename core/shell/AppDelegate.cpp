#include "core/shell/AppDelegate.h"

#include "core/platform/Analytics.h"
#include "core/platform/ApplicationInfo.h"
#include "core/platform/FeedbackService.h"
#include "core/platform/NotificationCenter.h"
#include "core/platform/Platform.h"
#include "core/platform/PushService.h"
#include "core/platform/Reachability.h"
#include "core/platform/SettingsStore.h"
#include "core/platform/ShareService.h"
#include "core/session/NotificationNames.h"
#include "core/session/SettingsKeys.h"
#include "core/session/TZUserModel.h"
#include "core/shell/Configuration.h"
#include "core/shell/KRWindow.h"
#include "core/shell/Router.h"
#include "core/util/Service.h"
#include "core/util/Text.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QPointer>
#include <optional>

const QString AppDelegate::remoteNotificationKey = QStringLiteral("remoteNotification");

namespace {
constexpr int reportPolicy = 1;
constexpr int alertBadgeAndSound = 7;

PushCategory category1()
{
    const PushAction accept{QStringLiteral("action1_identifier"), QStringLiteral("Accept"), true, false,
                            false};
    const PushAction reject{QStringLiteral("action2_identifier"), QStringLiteral("Reject"), false, true,
                            true};
    return {QStringLiteral("category1"), {accept, reject}};
}

std::optional<QVariantMap> dictionaryOf(const QVariant &information)
{
    if (information.typeId() == QMetaType::QVariantMap)
        return information.toMap();
    if (information.typeId() != QMetaType::QString)
        return std::nullopt;
    const QJsonDocument document = QJsonDocument::fromJson(information.toString().toUtf8());
    return document.isObject() ? std::optional(document.object().toVariantMap()) : std::nullopt;
}
} // namespace

AppDelegate::AppDelegate(KRWindow &mainWindow, Router &appRouter, std::function<void()> stockTableRefresh)
    : window(mainWindow), router(appRouter), refreshStockTable(std::move(stockTableRefresh))
{
    // Also for a frame that somebody else builds anew, as signing out does.
    connect(&window, &KRWindow::rootChanged, this, [this] {
        if (KRSideMenu *const frame = window.sideMenu())
            frame->setDelegate(*this);
    });
}

void AppDelegate::didFinishLaunchingWithOptions(const QVariantMap &launchOptions)
{
    const Platform &platform = Platform::current();
    window.makeKeyAndVisible();
    initWithUMeng();
    showLaunchController();
    reachability();
    if (Service::isConnectionAvailable())
        getStockInfoRequest();
    showGuideController();
    startPush(launchOptions);
    registerAlias();
    // Kept on purpose: nobody observes yet, so the message that started the client opens nothing.
    if (launchOptions.contains(remoteNotificationKey))
        postRemoteNotification(launchOptions.value(remoteNotificationKey).toMap());
    platform.settings.setValue(SettingsKeys::needTradePwd, true);
    platform.settings.synchronize();
    platform.notifications.observe(this, NotificationNames::remoteMsg, [this](const QVariant &information) {
        toMsgDetailController(information);
    });
    platform.notifications.observe(this, NotificationNames::remoteStock, [this](const QVariant &information) {
        toStockDetailController(information);
    });
}

void AppDelegate::initWithUMeng()
{
    const Platform &platform = Platform::current();
    platform.share.start(Configuration::umengKey);
    platform.feedback.start(Configuration::umengKey);
    platform.analytics.start(Configuration::umengKey, reportPolicy, QString());
    platform.analytics.checkUpdate();
    platform.share.hideTargetsNotInstalled();
    for (const ShareTarget &target : Configuration::shareTargets)
        platform.share.registerTarget(target);
}

void AppDelegate::showLaunchController() {}

void AppDelegate::reachability()
{
    NotificationCenter &notifications = Platform::current().notifications;
    notifications.observe(this, NotificationNames::reachabilityChanged,
                          [this](const QVariant &status) { reachabilityChanged(status); });
    hostReach = &Platform::current().reachability;
    hostReach->start([&notifications](NetworkStatus status) {
        notifications.post(NotificationNames::reachabilityChanged, QVariant::fromValue(status));
    });
    updateInterfaceWithReachability(hostReach->currentStatus());
}

void AppDelegate::reachabilityChanged(const QVariant &status)
{
    updateInterfaceWithReachability(status.value<NetworkStatus>());
}

void AppDelegate::updateInterfaceWithReachability(NetworkStatus status)
{
    isReachable = status != NetworkStatus::NotReachable;
    if (!isReachable)
        Service::showNotReachableView();
    Platform::current().settings.setValue(SettingsKeys::networkStatus, isReachable);
}

void AppDelegate::getStockInfoRequest()
{
    refreshStockTable();
}

void AppDelegate::showGuideController()
{
    const Platform &platform = Platform::current();
    const QString version = platform.application.buildVersion();
    if (platform.settings.value(SettingsKeys::bundleVersion).toString() == version) {
        setupSideMenuController();
        return;
    }
    window.setRoot(std::make_unique<TZGuideController>(*this));
    platform.settings.setValue(SettingsKeys::bundleVersion, version);
}

void AppDelegate::setupSideMenuController()
{
    router.setupSideMenuController();
}

void AppDelegate::clickRemoveGuideViewBtn()
{
    setupSideMenuController();
}

void AppDelegate::willShowMenu()
{
    window.endEditing();
}

void AppDelegate::startPush(const QVariantMap &launchOptions)
{
    const Platform &platform = Platform::current();
    platform.push.onRemoteNotification([shell = QPointer(this)](const QVariantMap &payload) {
        if (shell)
            shell->didReceiveRemoteNotification(payload);
    });
    platform.push.start(Configuration::pushKey, launchOptions);
    const bool hasCategories = platform.application.systemVersion() >= 8.0;
    platform.push.registerForTypes(alertBadgeAndSound,
                                   hasCategories ? QList{category1()} : QList<PushCategory>());
    platform.push.setLogEnabled(true);
}

void AppDelegate::registerAlias()
{
    const Platform &platform = Platform::current();
    if (!platform.settings.value(SettingsKeys::user).isValid())
        return;
    const QString token = TZUserModel::stored().api_token;
    platform.push.setAlias(Service::whetherAnEmptyString(token) ? QStringLiteral("off_line") : token,
                           QStringLiteral("api_token"));
}

void AppDelegate::didRegisterForRemoteNotificationsWithDeviceToken(const QByteArray &token)
{
    Platform::current().push.registerDeviceToken(token);
}

void AppDelegate::didReceiveRemoteNotification(const QVariantMap &payload)
{
    Platform::current().push.didReceiveRemoteNotification(payload);
    postRemoteNotification(payload);
}

void AppDelegate::postRemoteNotification(const QVariantMap &payload)
{
    NotificationCenter &notifications = Platform::current().notifications;
    const QVariant information = payload.value(QStringLiteral("data"));
    switch (integerValue(payload.value(QStringLiteral("pageId")))) {
    case 2:
        notifications.post(NotificationNames::remoteMsg, information);
        break;
    case 3:
        notifications.post(NotificationNames::remoteStock, information);
        break;
    default:
        break;
    }
}

void AppDelegate::toMsgDetailController(const QVariant &information)
{
    if (const std::optional<QVariantMap> message = dictionaryOf(information))
        router.presentMessageDetail(*message);
}

void AppDelegate::toStockDetailController(const QVariant &information)
{
    if (const std::optional<QVariantMap> entrust = dictionaryOf(information))
        router.presentOrderDetail(*entrust);
}

bool AppDelegate::openURL(const QString &url)
{
    return Platform::current().share.handleOpenUrl(url);
}

bool AppDelegate::handleOpenURL(const QString &url)
{
    return Platform::current().share.handleOpenUrl(url);
}
