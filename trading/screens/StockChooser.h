#pragma once

struct TZStockInfoModel;

/// Receives the stock that was picked in the stock search.
class StockChooser {
public:
    virtual ~StockChooser() = default;
    virtual void chooseStock(const TZStockInfoModel &stock) = 0;
};
