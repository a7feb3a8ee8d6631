#include "account/screens/TZCheckCellController.h"

#include "account/screens/TZLoginController.h"
#include "account/screens/TZRegisterController.h"
#include "core/session/TZUserTool.h"
#include "core/util/Service.h"

TZCheckCellController::TZCheckCellController(Router &appRouter) : router(appRouter) {}

void TZCheckCellController::setCell(const QString &cell)
{
    number = cell;
    Q_EMIT cellChanged();
}

bool TZCheckCellController::nextStepLit() const
{
    return Service::determineThePhoneNumberFormat(number);
}

void TZCheckCellController::viewDidLoad()
{
    TZFormController::viewDidLoad();
    setTitle(QStringLiteral("手机登录"));
    createNavLeftItemWithTitle({}, QStringLiteral("common_close_gray"), {}, {});
}

void TZCheckCellController::leftItemClick()
{
    closeSignIn(*this);
}

void TZCheckCellController::clickNextStepBtn()
{
    if (isSending())
        return;
    if (Service::whetherAnEmptyString(number))
        return Service::showErrorWithMsg(QStringLiteral("请输入手机号"));
    if (!Service::determineThePhoneNumberFormat(number))
        return Service::showErrorWithMsg(QStringLiteral("手机号格式不正确，请重新输入"));
    const auto started = [this, cell = number](const Operation &, const QVariantMap &answer) {
        openNextStep(cell, answer);
    };
    waitFor(TZUserTool::checkCellWithCell(number, Success{this, started}, Failure{}));
}

void TZCheckCellController::openNextStep(const QString &cell, const QVariantMap &answer)
{
    const bool sent = TZSmsCodeController::wasSent(answer);
    const QString bizCode = TZSmsCodeController::bizCodeOf(answer);
    std::unique_ptr<TZSignInCodeController> next;
    if (sent && bizCode == u"1001")
        next = std::make_unique<TZRegisterController>(router);
    else if (sent && bizCode == u"1002")
        next = std::make_unique<TZLoginController>();
    if (!next) {
        TZSmsCodeController::sayIfSilent(answer);
        return;
    }
    next->requestData = {{QStringLiteral("bizCode"), bizCode}, {QStringLiteral("cell"), cell}};
    next->setToSomeController(toSomeController);
    pushNext(std::move(next));
}
