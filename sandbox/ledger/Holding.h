#pragma once

#include "ledger/Books.h"
#include "market/StockList.h"
#include "market/Units.h"

#include <string>
#include <vector>

namespace sandbox {

/** One holding with its figures. Money in cents, rates as text. accumulatedProfit = profit + what past sales
 * made. */
struct Holding {
    std::int64_t id = 0;
    UserId user = 0;
    std::string stockCode;
    std::string stockName;
    Shares shares = 0;
    Shares availableShares = 0; ///< sellable now: not bought today, not in an open sell order
    Cents cost = 0;             ///< of the shares still held, buying fees included
    Cents currentPrice = 0;
    Cents totalValue = 0;           ///< currentPrice x shares
    Cents profit = 0;               ///< totalValue - cost
    std::string costPerShare;       ///< cost / shares, yuan, three decimals
    std::string profitCostPerShare; ///< price at which the whole holding comes out even, past sales counted;
                                    ///< three decimals
    std::string profitRate;         ///< profit / cost in percent, two decimals, no sign for gains: "5.25"
    std::string profitRatio;        ///< profit / cost, four decimals: "0.0525"
    Cents accumulatedBuyCost = 0;   ///< all buys since the holding was opened, fees included
    Shares accumulatedBuyShares = 0;
    Cents accumulatedSellIncome = 0; ///< all sells, fees taken off
    Shares accumulatedSellShares = 0;
    Cents accumulatedProfit = 0;
    bool closeTrading = false; ///< the stock is suspended
    std::int64_t version = 0;  ///< counts the changes
    Millis createdAt = 0;
    Millis updatedAt = 0;
};

/** The total asset at which the user is warned, and at which positions are closed. 0: no such line. */
struct LossLines {
    Cents warn = 0;
    Cents closeOut = 0;
};

/** A user's account at one moment. totalMoney = available + frozen; totalAsset = totalMoney + stockValue. */
struct AccountSummary {
    Cents available = 0;
    Cents frozen = 0;
    Cents withdrawable = 0; ///< available without the proceeds of today's sales
    Cents stockValue = 0;
    Cents totalMoney = 0;
    Cents totalAsset = 0;
    Cents profit = 0;       ///< sum over the holdings
    std::string profitRate; ///< profit / cost of the holdings in percent, two decimals
    LossLines lines;
};

/** The figures of a position at a price. */
Holding holdingOf(const Position &position, const Stock &stock, Cents price);

/** The figures of an account with these holdings. */
AccountSummary summaryOf(const Account &account, const std::vector<Holding> &holdings);

} // namespace sandbox
