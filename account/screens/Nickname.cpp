#include "account/screens/Nickname.h"

#include "core/util/Service.h"

QString limitedNickname(const QString &text)
{
    constexpr qsizetype longest = 10;
    if (text.size() <= longest)
        return text;
    return text.left(text.at(longest - 1).isHighSurrogate() ? longest - 1 : longest);
}

QString nicknameProblem(const QString &nick)
{
    if (Service::whetherAnEmptyString(nick))
        return QStringLiteral("请输入昵称");
    if (nick.size() >= 21)
        return QStringLiteral("昵称最多十个汉字");
    return {};
}
