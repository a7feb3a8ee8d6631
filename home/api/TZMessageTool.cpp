#include "home/api/TZMessageTool.h"

#include "core/net/KRAFHTTPClient.h"
#include "core/net/ToolPolicy.h"
#include "core/platform/Platform.h"
#include "core/platform/SettingsStore.h"
#include "core/session/TZUserModel.h"
#include "core/util/Service.h"
#include "core/util/Text.h"

namespace {
const QString unreadCountKey = QStringLiteral("MessageUnReadCount");
} // namespace

Operation TZMessageTool::putMarkReadMessagesWithParam(const QVariantMap &param, Success success,
                                                      Failure andError)
{
    Service::showWaitingProgressView();
    return KRAFHTTPClient::put(
        ToolPolicy::url(QStringLiteral("msg/mark?msgId=%1").arg(textForm(param.value(QStringLiteral("ID"))))),
        {}, ToolPolicy::gated(success), andError);
}

Operation TZMessageTool::getUnReadMessagesSuccess(Success success, Failure andError)
{
    const QString token = TZUserModel::stored().api_token;
    const auto isForeign = [token] { return TZUserModel::stored().api_token != token; };
    const auto answerFromCopy = [success](const Operation &operation) {
        const QVariantMap copy = ToolPolicy::stored(unreadCountKey);
        if (!copy.isEmpty())
            success(operation, copy);
    };
    Service::showWaitingProgressView();
    return KRAFHTTPClient::get(
        ToolPolicy::url(QStringLiteral("msg/count")), {},
        Success::unowned(
            [success, answerFromCopy, isForeign](const Operation &operation, const QVariantMap &answer) {
                const bool succeeded = ToolPolicy::succeeded(answer);
                if (succeeded)
                    Service::hideWaitingProgressView();
                if (isForeign())
                    return;
                if (!succeeded)
                    return answerFromCopy(operation);
                const QVariantMap clean = Service::processDictionaryIsNSNull(answer).toMap();
                Platform::current().settings.setValue(unreadCountKey, clean);
                Platform::current().settings.synchronize();
                success(operation, clean);
            }),
        Failure::unowned(
            [answerFromCopy, andError, isForeign](const Operation &operation, const RequestError &error) {
                if (!isForeign())
                    answerFromCopy(operation);
                andError(operation, error);
            }));
}
