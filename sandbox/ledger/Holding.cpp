#include "ledger/Holding.h"

#include <algorithm>

namespace sandbox {

Holding holdingOf(const Position &position, const Stock &stock, Cents price)
{
    Holding holding;
    holding.id = position.id;
    holding.user = position.user;
    holding.stockCode = stock.code;
    holding.stockName = stock.name;
    holding.shares = position.shares;
    holding.availableShares = position.available();
    holding.cost = position.cost;
    holding.currentPrice = price;
    holding.totalValue = price * position.shares;
    holding.profit = holding.totalValue - position.cost;
    // Cents per share with three decimals of a yuan: one more digit than cents have.
    holding.costPerShare = ratioText(position.cost, position.shares * 100, 3);
    holding.profitCostPerShare = ratioText(position.buyCost - position.sellIncome, position.shares * 100, 3);
    holding.profitRate = ratioText(holding.profit * 100, position.cost, 2);
    holding.profitRatio = ratioText(holding.profit, position.cost, 4);
    holding.accumulatedBuyCost = position.buyCost;
    holding.accumulatedBuyShares = position.buyShares;
    holding.accumulatedSellIncome = position.sellIncome;
    holding.accumulatedSellShares = position.sellShares;
    holding.accumulatedProfit = holding.totalValue + position.sellIncome - position.buyCost;
    holding.closeTrading = stock.suspended;
    holding.version = position.version;
    holding.createdAt = position.createdAt;
    holding.updatedAt = position.updatedAt;
    return holding;
}

AccountSummary summaryOf(const Account &account, const std::vector<Holding> &holdings)
{
    AccountSummary summary;
    summary.available = account.available;
    summary.frozen = account.frozen;
    summary.withdrawable = std::clamp<Cents>(account.available - account.unsettled, 0, account.available);
    Cents cost = 0;
    for (const Holding &holding : holdings) {
        summary.stockValue += holding.totalValue;
        summary.profit += holding.profit;
        cost += holding.cost;
    }
    summary.totalMoney = account.available + account.frozen;
    summary.totalAsset = summary.totalMoney + summary.stockValue;
    summary.profitRate = ratioText(summary.profit * 100, cost, 2);
    return summary;
}

} // namespace sandbox
