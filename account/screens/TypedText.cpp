#include "account/screens/TypedText.h"

QString firstUnits(const QString &text, qsizetype most)
{
    if (text.size() <= most)
        return text;
    return text.left(text.at(most - 1).isHighSurrogate() ? most - 1 : most);
}
