#include "market/StockList.h"

#include <algorithm>
#include <cctype>
#include <gtest/gtest.h>
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
    const StockList list(1);
    ASSERT_EQ(list.all().size(), 5000u);
    std::set<std::string> codes;
    std::set<std::string> names;
    for (const Stock &stock : list.all()) {
        codes.insert(stock.code);
        names.insert(stock.name);
        const std::string prefix = stock.code.substr(0, 3);
        switch (stock.board) {
        case Board::ShanghaiMain:
            EXPECT_TRUE(prefix == "600" || prefix == "601" || prefix == "603" || prefix == "605")
                << stock.code;
            break;
        case Board::ShenzhenMain:
            EXPECT_TRUE(prefix >= "000" && prefix <= "003") << stock.code;
            break;
        case Board::ChiNext:
            EXPECT_TRUE(prefix == "300" || prefix == "301") << stock.code;
            break;
        case Board::Star:
            EXPECT_EQ(prefix, "688");
            break;
        }
        const std::size_t mark = stock.specialTreatment ? 2 : 0;
        EXPECT_EQ(stock.name.starts_with("ST"), stock.specialTreatment);
        EXPECT_GE(characters(stock.name) - mark, 2u);
        EXPECT_LE(characters(stock.name) - mark, 4u);
        EXPECT_EQ(stock.initials.size(), characters(stock.name)) << stock.name << " " << stock.initials;
        EXPECT_TRUE(std::all_of(stock.initials.begin(), stock.initials.end(),
                                [](unsigned char c) { return std::isupper(c); }));
        EXPECT_GE(stock.basePrice, 100);
    }
    EXPECT_EQ(codes.size(), 5000u);
    EXPECT_EQ(names.size(), 5000u);
    EXPECT_EQ(list.find(list.all()[77].code), &list.all()[77]);
    EXPECT_EQ(list.find("999999"), nullptr);
    EXPECT_EQ(list.find(""), nullptr);
}

TEST(StockList, VersionFollowsTheContent)
{
    EXPECT_EQ(StockList(1).version(), StockList(1).version());
    EXPECT_NE(StockList(1).version(), StockList(2).version());
    EXPECT_EQ(StockList(1).version().size(), 16u);
}

} // namespace
} // namespace sandbox
