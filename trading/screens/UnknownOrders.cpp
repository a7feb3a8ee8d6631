#include "trading/screens/UnknownOrders.h"

#include "core/net/ToolPolicy.h"
#include "core/platform/Platform.h"
#include "core/platform/RunLoop.h"
#include "core/platform/SettingsStore.h"
#include "core/session/SettingsKeys.h"
#include "core/session/TZUserModel.h"
#include "core/util/Service.h"
#include "core/util/Text.h"
#include "trading/api/TZTradeTool.h"

#include <algorithm>

namespace {
const QString userKey = QStringLiteral("user");
const QString ordersKey = QStringLiteral("orders");
const QString knownKey = QStringLiteral("known");

/// More than anybody orders by hand in a day.
constexpr qsizetype mostKnown = 1000;
/// Milliseconds after which a request is no longer under way anywhere.
constexpr qint64 longEnough = 5 * 60'000;

/// What is written down of one user.
struct Record {
    QList<OrderIntent> unknown;
    /// The identifiers of entrusts that no unknown order became: those of an order whose outcome was told,
    /// and those that stood before.
    QStringList known;

    void know(const QString &id)
    {
        if (known.contains(id))
            return;
        known.append(id);
        if (known.size() > mostKnown)
            known.removeFirst();
    }
    /// False when it was not there.
    bool crossOut(const OrderIntent &order)
    {
        return unknown.removeIf([&](const OrderIntent &each) { return each.isSameIntent(order); }) > 0;
    }
    /// Null when it is not there.
    OrderIntent *find(const OrderIntent &order)
    {
        const auto found = std::find_if(unknown.begin(), unknown.end(),
                                        [&](const OrderIntent &each) { return each.isSameIntent(order); });
        return found == unknown.end() ? nullptr : &*found;
    }
    /// Only what is certain ends the question what became of the order.
    void note(const FoundOrder &found)
    {
        if (found.certain) {
            know(found.entrust.id);
            crossOut(found.order);
        } else if (OrderIntent *const order = find(found.order); order && !found.toldBefore) {
            order->possible.append(found.entrust.id);
        }
    }
};

Record stored()
{
    const QVariantMap map = Platform::current().settings.value(UnknownOrders::settingsKey).toMap();
    if (map.value(userKey) != TZUserModel::stored().cell)
        return {};
    Record record{{}, map.value(knownKey).toStringList()};
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
    settings.setValue(
        UnknownOrders::settingsKey,
        QVariantMap{{userKey, TZUserModel::stored().cell}, {ordersKey, orders}, {knownKey, record.known}});
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

void writeDown(OrderIntent &order)
{
    Record record = stored();
    // Two submissions within a millisecond would be one.
    order.sentAt = Platform::current().runLoop.now();
    for (const OrderIntent &each : std::as_const(record.unknown))
        order.sentAt = std::max(order.sentAt, each.sentAt + 1);
    order.earlier = record.known + likeOnesReadBefore(order);
    for (const OrderIntent &each : std::as_const(record.unknown))
        order.earlier += each.possible;
    record.unknown.append(order);
    store(record);
}

/// The outcome of `order` is known: the entrust with this identifier, or none when it is empty.
void crossOut(const OrderIntent &order, const QString &id)
{
    Record record = stored();
    if (!record.crossOut(order))
        return;
    if (!id.isEmpty())
        record.know(id);
    store(record);
}

/// Without "success" only a reason makes a refusal: anybody on the way may answer with other JSON. And where
/// a redirect led, nobody knows of the order.
OrderOutcome outcomeOf(const Operation &operation, const QVariantMap &answer, const QString &id)
{
    if (ToolPolicy::succeeded(answer))
        return id.isEmpty() ? OrderOutcome::PlacedUnnamed : OrderOutcome::Placed;
    const auto says = [&answer](const QString &key) {
        return !Service::whetherAnEmptyString(answer.value(key));
    };
    const bool refused =
        says(QStringLiteral("success")) || says(QStringLiteral("code")) || says(QStringLiteral("message"));
    return refused && !operation->redirected ? OrderOutcome::NotPlaced : OrderOutcome::Unknown;
}

QString identifier(const QVariantMap &answer)
{
    const QVariant id = answer.value(QStringLiteral("data")).toMap().value(QStringLiteral("id"));
    return Service::whetherAnEmptyString(id) ? QString() : textForm(id);
}

/// None of the entrusts that `order` may have become is certainly its own.
void doubt(QList<FoundOrder> &found, const OrderIntent &order)
{
    for (FoundOrder &each : found)
        each.certain = each.certain && !each.order.isSameOrder(order);
}

/// No longer when its user signed out meanwhile, or a search has found it.
bool isUnknown(const OrderIntent &order)
{
    const QList<OrderIntent> unknown = UnknownOrders::all();
    return std::any_of(unknown.begin(), unknown.end(),
                       [&order](const OrderIntent &each) { return each.isSameIntent(order); });
}

void noteAccepted(const OrderIntent &order)
{
    Record record = stored();
    if (OrderIntent *const accepted = record.find(order)) {
        accepted->accepted = true;
        store(record);
    }
}

void conclude(const SentOrder &sent)
{
    if (sent.outcome == OrderOutcome::PlacedUnnamed)
        noteAccepted(sent.order);
    if (sent.outcome == OrderOutcome::Placed || sent.outcome == OrderOutcome::NotPlaced)
        crossOut(sent.order, identifier(sent.answer));
    if (sent.outcome == OrderOutcome::Placed || sent.outcome == OrderOutcome::PlacedUnnamed) {
        SettingsStore &settings = Platform::current().settings;
        settings.setValue(SettingsKeys::needTradePwd, false);
        settings.synchronize();
    }
}
} // namespace

Operation UnknownOrders::send(OrderIntent order, const QString &password, Told told)
{
    writeDown(order);
    const auto tell = [order, told = std::move(told)](const Operation &operation, OrderOutcome outcome,
                                                      const QVariantMap &answer) {
        if (!isUnknown(order))
            return;
        const SentOrder sent{order, outcome, answer};
        conclude(sent);
        told(operation, sent);
    };
    const Success answered = Success::unowned([tell](const Operation &operation, const QVariantMap &answer) {
        tell(operation, outcomeOf(operation, answer, identifier(answer)), answer);
    });
    const Failure failed = Failure::unowned([tell](const Operation &operation, const RequestError &error) {
        tell(operation, error.mayHaveArrived() ? OrderOutcome::Unknown : OrderOutcome::NotPlaced, {});
    });
    QVariantMap param = order.parameters();
    if (!password.isEmpty())
        param.insert(QStringLiteral("tradePassword"), password);
    return order.side == OrderSide::Buy ? TZTradeTool::postCreatBuyWithParam(param, answered, failed)
                                        : TZTradeTool::postCreatSellWithParam(param, answered, failed);
}

QList<OrderIntent> UnknownOrders::all()
{
    return stored().unknown;
}

QList<OrderIntent> UnknownOrders::like(const OrderIntent &order)
{
    QList<OrderIntent> unknown = stored().unknown;
    unknown.removeIf([&order](const OrderIntent &each) { return !each.isSameOrder(order); });
    return unknown;
}

QList<FoundOrder> UnknownOrders::settle(const QList<OrderIntent> &sought,
                                        const QList<TZEntrustsTodayModel> &entrusts)
{
    Record record = stored();
    QList<FoundOrder> found;
    QList<OrderIntent> missing = sought;
    for (const TZEntrustsTodayModel &entrust : entrusts) {
        const auto mayBe = [&](const OrderIntent &order) { return order.mayHaveBecome(entrust); };
        const auto like = [&](const OrderIntent &order) { return order.isLike(entrust); };
        if (record.known.contains(entrust.id) || std::none_of(sought.begin(), sought.end(), like))
            continue;
        if (std::none_of(sought.begin(), sought.end(), mayBe)) {
            record.know(entrust.id);
            continue;
        }
        // What an order may have become may also have come of one before it: those are left the others.
        const auto missed = std::find_if(missing.rbegin(), missing.rend(), mayBe);
        const bool tooMany = missed == missing.rend();
        const OrderIntent order = tooMany ? *std::find_if(sought.rbegin(), sought.rend(), mayBe) : *missed;
        const bool timed = order.quotedAt > 0 && OrderIntent::serviceTime(entrust.createdAt) > 0;
        const OrderIntent *const written = record.find(order);
        found.append({order, entrust, timed, written && written->possible.contains(entrust.id)});
        if (tooMany)
            doubt(found, order);
        else
            missing.erase(std::next(missed).base());
    }
    for (const FoundOrder &each : std::as_const(found))
        record.note(each);
    const qint64 now = Platform::current().runLoop.now();
    for (const OrderIntent &order : std::as_const(missing)) {
        if (now - order.sentAt > longEnough)
            record.crossOut(order);
    }
    store(record);
    return found;
}
