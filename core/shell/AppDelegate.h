#pragma once

#include "core/shell/KRSideMenu.h"
#include "core/shell/TZGuideController.h"

#include <QObject>
#include <QVariantMap>
#include <functional>

class KRWindow;
class Reachability;
class Router;
enum class NetworkStatus;

/// Starts the client, decides its first screen, keeps the last known network state and opens what pushed
/// messages name. Callbacks of the system are named after the second piece of their selector, the first being
/// "application" for all.
///
/// A pushed message is {"pageId": whole number, "data": dictionary, or JSON text of one}. 2 opens the message
/// detail, 3 the order detail, any other nothing.
class AppDelegate : public QObject, public TZGuideControllerDelegate, public KRSideMenuDelegate {
    Q_OBJECT
public:
    /// The key of a pushed message in the launch options.
    static const QString remoteNotificationKey;

    /// `stockTableRefresh` asks the server for a newer stock table. All outlive this object.
    AppDelegate(KRWindow &window, Router &router, std::function<void()> stockTableRefresh);

    /// The start-up, in an order that others rely on.
    void didFinishLaunchingWithOptions(const QVariantMap &launchOptions);
    void initWithUMeng();
    /// Kept on purpose: does nothing.
    void showLaunchController();
    void reachability();
    /// `status`: a NetworkStatus.
    void reachabilityChanged(const QVariant &status);
    void updateInterfaceWithReachability(NetworkStatus status);
    void getStockInfoRequest();
    /// The guide, once for each build version; otherwise the main frame.
    void showGuideController();
    void setupSideMenuController();
    void clickRemoveGuideViewBtn() override;
    /// Ends editing.
    void willShowMenu() override;

    void didRegisterForRemoteNotificationsWithDeviceToken(const QByteArray &token);
    /// A message that arrives while the client runs.
    void didReceiveRemoteNotification(const QVariantMap &payload);
    /// `information`: a message's "data". What is neither a dictionary nor a text of one opens nothing.
    void toMsgDetailController(const QVariant &information);
    void toStockDetailController(const QVariant &information);

    /// True when the URL was one of the share service's.
    bool openURL(const QString &url);
    bool handleOpenURL(const QString &url);

    bool isReachable = false;
    /// Kept on purpose: declared, and not used by the start-up.
    bool isLaunchedByNotification = false;

private:
    void startPush(const QVariantMap &launchOptions);
    void registerAlias();
    void postRemoteNotification(const QVariantMap &payload);

    KRWindow &window;
    Router &router;
    std::function<void()> refreshStockTable;
    Reachability *hostReach = nullptr;
};
