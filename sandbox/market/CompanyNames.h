#pragma once

#include <cstdint>
#include <string>

namespace sandbox {

struct CompanyName {
    std::string text;     ///< two to four Chinese characters
    std::string initials; ///< of its pinyin, upper case
};

/** An invented company name made of syllables whose reading is known; different bits may give the same name.
 */
CompanyName inventCompanyName(std::uint64_t bits);

} // namespace sandbox
