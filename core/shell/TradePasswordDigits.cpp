#include "core/shell/TradePasswordDigits.h"

#include "core/util/Amount.h"

void TradePasswordDigits::setText(const QString &text)
{
    QString cleaned = clearSpaceAndWrap(text);
    cleaned.removeIf([](QChar c) { return c < u'0' || c > u'9'; });
    digits = cleaned.left(length);
}

void TradePasswordDigits::wipe()
{
    digits.fill(u'\0');
    digits.clear();
}
