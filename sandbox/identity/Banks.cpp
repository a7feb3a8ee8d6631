#include "identity/Banks.h"

#include <algorithm>

namespace sandbox::identity {

const std::vector<Bank> &banks()
{
    static const std::vector<Bank> list{{"工商银行", "ICBC"},    {"农业银行", "ABC"},  {"中国银行", "BOC"},
                                        {"建设银行", "CCB"},     {"交通银行", "COMM"}, {"招商银行", "CMB"},
                                        {"民生银行", "CMBC"},    {"兴业银行", "CIB"},  {"浦发银行", "SPDB"},
                                        {"中信银行", "CITIC"},   {"光大银行", "CEB"},  {"平安银行", "SZPAB"},
                                        {"邮政储蓄银行", "PSBC"}};
    return list;
}

const Bank *findBank(const std::string &channelCode)
{
    const auto &list = banks();
    const auto found = std::find_if(list.begin(), list.end(),
                                    [&](const Bank &bank) { return bank.channelCode == channelCode; });
    return found == list.end() ? nullptr : &*found;
}

} // namespace sandbox::identity
