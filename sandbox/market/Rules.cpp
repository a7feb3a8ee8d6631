#include "market/Rules.h"

#include <algorithm>
#include <span>

namespace sandbox {

namespace {

constexpr int kAlways = 19900101;

struct LimitRow {
    int from;
    Board board;
    bool specialTreatment;
    int percent;
    const char *source;
};

constexpr LimitRow kLimits[] = {
    {kAlways, Board::ShanghaiMain, false, 10, "Shanghai exchange, trading rules"},
    {kAlways, Board::ShenzhenMain, false, 10, "Shenzhen exchange, trading rules"},
    {kAlways, Board::ShanghaiMain, true, 5, "Shanghai exchange, trading rules"},
    {kAlways, Board::ShenzhenMain, true, 5, "Shenzhen exchange, trading rules"},
    {20260706, Board::ShanghaiMain, true, 10, "trading rules of 2026, from 6 July 2026"},
    {20260706, Board::ShenzhenMain, true, 10, "trading rules of 2026, from 6 July 2026"},
    {kAlways, Board::ChiNext, false, 10, "Shenzhen exchange, before the registration system"},
    {kAlways, Board::ChiNext, true, 5, "Shenzhen exchange, before the registration system"},
    {20200824, Board::ChiNext, false, 20, "ChiNext special trading rules"},
    {20200824, Board::ChiNext, true, 20, "ChiNext special trading rules"},
    {20190722, Board::Star, false, 20, "STAR market special trading rules"},
    {20190722, Board::Star, true, 20, "STAR market special trading rules"},
};

struct LotRow {
    int from;
    Board board;
    LotRule rule;
    const char *source;
};

constexpr LotRow kLots[] = {
    {kAlways, Board::ShanghaiMain, {100, 100, 1'000'000}, "Shanghai exchange, trading rules"},
    {kAlways, Board::ShenzhenMain, {100, 100, 1'000'000}, "Shenzhen exchange, trading rules"},
    {kAlways, Board::ChiNext, {100, 100, 1'000'000}, "Shenzhen exchange, trading rules"},
    {20200824, Board::ChiNext, {100, 100, 300'000}, "ChiNext special trading rules, limit orders"},
    {20190722, Board::Star, {200, 1, 100'000}, "STAR market special trading rules, limit orders"},
};

// Rates are in hundred-thousandths of the money traded.
struct RateRow {
    int from;
    std::int64_t rate;
    const char *source;
};

constexpr RateRow kCommission[] = {{kAlways, 30, "the account's contract: 0.03 percent"}};
constexpr Cents kCommissionMinimum = 500; // per order, the account's contract
constexpr RateRow kStampTax[] = {
    {20080919, 100, "sellers only since 19 September 2008"},
    {20230828, 50, "halved on 28 August 2023"},
};
constexpr RateRow kTransferFee[] = {
    {20150801, 2, "clearing house notice of 2015"},
    {20220429, 1, "clearing house notice of 2022"},
};

struct CageRow {
    int from;
    int percent;
    Cents ticks;
    const char *source;
};

constexpr CageRow kCage[] = {
    {20230410, 2, 10, "trading rules of 2023: 2 percent or ten ticks, whichever is wider"}};

/** The newest of the rows that hold on the date and that the predicate accepts; null when there is none. */
template <typename Row, std::size_t Count, typename Accepts>
const Row *rowAt(const Row (&rows)[Count], int date, Accepts accepts)
{
    const Row *found = nullptr;
    for (const Row &row : rows)
        if (row.from <= date && accepts(row) && (!found || row.from >= found->from))
            found = &row;
    return found;
}

template <std::size_t Count> std::int64_t rateAt(const RateRow (&rows)[Count], int date)
{
    const RateRow *row = rowAt(rows, date, [](const RateRow &) { return true; });
    return row ? row->rate : 0;
}

Cents portion(Cents money, std::int64_t rate)
{
    return (money * rate + 50'000) / 100'000;
}

} // namespace

int dailyLimitPercent(Board board, bool specialTreatment, int date)
{
    const LimitRow *row = rowAt(kLimits, date, [&](const LimitRow &candidate) {
        return candidate.board == board && candidate.specialTreatment == specialTreatment;
    });
    return row ? row->percent : 10;
}

PriceLimits priceLimits(Cents previousClose, int percent)
{
    const auto rounded = [&](int rate) { return (previousClose * rate + 50) / 100; };
    return {std::max<Cents>(1, std::min(rounded(100 - percent), previousClose - 1)),
            std::max(rounded(100 + percent), previousClose + 1)};
}

LotRule lotRule(Board board, int date)
{
    const LotRow *row = rowAt(kLots, date, [&](const LotRow &candidate) { return candidate.board == board; });
    return row ? row->rule : LotRule{};
}

Fees Fees::operator-(const Fees &other) const
{
    return {commission - other.commission, stampTax - other.stampTax, transferFee - other.transferFee};
}

Fees feesOf(bool sell, Cents money, int date)
{
    if (money == 0)
        return {};
    return {std::max(kCommissionMinimum, portion(money, rateAt(kCommission, date))),
            sell ? portion(money, rateAt(kStampTax, date)) : 0, portion(money, rateAt(kTransferFee, date))};
}

PriceLimits priceCage(Cents buyReference, Cents sellReference, int date)
{
    const CageRow *row = rowAt(kCage, date, [](const CageRow &) { return true; });
    if (!row)
        return {1, INT64_MAX};
    return {std::min((sellReference * (100 - row->percent) + 50) / 100, sellReference - row->ticks),
            std::max((buyReference * (100 + row->percent) + 50) / 100, buyReference + row->ticks)};
}

} // namespace sandbox
