#include "ledger/Invariants.h"

#include "ledger/Order.h"
#include "market/Rules.h"

namespace sandbox {

namespace {

struct Check {
    const char *name;
    const char *offenders; ///< a query whose rows are the offenders, the first column naming them
};

// What came from outside, for the queries below.
constexpr const char *kOutside = R"sql(
    WITH cash_moved AS MATERIALIZED (
             SELECT json_extract(payload, '$.user') AS user_id, json_extract(payload, '$.amount') AS amount
             FROM event WHERE kind = 'CashMoved'),
         granted AS MATERIALIZED (
             SELECT json_extract(payload, '$.user') AS user_id, json_extract(payload, '$.stock') AS stock,
                    json_extract(payload, '$.shares') AS shares, time
             FROM event WHERE kind = 'SharesGranted')
    )sql";

constexpr Check kChecks[] = {
    {"cash is what came in, plus sales, less buys and fees, of user", R"sql(
        SELECT user_id FROM account WHERE available + frozen <>
            coalesce((SELECT sum(amount) FROM cash_moved WHERE cash_moved.user_id = account.user_id), 0)
            + coalesce((SELECT sum((CASE side WHEN 2 THEN price * shares ELSE -price * shares END)
                                   - commission - stamp_tax - transfer_fee)
                        FROM deal WHERE deal.user_id = account.user_id), 0))sql"},
    {"no money is below zero, of user", "SELECT user_id FROM account WHERE available < 0 OR frozen < 0"},
    {"frozen cash is that of the open entrusts, of user", R"sql(
        SELECT user_id FROM account WHERE frozen <>
            coalesce((SELECT sum(frozen_cash) FROM entrust
                      WHERE open = 1 AND entrust.user_id = account.user_id), 0))sql"},
    {"a closed entrust freezes nothing, entrust",
     "SELECT id FROM entrust WHERE open = 0 AND frozen_cash <> 0"},
    {"an open buy freezes its price at least, entrust", R"sql(
        SELECT id FROM entrust WHERE open = 1 AND side = 1 AND frozen_cash < price * (shares - filled))sql"},
    {"shares are granted and bought less sold, of position", R"sql(
        SELECT user_id || ' ' || stock FROM (SELECT user_id, stock, sum(shares) AS held FROM position GROUP BY 1, 2) AS p
        WHERE held <> coalesce((SELECT sum(shares) FROM granted
                                WHERE granted.user_id = p.user_id AND granted.stock = p.stock), 0)
                      + coalesce((SELECT sum(CASE side WHEN 1 THEN shares ELSE -shares END) FROM deal
                                  WHERE deal.user_id = p.user_id AND deal.stock = p.stock), 0))sql"},
    {"frozen shares are those of the open sells, of position", R"sql(
        SELECT id FROM position AS p WHERE shares > 0 AND frozen <>
            coalesce((SELECT sum(shares - filled) FROM entrust
                      WHERE open = 1 AND side = 2 AND entrust.user_id = p.user_id AND entrust.stock = p.stock), 0))sql"},
    {"shares bought today are those of today's deals, of position", R"sql(
        SELECT id FROM position AS p WHERE shares > 0 AND bought_today <>
            coalesce((SELECT sum(shares) FROM deal
                      WHERE side = 1 AND deal.user_id = p.user_id AND deal.stock = p.stock
                            AND day = (SELECT value FROM setting WHERE key = 'day')), 0))sql"},
    {"no available shares are below zero, of position",
     "SELECT id FROM position WHERE shares - bought_today - frozen < 0 OR frozen < 0"},
    {"nothing is sold on the day it was bought, deal", R"sql(
        SELECT id FROM deal AS d WHERE side = 2 AND shares >
            coalesce((SELECT sum(shares) FROM granted
                      WHERE granted.user_id = d.user_id AND granted.stock = d.stock AND granted.time <= d.time), 0)
            + coalesce((SELECT sum(CASE side WHEN 1 THEN shares ELSE -shares END) FROM deal
                        WHERE deal.user_id = d.user_id AND deal.stock = d.stock AND deal.id < d.id
                              AND (side = 2 OR day < d.day)), 0))sql"},
    {"a deal is within its entrust's price and the day's limits, deal", R"sql(
        SELECT d.id FROM deal AS d JOIN entrust AS e ON e.id = entrust_id
        WHERE d.price < lower_limit OR d.price > upper_limit
              OR (e.side = 1 AND d.price > e.price) OR (e.side = 2 AND d.price < e.price)
              OR d.stock <> e.stock OR d.side <> e.side OR d.user_id <> e.user_id OR d.day <> e.day)sql"},
    {"an entrust is filled as its deals say, entrust", R"sql(
        SELECT id FROM entrust AS e WHERE
            filled <> coalesce((SELECT sum(shares) FROM deal WHERE entrust_id = e.id), 0)
            OR filled_money <> coalesce((SELECT sum(price * shares) FROM deal WHERE entrust_id = e.id), 0)
            OR commission <> coalesce((SELECT sum(commission) FROM deal WHERE entrust_id = e.id), 0)
            OR stamp_tax <> coalesce((SELECT sum(stamp_tax) FROM deal WHERE entrust_id = e.id), 0)
            OR transfer_fee <> coalesce((SELECT sum(transfer_fee) FROM deal WHERE entrust_id = e.id), 0))sql"},
    {"status and filled agree, entrust", R"sql(
        SELECT id FROM entrust WHERE (status = 8) <> (filled = shares)
            OR (status IN (0, 2, 3, 6, 9) AND filled > 0) OR (status IN (4, 5, 7) AND filled = 0)
            OR open <> (status IN (0, 2, 3, 4, 7)))sql"},
    {"an entrust is open on its own day only, entrust",
     "SELECT id FROM entrust WHERE open = 1 AND day <> (SELECT value FROM setting WHERE key = 'day')"},
    {"the holding's cost is what the buys cost less what the sales took, of position",
     "SELECT id FROM position WHERE cost < 0 OR cost > buy_cost OR buy_shares - sell_shares <> shares"},
};

void checkFees(Database &database, std::vector<std::string> &broken)
{
    Statement orders(database,
                     "SELECT id, side, filled_money, commission, stamp_tax, transfer_fee, day FROM entrust "
                     "WHERE filled > 0");
    while (orders.step()) {
        const bool sell = static_cast<Side>(orders.integer(1)) == Side::Sell;
        const Fees expected = feesOf(sell, orders.integer(2), static_cast<int>(orders.integer(6)));
        if (expected != Fees{orders.integer(3), orders.integer(4), orders.integer(5)})
            broken.push_back("fees are those of the whole entrust, entrust " + orders.text(0));
    }
}

} // namespace

std::vector<std::string> brokenInvariants(Database &database)
{
    std::vector<std::string> broken;
    for (const Check &check : kChecks) {
        Statement offenders(database, std::string(kOutside) + check.offenders);
        while (offenders.step())
            broken.push_back(std::string(check.name) + " " + offenders.text(0));
    }
    checkFees(database, broken);
    return broken;
}

} // namespace sandbox
