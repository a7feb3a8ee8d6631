#include "core/util/Service.h"

#include "core/session/SettingsKeys.h"
#include "tests/support/TestPlatform.h"

using namespace std::chrono_literals;

namespace {

const QVariant null = QVariant::fromValue(nullptr);

QString digits(int count)
{
    return QStringLiteral("1234567890123456789012").left(count);
}

QString ideographs(int count)
{
    return QString(count, u'张');
}

TEST(Validators, MatchTheWholeText)
{
    struct Case {
        const char *name;
        bool (*isRight)(const QString &);
        QStringList right;
        QStringList wrong;
    };
    const Case cases[] = {
        {"phone",
         Service::determineThePhoneNumberFormat,
         {"13812345678", "14512345678", "14712345678", "15912345678", "17012345678", "17612345678",
          "17812345678", "18012345678"},
         {QString(), "1381234567", "138123456789", "14612345678", "17112345678", "16612345678", "19912345678",
          "23812345678", "13812345678\n", " 13812345678", "+8613812345678", "1381234567８"}},
        {"captcha",
         Service::isRightFormatPhoneCaptcha,
         {digits(6), "000000"},
         {QString(), digits(5), digits(7), "12345a", digits(6) + u'\n', "12 456"}},
        {"card",
         Service::judgmentBankcardFormat,
         {digits(16), digits(17), digits(19)},
         {QString(), digits(15), digits(20), "6222 0212 3456 7890", digits(16) + u'\n', u'x' + digits(16)}},
        {"branch",
         Service::judgmentBankBranchFormat,
         {ideographs(2), ideographs(20), "一龥"},
         {QString(), ideographs(1), ideographs(21), "张a", "张 三", ideographs(2) + u'\n'}},
        {"name", Service::determineNameFormat, {"张三", "欧阳娜娜"}, {"张", "阿·凡提", "Li", QString()}},
        {"identity",
         Service::determineIdentityFormat,
         {digits(15), digits(18), digits(17) + u'X', digits(17) + u'x'},
         {QString(), digits(14), digits(16), digits(17), digits(19), digits(16) + "X1", digits(14) + u'X',
          digits(17) + u'Y', digits(15) + u'\n', digits(18) + u'\n', digits(15) + u'\n' + digits(18)}},
    };
    for (const Case &c : cases) {
        for (const QString &text : c.right)
            EXPECT_TRUE(c.isRight(text)) << c.name << ' ' << text.toStdString();
        for (const QString &text : c.wrong)
            EXPECT_FALSE(c.isRight(text)) << c.name << ' ' << text.toStdString();
    }
}

TEST(Masking, HidesWhatIsPersonal)
{
    struct Case {
        QString (*mask)(const QString &);
        const char *text;
        const char *masked;
    };
    const Case cases[] = {
        {Service::encryptionPhoneNumber, "13812345678", "138****5678"},
        {Service::encryptionPhoneNumber, "138", "138"},
        {Service::encryptionPhoneNumber, "", ""},
        {Service::encryptionBankcard, "6222021234567890", "************7890"},
        {Service::encryptionBankcard, "6222021234567890123", "***************0123"},
        {Service::encryptionBankcard, "123", "123"},
        {Service::encryptionBankcard, "", ""},
        {Service::encryptionName, "", ""},
        {Service::encryptionName, "张", "张"},
        {Service::encryptionName, "张三", "张*"},
        {Service::encryptionName, "张三丰", "张**"},
        {Service::encryptionName, "欧阳娜娜", "欧阳**"},
        // Counted in UTF-16 units, two for this ideograph.
        {Service::encryptionName, "张𠮷", "张**"},
        {Service::getBankcardStingByNormalString, "", ""},
        {Service::getBankcardStingByNormalString, "1234", "1234"},
        {Service::getBankcardStingByNormalString, "12345", "1234 5"},
        {Service::getBankcardStingByNormalString, "1234 56789", "1234 5678 9"},
        {Service::getBankcardStingByNormalString, "1234567890123456", "1234567890123456"},
        {Service::getBankcardStingByNormalString, "123456789012345", "12345678901234 5"},
        {Service::removeSpacesFromString, " 1234 5678 ", "12345678"},
    };
    for (const Case &c : cases)
        EXPECT_EQ(c.mask(QString::fromUtf8(c.text)).toStdString(), c.masked);
}

TEST(Emptiness, HasOneTest)
{
    for (const QVariant &empty :
         {QVariant(), null, QVariant(QString()), QVariant(" \t　"), QVariant("<null>"), QVariant("(null)")})
        EXPECT_TRUE(Service::whetherAnEmptyString(empty));
    for (const QVariant &full : {QVariant(0), QVariant(false), QVariant("\n"), QVariant(" (null)"),
                                 QVariant("null"), QVariant(QVariantMap()), QVariant(QVariantList())})
        EXPECT_FALSE(Service::whetherAnEmptyString(full)) << full.toString().toStdString();
}

TEST(Emptiness, NullsOfDictionariesBecomeTextsThoseOfListsStay)
{
    const QString nullText = "<null>";
    const QVariantMap dirty{{"a", null},
                            {"b", nullText},
                            {"c", "(null)"},
                            {"d", QVariantList{null, nullText, QVariantMap{{"e", null}}}},
                            {"f", QVariantMap{{"g", null}, {"h", 7}}}};
    const QVariantMap before = dirty;
    const QString empty = "";
    const QVariantMap clean{{"a", empty},
                            {"b", empty},
                            {"c", "(null)"},
                            {"d", QVariantList{null, nullText, QVariantMap{{"e", empty}}}},
                            {"f", QVariantMap{{"g", empty}, {"h", 7}}}};
    EXPECT_EQ(Service::processDictionaryIsNSNull(dirty).toMap(), clean);
    EXPECT_EQ(dirty, before);
    EXPECT_EQ(Service::processDictionaryIsNSNull(nullText), QVariant(nullText));
    EXPECT_EQ(Service::processDictionaryIsNSNull(null), null);
    EXPECT_FALSE(Service::processDictionaryIsNSNull(QVariant()).isValid());
}

TEST(Numbers, ShowLargeSumsInTenThousands)
{
    const std::pair<qint64, const char *> cases[] = {
        {10000, "10000"}, {10001, "1万"},     {15000, "1万"},
        {19999, "1万"},   {200000, "20万"},   {0, "0"},
        {-5, "-5"},       {-20000, "-20000"}, {std::numeric_limits<qint64>::max(), "922337203685477万"}};
    for (const auto &[amount, text] : cases)
        EXPECT_EQ(Service::formatTenThousandAmout(amount).toStdString(), text);
    for (const qint64 number : {100, 200, 100000})
        EXPECT_TRUE(Service::isMultipleOfOneHundred(number)) << number;
    for (const qint64 number : {0, -100, 99, 150, 1})
        EXPECT_FALSE(Service::isMultipleOfOneHundred(number)) << number;
    EXPECT_TRUE(Service::isMultipleOfOneThousand(1000));
    for (const qint64 number : {0, -1000, 100, 1500})
        EXPECT_FALSE(Service::isMultipleOfOneThousand(number)) << number;
    EXPECT_EQ(Service::monthLengthForString("12个月"), 2);
    EXPECT_EQ(Service::monthLengthForString(QString()), 1);
    EXPECT_EQ(Service::monthLengthForString("12月"), Service::notFound);
    EXPECT_EQ(Service::getMd5_32Bit_String("实盘"), "ee5a6d372a0f6fff94a98d5142cfe9e6");
}

TEST(Stamps, AreShownInTheZoneOfTheDevice)
{
    const QVariant stamp = "1700000000999";
    EXPECT_EQ(Service::formatTimeStamp(stamp), "06:13:20");
    EXPECT_EQ(Service::formatDateStamp(1700000000000LL), "2023-11-15 06:13");
    EXPECT_EQ(Service::formatDayStamp(1700000000000.0), "2023-11-15");

    const QByteArray zone = qgetenv("TZ");
    qputenv("TZ", "America/New_York");
    tzset();
    EXPECT_EQ(Service::formatDateStamp(stamp), "2023-11-14 17:13");
    qputenv("TZ", zone);
    tzset();

    EXPECT_EQ(Service::formatDayStamp(QString()), "1970-01-01");
    EXPECT_EQ(Service::formatDayStamp(1e300), "9999-12-31");
    Service::formatDayStamp(-1e300);
}

class ServiceTest : public PlatformTest {};

TEST_F(ServiceTest, KnowsTheNetworkFromTheStore)
{
    EXPECT_TRUE(Service::isConnectionAvailable());
    EXPECT_EQ(banners(), QStringList());
    settings.setValue(SettingsKeys::networkStatus, false);
    EXPECT_FALSE(Service::isConnectionAvailable());
    EXPECT_EQ(banners(), QStringList({"网络异常"}));
    settings.remove(SettingsKeys::networkStatus);
    EXPECT_FALSE(Service::isConnectionAvailable());
}

TEST_F(ServiceTest, IsSignedInByThePresenceOfATokenAlone)
{
    EXPECT_FALSE(Service::isLogin());
    settings.setValue(SettingsKeys::user, QVariantMap{{"cell", "1"}});
    EXPECT_FALSE(Service::isLogin());
    settings.setValue(SettingsKeys::user, QVariantMap{{"api_token", ""}});
    EXPECT_TRUE(Service::isLogin());
    settings.setValue(SettingsKeys::user, "junk");
    EXPECT_FALSE(Service::isLogin());
}

TEST_F(ServiceTest, SigningOutWipesEverythingButTheDevicesOwnFlags)
{
    const QStringList kept{"CFBundleVersion", "firstEnterCommissions", "isFirstSeeMyCapital",
                           "isFirstSeeSpeedCapital", "networkStatus"};
    signIn();
    for (const QString &key : kept)
        settings.setValue(key, "kept");
    for (const char *key : {"info_version", "commission", "Holding", "somebody's", "isFirstLogin"})
        settings.setValue(QLatin1String(key), 1);
    settings.setValue(SettingsKeys::needTradePwd, false);
    settings.flushes = 0;
    int posted = 0;
    QObject::connect(&notifications, &NotificationCenter::posted, &overlays, [&posted] { ++posted; });

    Service::logout();

    QStringList left = settings.allKeys();
    left.removeOne(SettingsKeys::needTradePwd);
    EXPECT_EQ(left, kept);
    EXPECT_EQ(settings.value(SettingsKeys::needTradePwd), QVariant(true));
    EXPECT_EQ(settings.flushes, 1);
    EXPECT_EQ(kits.calls, QStringList({"setAlias off_line api_token"}));
    EXPECT_EQ(http.count(), 0);
    EXPECT_EQ(posted, 0);
}

} // namespace
