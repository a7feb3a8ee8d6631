#pragma once

#include "market/Units.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace sandbox {

enum class Board { ShanghaiMain, ShenzhenMain, ChiNext, Star };

/** An invented listed company. */
struct Stock {
    std::string code; ///< six digits
    std::string
        name; ///< two to four Chinese characters, after "ST" where the company is under special treatment
    std::string initials; ///< of the name's pinyin, upper case: "YJKJ"
    Board board = Board::ShanghaiMain;
    bool specialTreatment = false; ///< ST: its own daily limit on the main boards
    bool suspended = false;        ///< not traded
    Cents basePrice = 0;           ///< where its price process began
    Cents typicalTurnover = 0;     ///< cents traded in a usual day
};

/** All listed companies, by code. The same seed gives the same list. Immutable, so any thread may read it. */
class StockList {
public:
    explicit StockList(std::uint64_t seed);

    const std::vector<Stock> &all() const { return m_stocks; }
    /** Null when there is no such code. */
    const Stock *find(std::string_view code) const;
    /** Changes exactly when codes, names or initials change; 16 characters. */
    const std::string &version() const { return m_version; }

private:
    std::vector<Stock> m_stocks;
    std::string m_version;
};

} // namespace sandbox
