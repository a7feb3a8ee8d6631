#pragma once

#include <QString>
#include <QVariant>

/// Helpers of every screen and tool. Characters are UTF-16 units. Nothing here talks to the server, nothing
/// here fails.
class Service {
public:
    Service() = delete;

    static QString encryptionPhoneNumber(const QString &text);
    static QString encryptionBankcard(const QString &text);
    static QString encryptionName(const QString &text);
    static QString getBankcardStingByNormalString(const QString &text);
    static QString removeSpacesFromString(const QString &text);

    static bool determineThePhoneNumberFormat(const QString &text);
    static bool isRightFormatPhoneCaptcha(const QString &text);
    static bool judgmentBankcardFormat(const QString &text);
    static bool judgmentBankBranchFormat(const QString &text);
    static bool determineNameFormat(const QString &text);
    static bool determineIdentityFormat(const QString &text);

    static bool whetherAnEmptyString(const QVariant &value);
    static QVariant processDictionaryIsNSNull(const QVariant &value);

    static QString formatAmountNumber(const QVariant &amount);
    static QString formatTenThousandAmout(qint64 amount);
    static bool isMultipleOfOneHundred(qint64 number);
    static bool isMultipleOfOneThousand(qint64 number);
    /// The stamps are milliseconds since 1970, shown in the device's time zone.
    static QString formatTimeStamp(const QVariant &stamp);
    static QString formatDateStamp(const QVariant &stamp);
    static QString formatDayStamp(const QVariant &stamp);
    /// The position of "个月"; 1 for an empty text, `notFound` where it does not stand.
    static qint64 monthLengthForString(const QString &text);
    static constexpr qint64 notFound = 0x7fffffffffffffff;
    static QString getMd5_32Bit_String(const QString &text);

    static void showSuccessWithMsg(const QString &message);
    static void showErrorWithMsg(const QString &message);
    static void showLoadFailView();
    static void showNotReachableView();
    static void hideAlertView();
    static void showWaitingProgressView();
    static void hideWaitingProgressView();

    /// The last known network state; shows "网络异常" when there is none.
    static bool isConnectionAvailable();
    /// Only the presence of an "api_token" entry counts, not its value.
    static bool isLogin();
    static void logout();
};
