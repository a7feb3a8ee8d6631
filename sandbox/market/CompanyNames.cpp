#include "market/CompanyNames.h"

#include "market/Random.h"

#include <iterator>

namespace sandbox {

namespace {

struct Syllable {
    const char *text;
    const char *initials;
};

// Characters with one reading only, and first ones that hardly any listed company begins with: the
// initials are then always right and the names nobody's.
constexpr Syllable kFirst[] = {
    {"澜", "L"}, {"沅", "Y"}, {"霁", "J"}, {"珩", "H"}, {"岚", "L"}, {"颀", "Q"}, {"珞", "L"}, {"璟", "J"},
    {"瑾", "J"}, {"翊", "Y"}, {"昶", "C"}, {"骁", "X"}, {"麒", "Q"}, {"鲲", "K"}, {"鸾", "L"}, {"翎", "L"},
    {"菡", "H"}, {"芷", "Z"}, {"蓁", "Z"}, {"苒", "R"}, {"荻", "D"}, {"蘅", "H"}, {"芸", "Y"}, {"茗", "M"},
    {"茉", "M"}, {"棠", "T"}, {"楠", "N"}, {"梓", "Z"}, {"槿", "J"}, {"榕", "R"}, {"椿", "C"}, {"枫", "F"},
    {"桦", "H"}, {"沐", "M"}, {"沁", "Q"}, {"淇", "Q"}, {"淳", "C"}, {"湛", "Z"}, {"溪", "X"}, {"漪", "Y"},
    {"潼", "T"}, {"珂", "K"}, {"玥", "Y"}, {"琅", "L"}, {"琰", "Y"}, {"瑜", "Y"}, {"瑶", "Y"}, {"璇", "X"},
    {"瓒", "Z"}, {"磐", "P"}, {"砺", "L"}, {"穹", "Q"}, {"篁", "H"}, {"绮", "Q"}, {"缦", "M"}, {"岑", "C"},
    {"邈", "M"}, {"郁", "Y"}, {"铎", "D"}, {"霖", "L"}, {"霄", "X"}, {"韬", "T"}, {"飏", "Y"}, {"骐", "Q"},
    {"黛", "D"}, {"曦", "X"}, {"旻", "M"}, {"煦", "X"}, {"熠", "Y"}, {"煜", "Y"},
};

constexpr Syllable kSecond[] = {
    {"川", "C"}, {"岳", "Y"}, {"峰", "F"}, {"岭", "L"}, {"峦", "L"}, {"泽", "Z"}, {"渊", "Y"}, {"源", "Y"},
    {"浦", "P"}, {"湾", "W"}, {"屿", "Y"}, {"洲", "Z"}, {"野", "Y"}, {"原", "Y"}, {"林", "L"}, {"森", "S"},
    {"庭", "T"}, {"阁", "G"}, {"轩", "X"}, {"苑", "Y"}, {"城", "C"}, {"关", "G"}, {"桥", "Q"}, {"渡", "D"},
    {"帆", "F"}, {"航", "H"}, {"旗", "Q"}, {"衡", "H"}, {"鼎", "D"}, {"玺", "X"}, {"章", "Z"}, {"诚", "C"},
    {"信", "X"}, {"智", "Z"}, {"德", "D"}, {"嘉", "J"}, {"瑞", "R"}, {"祥", "X"}, {"康", "K"}, {"宁", "N"},
    {"安", "A"}, {"顺", "S"}, {"达", "D"}, {"通", "T"}, {"远", "Y"}, {"宏", "H"}, {"博", "B"}, {"隆", "L"},
    {"昌", "C"}, {"旺", "W"}, {"腾", "T"}, {"飞", "F"}, {"跃", "Y"}, {"驰", "C"}, {"翔", "X"}, {"云", "Y"},
    {"星", "X"}, {"月", "Y"}, {"辰", "C"}, {"光", "G"}, {"海", "H"}, {"峻", "J"}, {"河", "H"}, {"山", "S"},
};

constexpr Syllable kThird[] = {
    {"特", "T"}, {"诺", "N"}, {"普", "P"}, {"科", "K"}, {"宝", "B"}, {"丽", "L"}, {"丰", "F"}, {"美", "M"},
};

constexpr Syllable kTrades[] = {
    {"科技", "KJ"}, {"股份", "GF"}, {"电子", "DZ"}, {"医药", "YY"}, {"生物", "SW"}, {"能源", "NY"},
    {"材料", "CL"}, {"机械", "JX"}, {"重工", "ZG"}, {"智能", "ZN"}, {"数据", "SJ"}, {"软件", "RJ"},
    {"通信", "TX"}, {"传媒", "CM"}, {"文化", "WH"}, {"食品", "SP"}, {"乳业", "RY"}, {"酒业", "JY"},
    {"纺织", "FZ"}, {"服饰", "FS"}, {"家居", "JJ"}, {"建材", "JC"}, {"环保", "HB"}, {"水务", "SW"},
    {"电力", "DL"}, {"电气", "DQ"}, {"新材", "XC"}, {"化工", "HG"}, {"石化", "SH"}, {"矿业", "KY"},
    {"钢铁", "GT"}, {"铝业", "LY"}, {"航空", "HK"}, {"物流", "WL"}, {"港口", "GK"}, {"路桥", "LQ"},
    {"置业", "ZY"}, {"百货", "BH"}, {"教育", "JY"}, {"旅游", "LY"}, {"证券", "ZQ"}, {"农业", "NY"},
    {"种业", "ZY"}, {"牧业", "MY"}, {"光电", "GD"}, {"精工", "JG"}, {"装备", "ZB"}, {"仪器", "YQ"},
    {"制药", "ZY"}, {"器械", "QX"}, {"基因", "JY"}, {"芯片", "XP"},
};

template <std::size_t Count>
void append(CompanyName &name, const Syllable (&table)[Count], std::uint64_t bits)
{
    const Syllable &chosen = table[bits % Count];
    name.text += chosen.text;
    name.initials += chosen.initials;
}

} // namespace

CompanyName inventCompanyName(std::uint64_t bits)
{
    CompanyName name;
    append(name, kFirst, draw(bits, 1));
    append(name, kSecond, draw(bits, 2));
    const auto shape = between(draw(bits, 3), 1, 100);
    if (shape > 12)
        append(name, kTrades, draw(bits, 4));
    else if (shape > 3)
        append(name, kThird, draw(bits, 4));
    return name;
}

} // namespace sandbox
