#include "trading/screens/TradeTexts.h"

#include "core/util/Service.h"
#include "core/util/Text.h"

QString TradeTexts::stock(const QString &name, const QString &code)
{
    return QStringLiteral("%1(%2)").arg(name, code);
}

bool TradeTexts::isSell(const QString &type)
{
    return integerValue(type) != 1;
}

QString TradeTexts::side(const QString &type)
{
    return isSell(type) ? QStringLiteral("卖出") : QStringLiteral("买入");
}

QString TradeTexts::time(const QString &stamp)
{
    bool isNumber = false;
    stamp.toDouble(&isNumber);
    return isNumber ? Service::formatDateStamp(stamp) : stamp;
}

QString TradeTexts::sentence(const QString &of, const QList<std::pair<QString, QString>> &figures)
{
    QString whole = of;
    for (const auto &[label, value] : figures) {
        if (!Service::whetherAnEmptyString(value))
            whole += u'，' + label + value;
    }
    return whole;
}
