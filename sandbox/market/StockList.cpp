#include "market/StockList.h"

#include "market/CompanyNames.h"
#include "market/Random.h"

#include <algorithm>
#include <array>
#include <unordered_set>
#include <utility>

namespace sandbox {

namespace {

// Which draw belongs to what, so that no two are the same.
enum Purpose { PickCode = 1, Name, Price, Turnover, SpecialTreatment, Suspension };

struct Range {
    const char *prefix;
    Board board;
    int companies;
};

constexpr Range kRanges[] = {
    {"000", Board::ShenzhenMain, 400}, {"001", Board::ShenzhenMain, 100}, {"002", Board::ShenzhenMain, 950},
    {"003", Board::ShenzhenMain, 50},  {"300", Board::ChiNext, 900},      {"301", Board::ChiNext, 450},
    {"600", Board::ShanghaiMain, 620}, {"601", Board::ShanghaiMain, 260}, {"603", Board::ShanghaiMain, 560},
    {"605", Board::ShanghaiMain, 110}, {"688", Board::Star, 600},
};

std::string threeDigits(int number)
{
    const std::string digits = std::to_string(number);
    return std::string(3 - digits.size(), '0') + digits;
}

std::vector<std::string> codesOf(const Range &range, std::uint64_t seed)
{
    std::vector<std::pair<std::uint64_t, int>> lottery;
    const std::string prefix = range.prefix;
    for (int number = 1; number <= 999; ++number)
        lottery.emplace_back(draw(seed, PickCode, std::stoi(prefix), number), number);
    std::sort(lottery.begin(), lottery.end());
    lottery.resize(static_cast<std::size_t>(range.companies));
    std::vector<std::string> codes;
    codes.reserve(lottery.size());
    for (const auto &[ticket, number] : lottery)
        codes.push_back(prefix + threeDigits(number));
    std::sort(codes.begin(), codes.end());
    return codes;
}

/** Between 2 and about 250 yuan, low prices more often than high ones. */
Cents inventPrice(std::uint64_t bits)
{
    const auto position = between(draw(bits, 1), 0, 1000);
    return 200 + position * position * position / 40'000 + between(draw(bits, 2), 0, 999);
}

/** Between 10 million and 1 billion yuan a day, small ones more often. */
Cents inventTurnover(std::uint64_t bits)
{
    const auto position = between(bits, 0, 1000);
    return 100 * (10'000'000 + position * position * position);
}

std::string contentVersion(const std::vector<Stock> &stocks)
{
    std::uint64_t hash = 0xcbf29ce484222325ULL; // FNV-1a
    const auto add = [&hash](std::string_view text) {
        for (const char c : text)
            hash = (hash ^ static_cast<unsigned char>(c)) * 0x100000001b3ULL;
    };
    for (const Stock &stock : stocks) {
        add(stock.code);
        add(stock.name);
        add(stock.initials);
    }
    std::string text;
    for (int shift = 60; shift >= 0; shift -= 4)
        text += "0123456789abcdef"[(hash >> shift) & 15];
    return text;
}

} // namespace

StockList::StockList(std::uint64_t seed)
{
    std::unordered_set<std::string> names;
    for (const Range &range : kRanges) {
        for (std::string &code : codesOf(range, seed)) {
            const int number = std::stoi(code);
            Stock stock;
            stock.code = std::move(code);
            stock.board = range.board;
            stock.basePrice = inventPrice(draw(seed, Price, number));
            stock.typicalTurnover = inventTurnover(draw(seed, Turnover, number));
            stock.specialTreatment = between(draw(seed, SpecialTreatment, number), 1, 100) <= 3;
            stock.suspended = between(draw(seed, Suspension, number), 1, 1000) <= 3;
            CompanyName name;
            for (int attempt = 0; name.text.empty() || !names.insert(name.text).second; ++attempt)
                name = inventCompanyName(draw(seed, Name, number, attempt));
            stock.name = (stock.specialTreatment ? "ST" : "") + name.text;
            stock.initials = (stock.specialTreatment ? "ST" : "") + name.initials;
            m_stocks.push_back(std::move(stock));
        }
    }
    m_version = contentVersion(m_stocks);
}

const Stock *StockList::find(std::string_view code) const
{
    const auto found =
        std::lower_bound(m_stocks.begin(), m_stocks.end(), code,
                         [](const Stock &stock, std::string_view wanted) { return stock.code < wanted; });
    return found != m_stocks.end() && found->code == code ? &*found : nullptr;
}

} // namespace sandbox
