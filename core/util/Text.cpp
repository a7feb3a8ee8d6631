#include "core/util/Text.h"

#include <QLocale>
#include <QMetaProperty>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>

namespace {

bool isNumber(const QVariant &value)
{
    switch (value.typeId()) {
    case QMetaType::Bool:
    case QMetaType::Int:
    case QMetaType::UInt:
    case QMetaType::Long:
    case QMetaType::ULong:
    case QMetaType::LongLong:
    case QMetaType::ULongLong:
    case QMetaType::Float:
    case QMetaType::Double:
        return true;
    default:
        return false;
    }
}

bool isFloating(const QVariant &value)
{
    return value.typeId() == QMetaType::Double || value.typeId() == QMetaType::Float;
}

bool isDigit(QChar c)
{
    return c >= u'0' && c <= u'9';
}

qsizetype skipDigits(const QString &text, qsizetype at)
{
    while (at < text.size() && isDigit(text[at]))
        ++at;
    return at;
}

/// Digits, also in groups as in "12,345,678".
qsizetype skipWhole(const QString &text, qsizetype at)
{
    constexpr qsizetype group = 3;
    const qsizetype first = at;
    at = skipDigits(text, at);
    if (at == first || at - first > group)
        return at;
    while (at < text.size() && text[at] == u',' && skipDigits(text, at + 1) == at + 1 + group)
        at += 1 + group;
    return at;
}

qsizetype skipSign(const QString &text, qsizetype at)
{
    return at < text.size() && (text[at] == u'+' || text[at] == u'-') ? at + 1 : at;
}

qsizetype skipSpace(const QString &text)
{
    const auto found = std::find_if(text.begin(), text.end(), [](QChar c) { return !c.isSpace(); });
    return found - text.begin();
}

/// The part of `text` that reads as a decimal number, groups and all; empty when no digit stands in it.
QStringView leadingNumber(const QString &text)
{
    const qsizetype start = skipSpace(text);
    const qsizetype whole = skipSign(text, start);
    qsizetype end = skipWhole(text, whole);
    qsizetype digits = end - whole;
    if (end < text.size() && text[end] == u'.') {
        const qsizetype fraction = end + 1;
        end = skipDigits(text, fraction);
        digits += end - fraction;
    }
    if (digits == 0)
        return {};
    if (end < text.size() && (text[end] == u'e' || text[end] == u'E')) {
        const qsizetype exponent = skipSign(text, end + 1);
        const qsizetype exponentEnd = skipDigits(text, exponent);
        if (exponentEnd > exponent)
            end = exponentEnd;
    }
    return QStringView(text).sliced(start, end - start);
}

/// The locale reads what is beyond all numbers too, but the detour costs more than the reading.
double asciiNumber(QStringView number)
{
    QVarLengthArray<char, 64> ascii;
    for (const QChar c : number) {
        if (c != u',')
            ascii.append(c.toLatin1());
    }
    const char *const end = ascii.data() + ascii.size();
    const char *const start = number.startsWith(u'+') ? ascii.data() + 1 : ascii.data();
    double value = 0;
    const auto [read, problem] = std::from_chars(start, end, value);
    return problem == std::errc() && read == end ? value
                                                 : QLocale::c().toDouble(number.toString().remove(u','));
}

double finiteNumber(double number)
{
    constexpr double largest = std::numeric_limits<double>::max();
    return std::isnan(number) ? 0 : std::clamp(number, -largest, largest);
}

/// 2^63: the first double above every whole number of 64 bits.
constexpr double wholeLimit = 9223372036854775808.0;

qint64 wholePart(double number)
{
    if (number >= wholeLimit)
        return std::numeric_limits<qint64>::max();
    if (number < -wholeLimit)
        return std::numeric_limits<qint64>::min();
    return static_cast<qint64>(number);
}

QString numberText(double number)
{
    if (std::trunc(number) == number && std::abs(number) < wholeLimit)
        return QString::number(static_cast<qint64>(number));
    return QString::number(number, 'g', QLocale::FloatingPointShortest);
}

} // namespace

bool isNullMarker(const QVariant &value)
{
    return value.typeId() == QMetaType::Nullptr;
}

QString textForm(const QVariant &value)
{
    if (value.typeId() == QMetaType::QString)
        return value.toString();
    if (value.typeId() == QMetaType::Bool)
        return value.toBool() ? QStringLiteral("1") : QStringLiteral("0");
    if (isFloating(value))
        return numberText(value.toDouble());
    return isNumber(value) ? value.toString() : QString();
}

double doubleValue(const QVariant &value)
{
    if (isNumber(value))
        return finiteNumber(value.toDouble());
    const QString text = textForm(value);
    return finiteNumber(asciiNumber(leadingNumber(text)));
}

bool holdsNumber(const QVariant &value)
{
    const QString text = textForm(value);
    return !leadingNumber(text).isEmpty();
}

qint64 integerValue(const QVariant &value)
{
    if (isFloating(value))
        return wholePart(finiteNumber(value.toDouble()));
    if (isNumber(value))
        return value.toLongLong();

    const QString text = textForm(value);
    const qsizetype start = skipSpace(text);
    const qsizetype end = skipWhole(text, skipSign(text, start));
    const QString digits = text.sliced(start, end - start).remove(u',');
    bool fits = false;
    const qint64 number = digits.toLongLong(&fits);
    return fits ? number : wholePart(finiteNumber(digits.toDouble()));
}

bool boolValue(const QVariant &value)
{
    if (isNumber(value))
        return value.toDouble() != 0;
    const QString text = textForm(value);
    qsizetype at = skipSign(text, skipSpace(text));
    while (at < text.size() && text[at] == u'0')
        ++at;
    return at < text.size() && (isDigit(text[at]) || QStringView(u"YyTt").contains(text[at]));
}

QString trimBlanks(const QString &text)
{
    const auto isBlank = [](QChar c) { return c == u'\t' || c.category() == QChar::Separator_Space; };
    const auto first = std::find_if_not(text.begin(), text.end(), isBlank);
    const auto last = std::find_if_not(text.rbegin(), std::make_reverse_iterator(first), isBlank).base();
    return text.sliced(first - text.begin(), last - first);
}

void fillGadget(const QMetaObject &type, void *gadget, const QVariantMap &map)
{
    for (int i = 0; i < type.propertyCount(); ++i) {
        const QMetaProperty property = type.property(i);
        const auto entry = map.constFind(QLatin1String(property.name()));
        if (entry == map.constEnd() || property.typeId() != QMetaType::QString)
            continue;
        const QString text = textForm(*entry);
        // A property of a member is written only where it differs, and an empty text equals the null one that
        // is there.
        if (text.isEmpty())
            property.writeOnGadget(gadget, QStringLiteral(" "));
        property.writeOnGadget(gadget, text.isEmpty() ? QStringLiteral("") : text);
    }
}

QVariantMap gadgetToMap(const QMetaObject &type, const void *gadget)
{
    QVariantMap map;
    for (int i = 0; i < type.propertyCount(); ++i) {
        const QMetaProperty property = type.property(i);
        const QVariant value = property.readOnGadget(gadget);
        if (value.typeId() == QMetaType::QString && !value.toString().isNull())
            map.insert(QLatin1String(property.name()), value);
    }
    return map;
}
