#include "market/StockList.h"

#include <algorithm>
#include <cctype>
#include <gtest/gtest.h>
#include <map>
#include <set>

namespace sandbox {
namespace {

std::size_t characters(const std::string &utf8)
{
    return static_cast<std::size_t>(
        std::count_if(utf8.begin(), utf8.end(), [](char c) { return (c & 0xC0) != 0x80; }));
}

TEST(StockList, HasFiveThousandCompaniesInTheirBoardsRanges)
{
    const std::map<Board, std::set<std::string>> ranges{{Board::ShanghaiMain, {"600", "601", "603", "605"}},
                                                        {Board::ShenzhenMain, {"000", "001", "002", "003"}},
                                                        {Board::ChiNext, {"300", "301"}},
                                                        {Board::Star, {"688"}}};
    const StockList list(1);
    std::set<std::string> codes;
    std::set<std::string> names;
    for (const Stock &stock : list.all()) {
        codes.insert(stock.code);
        names.insert(stock.name);
        EXPECT_TRUE(ranges.at(stock.board).contains(stock.code.substr(0, 3))) << stock.code;
        const std::size_t mark = stock.specialTreatment ? 2 : 0;
        EXPECT_EQ(stock.name.starts_with("ST"), stock.specialTreatment);
        EXPECT_GE(characters(stock.name) - mark, 2u);
        EXPECT_LE(characters(stock.name) - mark, 4u);
        EXPECT_EQ(stock.initials.size(), characters(stock.name)) << stock.name << " " << stock.initials;
        EXPECT_TRUE(std::all_of(stock.initials.begin(), stock.initials.end(),
                                [](unsigned char c) { return std::isupper(c); }));
        EXPECT_GE(stock.basePrice, 100);
    }
    EXPECT_EQ(list.all().size(), 5000u);
    EXPECT_EQ(codes.size(), 5000u);
    EXPECT_EQ(names.size(), 5000u);
    EXPECT_EQ(list.find(list.all()[77].code), &list.all()[77]);
    EXPECT_EQ(list.find("999999"), nullptr);
    EXPECT_EQ(list.version(), StockList(1).version());
    EXPECT_NE(list.version(), StockList(2).version());
}

} // namespace
} // namespace sandbox
