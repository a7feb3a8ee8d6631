#include "home/api/StoredRead.h"

#include "core/net/KRAFHTTPClient.h"
#include "core/platform/Platform.h"
#include "core/platform/SettingsStore.h"
#include "core/session/TZUserModel.h"
#include "core/util/PropertyList.h"
#include "core/util/Service.h"
#include "core/util/Text.h"

namespace {
const QString isFirstLoginKey = QStringLiteral("isFirstLogin");

SettingsStore &settings()
{
    return Platform::current().settings;
}

void handOn(const QVariantMap &copy, const Operation &operation, const Success &success)
{
    if (!copy.isEmpty())
        success(operation, copy);
}
} // namespace

Operation StoredRead::send(const QVariantMap &param, const Success &success, const Failure &andError) const
{
    const auto isForeign = [user = audience == Audience::User, token = TZUserModel::stored().api_token] {
        return user && TZUserModel::stored().api_token != token;
    };
    Service::showWaitingProgressView();
    const auto answered = [read = *this, success, isForeign](const Operation &operation,
                                                             const QVariantMap &answer) {
        const bool succeeded = ToolPolicy::succeeded(answer);
        if (succeeded)
            Service::hideWaitingProgressView();
        if (isForeign())
            return;
        if (!succeeded)
            return handOn(read.stored(), operation, success);
        if (ToolPolicy::takesInTurn(read.path, operation))
            success(operation, read.store(answer));
    };
    const auto failed = [read = *this, success, andError, isForeign](const Operation &operation,
                                                                     const RequestError &error) {
        if (!isForeign())
            read.answerWithout(operation, success);
        andError(operation, error);
    };
    return KRAFHTTPClient::get(ToolPolicy::url(path), param,
                               ToolPolicy::shaped(shape, Success::unowned(answered)),
                               Failure::unowned(failed));
}

void StoredRead::answerWithout(const Operation &operation, const Success &success) const
{
    const QVariantMap copy = stored();
    if (audience == Audience::User || boolValue(settings().value(isFirstLoginKey)))
        return handOn(copy, operation, success);
    handOn(readPropertyListFile(QStringLiteral(":/resources/%1.plist").arg(key)).toMap(), operation, success);
}

QVariantMap StoredRead::stored() const
{
    return key.isEmpty() ? QVariantMap() : ToolPolicy::stored(key);
}

QVariantMap StoredRead::store(const QVariantMap &answer) const
{
    const QVariantMap clean = Service::processDictionaryIsNSNull(answer).toMap();
    if (key.isEmpty())
        return clean;
    const QVariantMap kept = keep ? keep(clean) : clean;
    settings().setValue(key, kept);
    if (audience == Audience::Everyone)
        settings().setValue(isFirstLoginKey, true);
    settings().synchronize();
    return kept;
}
