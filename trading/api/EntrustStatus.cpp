#include "trading/api/EntrustStatus.h"

#include "core/util/Text.h"

#include <algorithm>

EntrustStatus EntrustStatus::of(const QString &status)
{
    static const EntrustStatus waiting{QStringLiteral("委托中"), Waiting};
    static const EntrustStatus cancelling{QStringLiteral("撤单中"), Plain};
    static const EntrustStatus cancelled{QStringLiteral("已撤单"), Plain};
    static const QList<EntrustStatus> table{
        waiting,
        waiting,
        waiting,
        cancelling,
        cancelling,
        cancelled,
        cancelled,
        {QStringLiteral("部分成交"), Dealt},
        {QStringLiteral("已成交"), Dealt},
        {QStringLiteral("废单"), Plain},
    };
    const bool isCode = std::any_of(status.begin(), status.end(), [](QChar c) { return c.isDigit(); });
    return isCode ? table.value(integerValue(status)) : EntrustStatus();
}
