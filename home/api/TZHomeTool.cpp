#include "home/api/TZHomeTool.h"

#include "core/util/Service.h"
#include "core/util/Text.h"
#include "home/api/StoredRead.h"
#include "home/api/TZSafeMoneySupplementModel.h"

namespace {
using Audience = StoredRead::Audience;

Operation run(const StoredRead &read, const QVariantMap &param, const Success &success,
              const Failure &andError)
{
    if (Service::isConnectionAvailable())
        return read.send(param, success, andError);
    read.answerWithout({}, success);
    return {};
}

QVariantMap supplementOf(const QVariantMap &answer)
{
    const QVariant data = answer.value(QStringLiteral("data"));
    QVariantList assets;
    for (const auto &asset :
         fromArray<TZSafeMoneySupplementAssetModel>(data.toMap().value(QStringLiteral("closeList"))))
        assets.append(toDictionary(asset));
    return {{QStringLiteral("safeMoneySupplement"),
             toDictionary(fromDictionary<TZSafeMoneySupplementModel>(data))},
            {QStringLiteral("safeMoneySupplementAsset"), assets}};
}
} // namespace

Operation TZHomeTool::getHomeInfoWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return run({.path = QStringLiteral("userIndex"), .key = QStringLiteral("UserIndex")}, param, success,
               andError);
}

Operation TZHomeTool::getHomeLoanOverviewWithParam(const QVariantMap &param, Success success,
                                                   Failure andError)
{
    return run({.path = QStringLiteral("loanOverview"),
                .key = QStringLiteral("LoanOverview"),
                .audience = Audience::Everyone},
               param, success, andError);
}

Operation TZHomeTool::getHomeRecentLoansWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return run({.path = QStringLiteral("recentLoans"),
                .key = QStringLiteral("RecentLoans"),
                .audience = Audience::Everyone,
                .shape = ToolPolicy::isList},
               param, success, andError);
}

Operation TZHomeTool::getAddBailWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return run({.path = QStringLiteral("safeMoney2Supplement"),
                .key = QStringLiteral("addBail"),
                .keep = supplementOf},
               param, success, andError);
}

Operation TZHomeTool::getWarnInfoWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return run({.path = QStringLiteral("warn")}, param, success, andError);
}
