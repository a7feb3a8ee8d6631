#include "account/screens/Nickname.h"

#include "account/screens/TypedText.h"
#include "core/util/Service.h"

QString limitedNickname(const QString &text)
{
    return firstUnits(text, 10);
}

QString nicknameProblem(const QString &nick)
{
    if (Service::whetherAnEmptyString(nick))
        return QStringLiteral("请输入昵称");
    if (nick.size() >= 21)
        return QStringLiteral("昵称最多十个汉字");
    return {};
}
