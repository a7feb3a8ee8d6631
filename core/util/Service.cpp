#include "core/util/Service.h"

#include "core/platform/Overlays.h"
#include "core/platform/Platform.h"
#include "core/platform/PushService.h"
#include "core/platform/SettingsStore.h"
#include "core/session/SettingsKeys.h"
#include "core/util/Text.h"

#include <QCryptographicHash>
#include <QDateTime>
#include <QLocale>
#include <QRegularExpression>
#include <algorithm>
#include <array>
#include <cmath>

namespace {

bool matches(const QRegularExpression &pattern, const QString &text)
{
    return pattern.match(text).hasMatch();
}

QRegularExpression whole(const QString &pattern)
{
    return QRegularExpression(QRegularExpression::anchoredPattern(pattern));
}

/// Most texts that are asked about are figures: they need no closer look.
bool startsLikeAFigure(const QString &text)
{
    return !text.isEmpty() && text.front() >= u'0' && text.front() <= u'9';
}

/// Adds one to a text of decimal digits.
void addOne(QString &digits)
{
    qsizetype at = digits.size() - 1;
    while (at >= 0 && digits[at] == u'9')
        digits[at--] = u'0';
    if (at < 0)
        digits.prepend(u'1');
    else
        digits[at] = QChar(digits[at].unicode() + 1);
}

/// The cents of a plain decimal number without a sign, half-even in the digits as written.
QString roundedCents(const QString &number)
{
    const QString yuan = number.section(u'.', 0, 0);
    const QString fraction = number.section(u'.', 1);
    QString cents = yuan + fraction.left(2).leftJustified(2, u'0');
    const QString rest = fraction.mid(2);
    if (rest.isEmpty() || rest[0] < u'5')
        return cents;
    const bool isHalf = rest[0] == u'5' && rest.count(u'0') == rest.size() - 1;
    const bool isEven = cents.back().digitValue() % 2 == 0;
    if (!isHalf || !isEven)
        addOne(cents);
    return cents;
}

QString formatStamp(const QVariant &stamp, const QString &format)
{
    // Within the years that the format can write.
    constexpr double latest = 253'402'214'400'000.0;
    const double milliseconds = std::clamp(doubleValue(stamp), -latest, latest);
    return QDateTime::fromMSecsSinceEpoch(static_cast<qint64>(std::floor(milliseconds))).toString(format);
}

} // namespace

QString Service::encryptionPhoneNumber(const QString &text)
{
    return text.size() < 7 ? text : QString(text).replace(3, 4, QStringLiteral("****"));
}

QString Service::encryptionBankcard(const QString &text)
{
    const qsizetype hidden = std::max<qsizetype>(text.size() - 4, 0);
    return QString(hidden, u'*') + text.sliced(hidden);
}

QString Service::encryptionName(const QString &text)
{
    const qsizetype hidden = text.size() < 2 ? 0 : text.size() == 2 ? 1 : 2;
    return text.chopped(hidden) + QString(hidden, u'*');
}

QString Service::getBankcardStingByNormalString(const QString &text)
{
    return text.size() >= 4 && text.size() % 5 == 0 ? QString(text).insert(text.size() - 1, u' ') : text;
}

QString Service::removeSpacesFromString(const QString &text)
{
    return QString(text).remove(u' ');
}

bool Service::determineThePhoneNumberFormat(const QString &text)
{
    static const QRegularExpression pattern =
        whole(QStringLiteral("(^(13[0-9]|14[57]|15[0-9]|18[0-9]|17[0678])[0-9]{8}$)"));
    return matches(pattern, text);
}

bool Service::isRightFormatPhoneCaptcha(const QString &text)
{
    static const QRegularExpression pattern = whole(QStringLiteral("(^[\\d]{6}$)"));
    return matches(pattern, text);
}

bool Service::judgmentBankcardFormat(const QString &text)
{
    static const QRegularExpression pattern = whole(QStringLiteral("(^([0-9]{16,19})$)"));
    return matches(pattern, text);
}

bool Service::judgmentBankBranchFormat(const QString &text)
{
    static const QRegularExpression pattern = whole(QStringLiteral("(^([一-龥]{2,20})$)"));
    return matches(pattern, text);
}

bool Service::determineNameFormat(const QString &text)
{
    return judgmentBankBranchFormat(text);
}

bool Service::determineIdentityFormat(const QString &text)
{
    static const QRegularExpression pattern =
        whole(QStringLiteral("(^(\\d{15}$|^\\d{18}$|^\\d{17}(\\d|X|x))$)"));
    return matches(pattern, text);
}

bool Service::whetherAnEmptyString(const QVariant &value)
{
    if (!value.isValid() || isNullMarker(value))
        return true;
    if (value.typeId() == QMetaType::QVariantMap || value.typeId() == QMetaType::QVariantList)
        return false;
    if (value.typeId() == QMetaType::QString &&
        startsLikeAFigure(*static_cast<const QString *>(value.constData())))
        return false;
    const QString text = textForm(value);
    return trimBlanks(text).isEmpty() || text == QLatin1String("<null>") || text == QLatin1String("(null)");
}

QVariant Service::processDictionaryIsNSNull(const QVariant &value)
{
    if (value.typeId() == QMetaType::QVariantMap) {
        QVariantMap cleaned = value.toMap();
        for (QVariant &entry : cleaned) {
            const bool isNull = isNullMarker(entry) || (entry.typeId() == QMetaType::QString &&
                                                        entry.toString() == QLatin1String("<null>"));
            entry = isNull ? QVariant(QStringLiteral("")) : processDictionaryIsNSNull(entry);
        }
        return cleaned;
    }
    if (value.typeId() == QMetaType::QVariantList) {
        QVariantList cleaned = value.toList();
        for (QVariant &element : cleaned)
            element = processDictionaryIsNSNull(element);
        return cleaned;
    }
    return value;
}

QString Service::formatAmountNumber(const QVariant &amount)
{
    QString number = QString::number(doubleValue(amount), 'f', QLocale::FloatingPointShortest);
    const bool negative = number.startsWith(u'-');
    QString text = roundedCents(negative ? number.sliced(1) : number);
    const bool isZero = text.count(u'0') == text.size();
    text.insert(text.size() - 2, u'.');
    for (qsizetype at = text.size() - 6; at > 0; at -= 3)
        text.insert(at, u',');
    return negative && !isZero ? u'-' + text : text;
}

QString Service::formatTenThousandAmout(qint64 amount)
{
    // Kept on purpose: ten thousand itself is still written out.
    return amount >= 10001 ? QString::number(amount / 10000) + QStringLiteral("万") : QString::number(amount);
}

bool Service::isMultipleOfOneHundred(qint64 number)
{
    return number >= 100 && number % 100 == 0;
}

bool Service::isMultipleOfOneThousand(qint64 number)
{
    return number >= 1000 && number % 1000 == 0;
}

QString Service::formatTimeStamp(const QVariant &stamp)
{
    return formatStamp(stamp, QStringLiteral("HH:mm:ss"));
}

QString Service::formatDateStamp(const QVariant &stamp)
{
    return formatStamp(stamp, QStringLiteral("yyyy-MM-dd HH:mm"));
}

QString Service::formatDayStamp(const QVariant &stamp)
{
    return formatStamp(stamp, QStringLiteral("yyyy-MM-dd"));
}

qint64 Service::monthLengthForString(const QString &text)
{
    if (text.isEmpty())
        return 1;
    const qsizetype at = text.indexOf(QStringLiteral("个月"));
    return at < 0 ? notFound : at;
}

QString Service::getMd5_32Bit_String(const QString &text)
{
    return QString::fromLatin1(QCryptographicHash::hash(text.toUtf8(), QCryptographicHash::Md5).toHex());
}

void Service::showSuccessWithMsg(const QString &message)
{
    hideAlertView();
    Platform::current().overlays.showBannerLater(BannerKind::Success, message);
}

void Service::showErrorWithMsg(const QString &message)
{
    hideAlertView();
    Platform::current().overlays.showBanner(BannerKind::Error, message);
}

void Service::showLoadFailView()
{
    showErrorWithMsg(QStringLiteral("加载失败"));
}

void Service::showNotReachableView()
{
    showErrorWithMsg(QStringLiteral("网络异常"));
}

void Service::hideAlertView()
{
    Platform::current().overlays.hideBanners();
}

void Service::showWaitingProgressView()
{
    Platform::current().overlays.showWaiting(QStringLiteral("加载中..."));
}

void Service::hideWaitingProgressView()
{
    Platform::current().overlays.hideWaiting();
}

bool Service::isConnectionAvailable()
{
    const bool available = boolValue(Platform::current().settings.value(SettingsKeys::networkStatus));
    if (!available)
        showNotReachableView();
    return available;
}

bool Service::isLogin()
{
    return Platform::current()
        .settings.value(SettingsKeys::user)
        .toMap()
        .contains(QStringLiteral("api_token"));
}

void Service::logout()
{
    static const std::array kept{SettingsKeys::networkStatus, SettingsKeys::isFirstSeeSpeedCapital,
                                 SettingsKeys::isFirstSeeMyCapital, SettingsKeys::bundleVersion,
                                 SettingsKeys::firstEnterCommissions};
    SettingsStore &settings = Platform::current().settings;
    const QStringList keys = settings.allKeys();
    for (const QString &key : keys) {
        if (std::find(kept.begin(), kept.end(), key) == kept.end())
            settings.remove(key);
    }
    Platform::current().push.setAlias(QStringLiteral("off_line"), QStringLiteral("api_token"));
    settings.setValue(SettingsKeys::needTradePwd, true);
    settings.synchronize();
}
