#include "home/api/TZMessageTool.h"

#include "core/net/KRAFHTTPClient.h"
#include "core/net/ToolPolicy.h"
#include "core/util/Service.h"
#include "core/util/Text.h"
#include "home/api/StoredRead.h"

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
    const StoredRead count{.path = QStringLiteral("msg/count"),
                           .key = QStringLiteral("MessageUnReadCount"),
                           .shape = ToolPolicy::isScalar};
    return count.send({}, success, andError);
}
