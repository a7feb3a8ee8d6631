#include "core/net/ToolPolicy.h"

#include "core/net/FormBody.h"
#include "core/platform/ApplicationInfo.h"
#include "core/platform/Platform.h"
#include "core/platform/SettingsStore.h"
#include "core/session/TZUserModel.h"
#include "core/util/Service.h"
#include "core/util/Text.h"

#include <QHash>

QString ToolPolicy::url(const QString &path)
{
    return Platform::current().application.apiBaseUrl() + path;
}

bool ToolPolicy::succeeded(const QVariantMap &answer)
{
    return boolValue(answer.value(QStringLiteral("success")));
}

QString ToolPolicy::message(const QVariantMap &answer)
{
    const QVariant message = answer.value(QStringLiteral("message"));
    // Not of a success, where services are used to write "ok" into it.
    const bool otherName = !succeeded(answer) && Service::whetherAnEmptyString(message);
    return textForm(otherName ? answer.value(QStringLiteral("msg")) : message);
}

Success ToolPolicy::gated(Success success, Indicator indicator)
{
    return Success::unowned(
        [success = std::move(success), indicator](const Operation &operation, const QVariantMap &answer) {
            if (!succeeded(answer))
                return;
            if (indicator == Indicator::Hide)
                Service::hideWaitingProgressView();
            success(operation, answer);
        });
}

Success ToolPolicy::passed(Success success)
{
    return Success::unowned(
        [success = std::move(success)](const Operation &operation, const QVariantMap &answer) {
            Service::hideWaitingProgressView();
            success(operation, answer);
        });
}

Success ToolPolicy::ofSameUser(Success success)
{
    const QString token = TZUserModel::stored().api_token;
    return Success::unowned(
        [token, success = std::move(success)](const Operation &operation, const QVariantMap &answer) {
            if (token == TZUserModel::stored().api_token)
                success(operation, answer);
        });
}

Success ToolPolicy::cached(const QString &key, Success success, Hand hand)
{
    const auto store = [key, hand, success = std::move(success)](const Operation &operation,
                                                                 const QVariantMap &answer) {
        if (!takesInTurn(key, operation))
            return;
        SettingsStore &settings = Platform::current().settings;
        const QVariantMap cleaned = Service::processDictionaryIsNSNull(answer).toMap();
        settings.setValue(key, cleaned);
        settings.synchronize();
        success(operation, hand == Hand::Cleaned ? cleaned : answer);
    };
    return gated(ofSameUser(Success::unowned(store)));
}

bool ToolPolicy::isObject(const QVariant &data)
{
    return data.typeId() == QMetaType::QVariantMap;
}

bool ToolPolicy::isList(const QVariant &data)
{
    return !data.isValid() || isNullMarker(data) || data.typeId() == QMetaType::QVariantList;
}

bool ToolPolicy::isScalar(const QVariant &data)
{
    return data.typeId() != QMetaType::QVariantList && data.typeId() != QMetaType::QVariantMap;
}

Success ToolPolicy::shaped(Shape shape, Success success)
{
    return Success::unowned(
        [shape, success = std::move(success)](const Operation &operation, const QVariantMap &answer) {
            if (!succeeded(answer) || shape(answer.value(QStringLiteral("data"))))
                return success(operation, answer);
            Service::hideWaitingProgressView();
            Service::showLoadFailView();
        });
}

bool ToolPolicy::takesInTurn(const QString &key, const Operation &operation)
{
    static QHash<QByteArray, quint64> taken;
    quint64 &latest = taken[key.toUtf8() + '?' + formFields(operation->parameters)];
    if (operation->number < latest)
        return false;
    latest = operation->number;
    return true;
}

QVariantMap ToolPolicy::stored(const QString &key)
{
    return Platform::current().settings.value(key).toMap();
}

bool ToolPolicy::answersOffline(const QString &key, const Success &success)
{
    if (Service::isConnectionAvailable())
        return false;
    const QVariantMap copy = stored(key);
    if (!copy.isEmpty())
        success(nullptr, copy);
    return true;
}
