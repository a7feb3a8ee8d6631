#include "home/api/TZHomeTool.h"

#include "core/net/KRAFHTTPClient.h"
#include "core/net/ToolPolicy.h"
#include "core/platform/Platform.h"
#include "core/platform/SettingsStore.h"
#include "core/session/TZUserModel.h"
#include "core/util/PropertyList.h"
#include "core/util/Service.h"
#include "core/util/Text.h"
#include "home/api/TZSafeMoneySupplementModel.h"

namespace {
const QString isFirstLoginKey = QStringLiteral("isFirstLogin");

enum class Audience { Everyone, User };

/// One read: where it is stored, and what stands for it while nothing is.
struct Read {
    QString path;
    QString key;
    Audience audience = Audience::User;
    /// What is stored and handed on of a clean answer; empty: the whole.
    std::function<QVariantMap(const QVariantMap &)> keep;
};

SettingsStore &store()
{
    return Platform::current().settings;
}

QVariantMap stored(const Read &read)
{
    return read.key.isEmpty() ? QVariantMap() : ToolPolicy::stored(read.key);
}

QVariantMap storedOrBuiltIn(const Read &read)
{
    const QVariantMap copy = stored(read);
    if (read.audience == Audience::User || (boolValue(store().value(isFirstLoginKey)) && !copy.isEmpty()))
        return copy;
    return readPropertyListFile(QStringLiteral(":/resources/%1.plist").arg(read.key)).toMap();
}

void handOn(const QVariantMap &copy, const Success &success, const Operation &operation)
{
    if (!copy.isEmpty())
        success(operation, copy);
}

QVariantMap storeAnswer(const Read &read, const QVariantMap &answer)
{
    const QVariantMap clean = Service::processDictionaryIsNSNull(answer).toMap();
    if (read.key.isEmpty())
        return clean;
    const QVariantMap kept = read.keep ? read.keep(clean) : clean;
    store().setValue(read.key, kept);
    if (read.audience == Audience::Everyone)
        store().setValue(isFirstLoginKey, true);
    store().synchronize();
    return kept;
}

Operation run(const Read &read, const QVariantMap &param, const Success &success, const Failure &andError)
{
    if (!Service::isConnectionAvailable()) {
        handOn(storedOrBuiltIn(read), success, {});
        return {};
    }
    const QString token = TZUserModel::stored().api_token;
    const auto isForeign = [read, token] {
        return read.audience == Audience::User && TZUserModel::stored().api_token != token;
    };
    Service::showWaitingProgressView();
    return KRAFHTTPClient::get(
        ToolPolicy::url(read.path), param,
        Success::unowned([read, success, isForeign](const Operation &operation, const QVariantMap &answer) {
            const bool succeeded = ToolPolicy::succeeded(answer);
            if (succeeded)
                Service::hideWaitingProgressView();
            if (isForeign())
                return;
            if (!succeeded)
                return handOn(stored(read), success, operation);
            success(operation, storeAnswer(read, answer));
        }),
        Failure::unowned(
            [read, success, andError, isForeign](const Operation &operation, const RequestError &error) {
                if (!isForeign())
                    handOn(storedOrBuiltIn(read), success, operation);
                andError(operation, error);
            }));
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
    return run({QStringLiteral("userIndex"), QStringLiteral("UserIndex"), Audience::User, {}}, param, success,
               andError);
}

Operation TZHomeTool::getHomeLoanOverviewWithParam(const QVariantMap &param, Success success,
                                                   Failure andError)
{
    return run({QStringLiteral("loanOverview"), QStringLiteral("LoanOverview"), Audience::Everyone, {}},
               param, success, andError);
}

Operation TZHomeTool::getHomeRecentLoansWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return run({QStringLiteral("recentLoans"), QStringLiteral("RecentLoans"), Audience::Everyone, {}}, param,
               success, andError);
}

Operation TZHomeTool::getAddBailWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return run(
        {QStringLiteral("safeMoney2Supplement"), QStringLiteral("addBail"), Audience::User, supplementOf},
        param, success, andError);
}

Operation TZHomeTool::getWarnInfoWithParam(const QVariantMap &param, Success success, Failure andError)
{
    return run({QStringLiteral("warn"), {}, Audience::User, {}}, param, success, andError);
}
