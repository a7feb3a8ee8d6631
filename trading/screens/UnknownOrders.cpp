#include "trading/screens/UnknownOrders.h"

#include "core/net/ToolPolicy.h"
#include "core/platform/Platform.h"
#include "core/platform/RunLoop.h"
#include "core/platform/SettingsStore.h"
#include "core/session/TZUserModel.h"
#include "core/util/Service.h"
#include "core/util/Text.h"
#include "trading/api/TZTradeTool.h"

#include <QDateTime>
#include <algorithm>

namespace {
const QString userKey = QStringLiteral("user");
const QString dayKey = QStringLiteral("day");
const QString ordersKey = QStringLiteral("orders");
const QString placedKey = QStringLiteral("placed");

/// What is written down of one user and one day.
struct Record {
    QList<OrderIntent> unknown;
    /// The identifiers of the orders whose outcome was told.
    QStringList placed;
};

QString today()
{
    constexpr int exchangeTimeZone = 8 * 3600;
    return QDateTime::fromMSecsSinceEpoch(Platform::current().runLoop.now(), Qt::OffsetFromUTC,
                                          exchangeTimeZone)
        .toString(QStringLiteral("yyyyMMdd"));
}

Record stored()
{
    const QVariantMap map = Platform::current().settings.value(UnknownOrders::settingsKey).toMap();
    if (map.value(userKey) != TZUserModel::stored().cell || map.value(dayKey) != today())
        return {};
    Record record{{}, map.value(placedKey).toStringList()};
    const QVariantList orders = map.value(ordersKey).toList();
    for (const QVariant &order : orders)
        record.unknown.append(OrderIntent::fromMap(order.toMap()));
    return record;
}

void store(const Record &record)
{
    QVariantList orders;
    for (const OrderIntent &order : record.unknown)
        orders.append(order.toMap());
    SettingsStore &settings = Platform::current().settings;
    settings.setValue(UnknownOrders::settingsKey, QVariantMap{{userKey, TZUserModel::stored().cell},
                                                              {dayKey, today()},
                                                              {ordersKey, orders},
                                                              {placedKey, record.placed}});
    settings.synchronize();
}

/// The identifiers of the orders like `intent` in the entrusts that were read last.
QStringList likeOnesReadBefore(const OrderIntent &intent)
{
    QStringList ids;
    const auto entrusts = fromArray<TZEntrustsTodayModel>(
        ToolPolicy::stored(TZTradeTool::entrustsTodayKey).value(QStringLiteral("data")));
    for (const TZEntrustsTodayModel &entrust : entrusts) {
        if (intent.isLike(entrust))
            ids.append(entrust.id);
    }
    return ids;
}

void writeDown(OrderIntent &intent)
{
    Record record = stored();
    intent.sentAt = Platform::current().runLoop.now();
    intent.earlier = record.placed + likeOnesReadBefore(intent);
    record.unknown.append(intent);
    store(record);
}

void hear(const OrderIntent &intent, const QVariantMap &answer)
{
    const QVariant id = answer.value(QStringLiteral("data")).toMap().value(QStringLiteral("id"));
    if (!ToolPolicy::succeeded(answer))
        UnknownOrders::settle(intent);
    else if (!Service::whetherAnEmptyString(id))
        UnknownOrders::settle(intent, textForm(id));
    // Accepted, and no word of an entrust: nobody knows.
}
} // namespace

Operation UnknownOrders::send(OrderIntent &intent, const QString &password, Success success, Failure failure)
{
    writeDown(intent);
    const Success answered = Success::unowned(
        [intent, success = std::move(success)](const Operation &operation, const QVariantMap &answer) {
            hear(intent, answer);
            success(operation, answer);
        });
    const Failure failed = Failure::unowned(
        [intent, failure = std::move(failure)](const Operation &operation, const RequestError &error) {
            if (!error.mayHaveArrived())
                settle(intent);
            failure(operation, error);
        });
    QVariantMap param = intent.parameters();
    if (!password.isEmpty())
        param.insert(QStringLiteral("tradePassword"), password);
    return intent.side == OrderSide::Buy ? TZTradeTool::postCreatBuyWithParam(param, answered, failed)
                                         : TZTradeTool::postCreatSellWithParam(param, answered, failed);
}

std::optional<OrderIntent> UnknownOrders::find(const OrderIntent &order)
{
    const QList<OrderIntent> unknown = stored().unknown;
    const auto latest = std::find_if(unknown.rbegin(), unknown.rend(),
                                     [&order](const OrderIntent &each) { return each.isSameOrder(order); });
    return latest == unknown.rend() ? std::nullopt : std::optional(*latest);
}

void UnknownOrders::settle(const OrderIntent &order, const QString &id)
{
    Record record = stored();
    const auto removed = record.unknown.removeIf([&](const OrderIntent &each) {
        return each.isSameOrder(order) && (each.sentAt == order.sentAt || !id.isEmpty());
    });
    if (removed == 0)
        return;
    if (!id.isEmpty())
        record.placed.append(id);
    store(record);
}
