#include "home/screens/TZMessageDetailController.h"

#include "core/platform/Platform.h"
#include "core/platform/ShareService.h"
#include "core/shell/KRNavigationController.h"
#include "core/util/Service.h"
#include "home/api/TZMessageTool.h"

#include <algorithm>

TZMessageDetailController::TZMessageDetailController(Router &appRouter, TZMessageModel message, QString from)
    : router(appRouter), model(std::move(message)), fromController(std::move(from))
{
}

QString TZMessageDetailController::time() const
{
    const QString &date = model.sendDate;
    const bool isStamp =
        !date.isEmpty() && std::all_of(date.begin(), date.end(), [](QChar c) { return c.isDigit(); });
    return isStamp ? Service::formatDateStamp(date) : date;
}

bool TZMessageDetailController::shareable() const
{
    return !Service::whetherAnEmptyString(model.shareTitle) || !Service::whetherAnEmptyString(model.shareUrl);
}

void TZMessageDetailController::viewDidLoad()
{
    KRBaseController::viewDidLoad();
    setTitle(QStringLiteral("消息详情"));
    changeGrayBgColor();
    if (isRemote())
        createNavLeftItemWithTitle({}, {}, {}, QStringLiteral("common_close_gray"));
    else
        setShowBackButton(true);
    markMessageRead();
}

void TZMessageDetailController::rightItemClick()
{
    if (isRemote() && navigationController())
        navigationController()->dismiss();
}

void TZMessageDetailController::backButtonClicked()
{
    if (isRemote())
        rightItemClick();
    else
        KRBaseController::backButtonClicked();
}

void TZMessageDetailController::backToHome()
{
    router.showHome(*this);
    if (isRemote())
        navigationController()->dismiss();
}

void TZMessageDetailController::shareBtnClick()
{
    Platform::current().share.share(
        {model.shareDescription, model.shareTitle, model.shareImg, model.shareUrl});
}

void TZMessageDetailController::markMessageRead()
{
    TZMessageTool::putMarkReadMessagesWithParam({{QStringLiteral("ID"), model.id}}, Success{}, Failure{});
}
