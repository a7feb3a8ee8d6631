#include "core/session/TZUserTool.h"

#include "core/net/ToolPolicy.h"
#include "core/platform/NotificationCenter.h"
#include "core/platform/Platform.h"
#include "core/platform/PushService.h"
#include "core/platform/SettingsStore.h"
#include "core/session/NotificationNames.h"
#include "core/session/SettingsKeys.h"
#include "core/session/TZUserModel.h"
#include "core/util/Service.h"
#include "core/util/Text.h"

using ToolPolicy::Hand;

namespace {

const QString commissionKey = QStringLiteral("commission");
const QString commissionDetailKey = QStringLiteral("commission_detail");

QString userUrl(const QString &operation)
{
    return ToolPolicy::url(QStringLiteral("user/") + operation);
}

Operation postToUser(const QString &operation, const QVariantMap &param, Success success, Failure andError)
{
    Service::showWaitingProgressView();
    return KRAFHTTPClient::post(userUrl(operation), param, std::move(success), std::move(andError));
}

Operation getGated(const QString &url, const QVariantMap &param, Success success, Failure andError)
{
    Service::showWaitingProgressView();
    return KRAFHTTPClient::get(url, param, ToolPolicy::gated(std::move(success)), std::move(andError));
}

Operation getCommissionList(const QString &key, const QVariantMap &param, Success success, Failure andError)
{
    if (ToolPolicy::answersOffline(key, success))
        return nullptr;
    Service::showWaitingProgressView();
    return KRAFHTTPClient::get(ToolPolicy::url(QStringLiteral("commissions")), param,
                               ToolPolicy::cached(key, std::move(success), Hand::Cleaned),
                               std::move(andError));
}

void store(const TZUserModel &user)
{
    SettingsStore &settings = Platform::current().settings;
    settings.setValue(SettingsKeys::user, toDictionary(user));
    settings.synchronize();
    Platform::current().notifications.post(NotificationNames::userChanged);
}

/// The number of the latest "verify".
quint64 latestSignIn = 0;

void signIn(const QVariantMap &answer)
{
    const QVariantMap cleaned = Service::processDictionaryIsNSNull(answer).toMap();
    const auto user = fromDictionary<TZUserModel>(cleaned.value(QStringLiteral("data")));
    if (!Service::whetherAnEmptyString(user.api_token))
        Platform::current().push.setAlias(user.api_token, QStringLiteral("api_token"));
    store(user);
}

/// Changes the stored user, unless it is no longer the one that `token` was read from.
void changeStored(const QString &token, const std::function<void(TZUserModel &)> &change)
{
    if (!Platform::current().settings.value(SettingsKeys::user).isValid())
        return;
    TZUserModel user = TZUserModel::stored();
    if (user.api_token != token)
        return;
    change(user);
    store(user);
}

} // namespace

Operation TZUserTool::checkCellWithCell(const QString &cell, Success success, Failure andError)
{
    auto done = [success = std::move(success)](const Operation &operation, const QVariantMap &answer) {
        if (ToolPolicy::succeeded(answer))
            Service::hideWaitingProgressView();
        success(operation, answer);
    };
    return postToUser(QStringLiteral("start"), {{QStringLiteral("cell"), cell}},
                      Success::unowned(std::move(done)), std::move(andError));
}

Operation TZUserTool::verifyCodeWithParam(const QVariantMap &param, Success success, Failure andError)
{
    auto done = [token = TZUserModel::stored().api_token,
                 success = std::move(success)](const Operation &operation, const QVariantMap &answer) {
        const bool givenUp = !success.isWanted() || operation->number != latestSignIn;
        if (givenUp || TZUserModel::stored().api_token != token)
            return;
        signIn(answer);
        success(operation, answer);
    };
    Operation operation =
        postToUser(QStringLiteral("verify"), param, ToolPolicy::gated(Success::unowned(std::move(done))),
                   std::move(andError));
    latestSignIn = operation->number;
    return operation;
}

Operation TZUserTool::uploadPhotoWithParam(const QVariantMap &param,
                                           const ConstructBody &constructingBodyWithBlock, Success success,
                                           Failure andError)
{
    Service::showWaitingProgressView();
    return KRAFHTTPClient::POST(ToolPolicy::url(QStringLiteral("image/") + QStringLiteral("upload")), param,
                                constructingBodyWithBlock, ToolPolicy::gated(std::move(success)),
                                std::move(andError));
}

Operation TZUserTool::setNickWithParam(const QVariantMap &param, Success success, Failure andError)
{
    auto done = [token = TZUserModel::stored().api_token,
                 nick = textForm(param.value(QStringLiteral("nick"))),
                 success = std::move(success)](const Operation &operation, const QVariantMap &answer) {
        changeStored(token, [&nick](TZUserModel &user) { user.nick = nick; });
        success(operation, answer);
    };
    return postToUser(QStringLiteral("set_nick"), param, ToolPolicy::gated(Success::unowned(std::move(done))),
                      std::move(andError));
}

Operation TZUserTool::setRealNameWithParam(const QVariantMap &param, Success success, Failure andError)
{
    auto done = [token = TZUserModel::stored().api_token,
                 success = std::move(success)](const Operation &operation, const QVariantMap &answer) {
        success(operation, answer);
        // Kept on purpose: a refusal carries no name and empties the stored one.
        const QVariantMap data = answer.value(QStringLiteral("data")).toMap();
        const QString name = textForm(data.value(QStringLiteral("name")));
        changeStored(token, [&name](TZUserModel &user) { user.name = name; });
    };
    return postToUser(QStringLiteral("set_real_name"), param,
                      ToolPolicy::passed(Success::unowned(std::move(done))), std::move(andError));
}

Operation TZUserTool::bindCardWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return postToUser(QStringLiteral("bind_card"), param, ToolPolicy::gated(std::move(success)),
                      std::move(andError));
}

Operation TZUserTool::bindCardVerifyWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return postToUser(QStringLiteral("verify_bind"), param, ToolPolicy::gated(std::move(success)),
                      std::move(andError));
}

Operation TZUserTool::getBankcardListWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return getGated(ToolPolicy::url(QStringLiteral("index/") + QStringLiteral("bank_list")), param,
                    std::move(success), std::move(andError));
}

Operation TZUserTool::setTradePwdWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return postToUser(QStringLiteral("set_password"), param, ToolPolicy::gated(std::move(success)),
                      std::move(andError));
}

Operation TZUserTool::updatePwdToSendSMSWithParam(const QVariantMap &, Success success, Failure andError)
{
    return postToUser(QStringLiteral("update_password_sms"), {}, ToolPolicy::gated(std::move(success)),
                      std::move(andError));
}

Operation TZUserTool::updatePwdToVerifyCodeWithParam(const QVariantMap &param, Success success,
                                                     Failure andError)
{
    return postToUser(QStringLiteral("update_verify"), param, ToolPolicy::gated(std::move(success)),
                      std::move(andError));
}

Operation TZUserTool::updatePwdToVerifyIDWithParam(const QVariantMap &param, Success success,
                                                   Failure andError)
{
    return postToUser(QStringLiteral("verify_id_card"), param, ToolPolicy::gated(std::move(success)),
                      std::move(andError));
}

Operation TZUserTool::updatePwdWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return postToUser(QStringLiteral("update_password"), param, ToolPolicy::gated(std::move(success)),
                      std::move(andError));
}

Operation TZUserTool::canUpdataPasswordWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return getGated(userUrl(QStringLiteral("can_update_password")), param, std::move(success),
                    std::move(andError));
}

Operation TZUserTool::getWalletRecordsWithParam(const QVariantMap &param, Success success, Failure andError)
{
    // Kept on purpose: the page stands in the address and goes out among the parameters as well.
    const QString page = textForm(param.value(QStringLiteral("page")));
    return getGated(ToolPolicy::url(QStringLiteral("walletRecords?page=") + page), param, std::move(success),
                    std::move(andError));
}

Operation TZUserTool::getCommissionsWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return getCommissionList(commissionKey, param, std::move(success), std::move(andError));
}

Operation TZUserTool::getCommissionsDetailsWithParam(const QVariantMap &param, Success success,
                                                     Failure andError)
{
    return getCommissionList(commissionDetailKey, param, std::move(success), std::move(andError));
}
