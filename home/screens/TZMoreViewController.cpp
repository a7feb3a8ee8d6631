#include "home/screens/TZMoreViewController.h"

#include "core/platform/FeedbackService.h"
#include "core/platform/Platform.h"
#include "core/platform/ShareService.h"
#include "core/platform/UrlOpener.h"
#include "core/shell/Configuration.h"
#include "core/shell/KRWindow.h"
#include "core/shell/TZInfoAlertView.h"
#include "core/util/Service.h"

namespace {
enum Row { Comment, Phone, Feedback, Recommend };

void openOutside(const QString &url)
{
    if (!Platform::current().urlOpener.open(url))
        Service::showErrorWithMsg(QStringLiteral("没有可以打开的应用"));
}

void recommend()
{
    Platform::current().share.share(
        {QStringLiteral("推荐#Zorvane#炒股，配资＋炒股一站式解决，一份资金四倍收益，佣金低至万三。"),
         QStringLiteral("Zorvane--一站式杠杆炒股"), QStringLiteral("common_logo"), Configuration::webSite});
}
} // namespace

TZMoreViewController::TZMoreViewController(Router &appRouter) : router(appRouter) {}

void TZMoreViewController::viewDidLoad()
{
    TZBaseTableViewController::viewDidLoad();
    changeGrayBgColor();
    setTitle(QStringLiteral("更多"));
    setShowBackButton(true);
    rows.setRows({{QStringLiteral("给我们评分"), QStringLiteral("more_comment")},
                  {QStringLiteral("客服电话"), QStringLiteral("more_phone")},
                  {QStringLiteral("用户反馈"), QStringLiteral("more_react")},
                  {QStringLiteral("推荐给朋友"), QStringLiteral("more_share")}});
}

void TZMoreViewController::didSelectRow(int row)
{
    switch (row) {
    case Comment:
        return openOutside(
            QStringLiteral("itms-apps://itunes.apple.com/app/i%1").arg(Configuration::storeIdentifier));
    case Phone:
        return showAlert(AlertTag::Phone,
                         {QStringLiteral("联系客服"),
                          QStringLiteral("客服电话：%1 \n每天9:00-18:00").arg(Configuration::servicePhone),
                          QStringLiteral("取消"), QStringLiteral("呼叫")});
    case Feedback:
        return Platform::current().feedback.show();
    case Recommend:
        return recommend();
    default:
        return;
    }
}

void TZMoreViewController::setPalette(int palette)
{
    DisplaySettings display = DisplaySettings::stored();
    display.palette = static_cast<DisplaySettings::Palette>(palette);
    store(display);
}

void TZMoreViewController::setTrendColours(int trendColours)
{
    DisplaySettings display = DisplaySettings::stored();
    display.trendColours = static_cast<DisplaySettings::TrendColours>(trendColours);
    store(display);
}

void TZMoreViewController::setTextSize(int textSize)
{
    DisplaySettings display = DisplaySettings::stored();
    display.textSize = static_cast<DisplaySettings::TextSize>(textSize);
    store(display);
}

void TZMoreViewController::store(const DisplaySettings &display)
{
    display.store();
    Q_EMIT displayChanged();
}

void TZMoreViewController::clickLogoutBtn()
{
    showAlert(AlertTag::Logout, {QStringLiteral("提示"), QStringLiteral("确定要退出当前账号？"),
                                 QStringLiteral("取消"), QStringLiteral("确定")});
}

void TZMoreViewController::showAlert(AlertTag tag, const TZInfoAlertViewModel &model)
{
    window()->show(std::make_unique<TZInfoAlertView>(
        model, OwnedAction(), OwnedAction(this, [this, tag] { alertConfirmed(tag); })));
}

void TZMoreViewController::alertConfirmed(AlertTag tag)
{
    switch (tag) {
    case AlertTag::Phone:
        return openOutside(QStringLiteral("tel://%1").arg(Configuration::servicePhone));
    case AlertTag::Logout:
        return logout();
    }
}

void TZMoreViewController::logout()
{
    const DisplaySettings display = DisplaySettings::stored();
    Service::logout();
    // How the device shows the client is nothing of the user's.
    display.store();
    setupSideMenuController();
}

void TZMoreViewController::setupSideMenuController()
{
    router.setupSideMenuController();
}
