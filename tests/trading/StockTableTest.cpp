#include "core/net/KRAFHTTPClient.h"
#include "core/session/SettingsKeys.h"
#include "core/util/Service.h"
#include "tests/trading/StockTableFixture.h"

#include <QFile>
#include <sqlite3.h>

namespace {
using StockInfoToolTest = StockTableTest;

QVariantMap newList(const QVariantList &rows, const QString &version = QStringLiteral("7"))
{
    return {{QStringLiteral("success"), false},
            {QStringLiteral("code"), version},
            {QStringLiteral("data"), rows}};
}

QVariantMap listed(const QString &c, const QString &n, const QString &s)
{
    return {{QStringLiteral("c"), c}, {QStringLiteral("n"), n}, {QStringLiteral("s"), s}};
}
} // namespace

TEST_F(StockInfoToolTest, ARefusalBringsTheNewListAndCallsNothing)
{
    int calls = 0;
    QObject owner;
    TZStockInfoTool::getStockInfoWithParam(
        {{QStringLiteral("ignored"), 1}},
        Success(&owner, [&](const Operation &, const QVariantMap &) { ++calls; }),
        Failure(&owner, [&](const Operation &, const RequestError &) { ++calls; }));
    EXPECT_EQ(http.last().request.url, QStringLiteral("https://service.test/info"));
    EXPECT_FALSE(overlays.isWaiting());

    http.answer(
        QStringLiteral("info"),
        newList({listed(QStringLiteral("600123"), QStringLiteral("东方钢铁"), QStringLiteral("DFGT")),
                 listed(QStringLiteral("000045"), QStringLiteral("南海医药"), QStringLiteral("NHYY"))}));
    EXPECT_EQ(settings.value(SettingsKeys::infoVersion), QStringLiteral("7"));
    EXPECT_GT(settings.flushes, 0);
    waitUntilSaved();
    EXPECT_EQ(codesOf(TZStockInfoTool::queryWithCondition({})),
              (QStringList{QStringLiteral("600123"), QStringLiteral("000045")}));
    EXPECT_EQ(calls, 0);
    EXPECT_TRUE(banners().isEmpty());
}

TEST_F(StockInfoToolTest, AnAcceptedAnswerMeansThatNothingIsNewer)
{
    save({{QStringLiteral("600123"), QStringLiteral("东方钢铁"), QStringLiteral("DFGT")}});
    settings.setValue(SettingsKeys::infoVersion, QStringLiteral("6"));
    int calls = 0;
    QObject owner;
    TZStockInfoTool::getStockInfoWithParam(
        {}, Success(&owner, [&](const Operation &, const QVariantMap &) { ++calls; }), {});
    EXPECT_EQ(http.last().header("info_version"), "6");
    Service::showWaitingProgressView();
    QVariantMap answer = newList({listed(QStringLiteral("1"), QStringLiteral("2"), QStringLiteral("3"))});
    answer.insert(QStringLiteral("success"), true);
    http.answer(QStringLiteral("info"), answer);

    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(overlays.isWaiting());
    EXPECT_FALSE(TZStockInfoTool::isSaving());
    EXPECT_EQ(settings.value(SettingsKeys::infoVersion), QStringLiteral("6"));
    EXPECT_EQ(codesOf(TZStockInfoTool::queryWithCondition({})), QStringList{QStringLiteral("600123")});
}

TEST_F(StockInfoToolTest, ANewVersionWithoutAUsableListLeavesTheTable)
{
    save({{QStringLiteral("600123"), QStringLiteral("东方钢铁"), QStringLiteral("DFGT")}});
    const QVariantList noLists{QVariant(), QVariant::fromValue(nullptr),
                               QVariantMap{{QStringLiteral("c"), 1}}, QStringLiteral("x"), 5};
    for (const QVariant &data : noLists) {
        TZStockInfoTool::getStockInfoWithParam({}, {}, {});
        QVariantMap answer{{QStringLiteral("success"), false}, {QStringLiteral("code"), QStringLiteral("8")}};
        if (data.isValid())
            answer.insert(QStringLiteral("data"), data);
        http.answer(QStringLiteral("info"), answer);
        EXPECT_FALSE(TZStockInfoTool::isSaving());
        EXPECT_EQ(settings.value(SettingsKeys::infoVersion), QStringLiteral("8"));
        EXPECT_EQ(TZStockInfoTool::queryWithCondition({}).size(), 1);
    }
}

TEST_F(StockInfoToolTest, ARefusalWithoutAVersionKeepsTheStoredOne)
{
    save({{QStringLiteral("600123"), QStringLiteral("东方钢铁"), QStringLiteral("DFGT")}});
    settings.setValue(SettingsKeys::infoVersion, QStringLiteral("6"));
    TZStockInfoTool::getStockInfoWithParam({}, {}, {});
    http.answer(QStringLiteral("info"), refused(QStringLiteral("系统维护中")));
    EXPECT_EQ(settings.value(SettingsKeys::infoVersion), QStringLiteral("6"));
    EXPECT_TRUE(banners().isEmpty());
}

TEST_F(StockInfoToolTest, ABrokenRowDoesNotCostTheOthers)
{
    const auto row = [](const QVariant &c, const QVariant &n) {
        return QVariantMap{{QStringLiteral("c"), c}, {QStringLiteral("n"), n}};
    };
    const QVariant null = QVariant::fromValue(nullptr);
    TZStockInfoTool::getStockInfoWithParam({}, {}, {});
    http.answer(QStringLiteral("info"),
                newList({row(QStringLiteral("600124"), null), row(null, QStringLiteral("西部水泥")),
                         QVariantMap(), QStringLiteral("600125"), QVariantList{1, 2}, null,
                         row(QStringLiteral("600126"), QStringLiteral("西部水泥"))}));
    waitUntilSaved();
    EXPECT_EQ(codesOf(TZStockInfoTool::queryWithCondition({})),
              QStringList({QStringLiteral("600124"), QStringLiteral("600126")}));
}

TEST_F(StockInfoToolTest, AListThatCannotBeInsertedEmptiesTheTableAndIsAskedForAgain)
{
    save({{QStringLiteral("600123"), QString(), QStringLiteral("DFGT")}});
    EXPECT_TRUE(TZStockInfoTool::isTableEmpty());
    settings.setValue(SettingsKeys::infoVersion, QStringLiteral("6"));
    TZStockInfoTool::getStockInfoWithParam({}, {}, {});
    EXPECT_EQ(http.last().header("info_version"), "")
        << "the version of a list that is not there would hide it for ever";
}

TEST_F(StockInfoToolTest, EmptyTextsAndNumbersAreSaved)
{
    TZStockInfoTool::getStockInfoWithParam({}, {}, {});
    http.answer(QStringLiteral("info"),
                newList({QVariantMap{{QStringLiteral("c"), 600123},
                                     {QStringLiteral("n"), QStringLiteral("")},
                                     {QStringLiteral("s"), QStringLiteral("DFGT")}}}));
    waitUntilSaved();
    EXPECT_EQ(codesOf(TZStockInfoTool::queryWithCondition(QStringLiteral("dfgt"))),
              QStringList{QStringLiteral("600123")});
}

TEST_F(StockInfoToolTest, OfListsThatComeWhileOneIsBeingSavedTheLastOneStays)
{
    const auto listOf = [](const QString &prefix, int size) {
        QList<TZStockInfoModel> stocks;
        for (int i = 0; i < size; ++i)
            stocks.append({prefix + QString::number(i), QStringLiteral("某某股份"), QStringLiteral("MMGF")});
        return stocks;
    };
    TZStockInfoTool::saveStockInfo(listOf(QStringLiteral("a"), 6000));
    TZStockInfoTool::saveStockInfo(listOf(QStringLiteral("b"), 3000));
    TZStockInfoTool::saveStockInfo(listOf(QStringLiteral("c"), 10));
    waitUntilSaved();
    const QStringList codes = codesOf(TZStockInfoTool::queryWithCondition({}));
    ASSERT_EQ(codes.size(), 10);
    EXPECT_EQ(codes.first(), QStringLiteral("c0"));
    EXPECT_EQ(codes.last(), QStringLiteral("c9"));
}

TEST_F(StockInfoToolTest, FindsByAnyPartOfCodeNameOrInitials)
{
    save({{QStringLiteral("600123"), QStringLiteral("东方钢铁"), QStringLiteral("DFGT")},
          {QStringLiteral("000600"), QStringLiteral("南海医药"), QStringLiteral("NHYY")},
          {QStringLiteral("300001"), QStringLiteral("60米传媒"), QStringLiteral("LSMCM")},
          {QStringLiteral("300002"), QStringLiteral("海天😀"), QStringLiteral("HT")}});
    struct Case {
        QString condition;
        QStringList codes;
    };
    const QString all[] = {QStringLiteral("600123"), QStringLiteral("000600"), QStringLiteral("300001"),
                           QStringLiteral("300002")};
    const Case cases[] = {
        {QString(), {all[0], all[1], all[2], all[3]}},
        {QStringLiteral("60"), {all[0], all[1], all[2]}},
        {QStringLiteral("海"), {all[1], all[3]}},
        {QStringLiteral("nhyy"), {all[1]}},
        {QStringLiteral("😀"), {all[3]}},
        {QStringLiteral("zzzz"), {}},
        {QStringLiteral("６０"), {}},
        {QStringLiteral("%"), {all[0], all[1], all[2], all[3]}},
        {QStringLiteral("6%3"), {all[0]}},
        {QStringLiteral("南_医"), {all[1]}},
        {QString(10000, u'6'), {}},
        {QString(10000, u'%'), {all[0], all[1], all[2], all[3]}},
        {QString(10000, u'海'), {}},
    };
    for (const Case &each : cases)
        EXPECT_EQ(codesOf(TZStockInfoTool::queryWithCondition(each.condition)), each.codes)
            << each.condition.left(20).toStdString();
}

TEST_F(StockInfoToolTest, AQuoteFindsNothingAndChangesNothing)
{
    save({{QStringLiteral("600123"), QStringLiteral("东方钢铁"), QStringLiteral("DFGT")},
          {QStringLiteral("000600"), QStringLiteral("南海医药"), QStringLiteral("NHYY")}});
    const QString conditions[] = {
        QStringLiteral("'"),
        QStringLiteral("60'"),
        QStringLiteral("x'; DELETE FROM t_stock;--"),
        QStringLiteral("3'; DELETE FROM t_stock;--"),
        QStringLiteral("3'; DROP TABLE t_stock; SELECT '"),
        QStringLiteral("'; ATTACH 'other.sqlite' AS other;--"),
        QString(QChar(0)) + u'\'',
        QString(QChar(0)),
    };
    for (const QString &condition : conditions)
        EXPECT_TRUE(TZStockInfoTool::queryWithCondition(condition).isEmpty()) << condition.toStdString();
    EXPECT_EQ(TZStockInfoTool::queryWithCondition({}).size(), 2);
}

TEST_F(StockInfoToolTest, AFileThatIsNoDatabaseLeavesAnEmptySearch)
{
    const QString path = application.documentsDirectory() + QStringLiteral("/stock.sqlite");
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    const QByteArray contents = QByteArray("not a database at all ").repeated(200);
    file.write(contents);
    file.close();

    const QString problem = TZStockInfoTool::tableProblem();
    EXPECT_TRUE(problem.contains(path) && !problem.contains(u'\n')) << problem.toStdString();
    EXPECT_TRUE(TZStockInfoTool::isTableEmpty());
    TZStockInfoTool::saveStockInfo(
        {{QStringLiteral("600123"), QStringLiteral("东方钢铁"), QStringLiteral("DFGT")}});
    EXPECT_FALSE(TZStockInfoTool::isSaving());
    EXPECT_TRUE(TZStockInfoTool::queryWithCondition({}).isEmpty());
    TZStockInfoTool::close();
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_EQ(file.readAll(), contents) << "somebody's file is not overwritten";
}

TEST_F(StockInfoToolTest, AFolderThatCannotBeReadLeavesAnEmptySearch)
{
    QDir().mkpath(application.documentsDirectory() + QStringLiteral("/stock.sqlite"));
    EXPECT_FALSE(TZStockInfoTool::tableProblem().isEmpty());
    EXPECT_TRUE(TZStockInfoTool::queryWithCondition(QStringLiteral("60")).isEmpty());
}

TEST_F(StockInfoToolTest, ALockHeldByAnotherProgramNeitherStallsNorLosesAList)
{
    save({{QStringLiteral("600123"), QStringLiteral("东方钢铁"), QStringLiteral("DFGT")}});
    const QByteArray path = (application.documentsDirectory() + QStringLiteral("/stock.sqlite")).toUtf8();
    sqlite3 *other = nullptr;
    ASSERT_EQ(sqlite3_open(path.constData(), &other), SQLITE_OK);
    ASSERT_EQ(sqlite3_exec(other, "BEGIN IMMEDIATE", nullptr, nullptr, nullptr), SQLITE_OK);

    QElapsedTimer clock;
    clock.start();
    TZStockInfoTool::saveStockInfo(
        {{QStringLiteral("000600"), QStringLiteral("南海医药"), QStringLiteral("NHYY")}});
    runLoop.advance(std::chrono::seconds(2));
    EXPECT_EQ(codesOf(TZStockInfoTool::queryWithCondition({})), QStringList{QStringLiteral("600123")});
    EXPECT_TRUE(TZStockInfoTool::isSaving());
    EXPECT_LT(clock.elapsed(), 500);

    sqlite3_exec(other, "COMMIT", nullptr, nullptr, nullptr);
    sqlite3_close(other);
    runLoop.advance(std::chrono::seconds(1));
    waitUntilSaved();
    EXPECT_EQ(codesOf(TZStockInfoTool::queryWithCondition({})), QStringList{QStringLiteral("000600")});
}

TEST_F(StockInfoToolTest, AnOldListThatCouldNotBeReplacedIsNotTakenForTheNewOne)
{
    save({{QStringLiteral("600123"), QStringLiteral("东方钢铁"), QStringLiteral("DFGT")}});
    const QByteArray path = (application.documentsDirectory() + QStringLiteral("/stock.sqlite")).toUtf8();
    sqlite3 *other = nullptr;
    ASSERT_EQ(sqlite3_open(path.constData(), &other), SQLITE_OK);
    const char *const trigger =
        "CREATE TRIGGER stays BEFORE DELETE ON t_stock BEGIN SELECT RAISE(ABORT, 'stays'); END";
    ASSERT_EQ(sqlite3_exec(other, trigger, nullptr, nullptr, nullptr), SQLITE_OK);
    sqlite3_close(other);

    TZStockInfoTool::getStockInfoWithParam({}, {}, {});
    http.answer(QStringLiteral("info"), newList({listed(QStringLiteral("000600"), QStringLiteral("南海医药"),
                                                        QStringLiteral("NHYY"))}));
    waitUntilSaved();
    EXPECT_EQ(codesOf(TZStockInfoTool::queryWithCondition({})), QStringList{QStringLiteral("600123")});
    EXPECT_FALSE(settings.value(SettingsKeys::infoVersion).isValid()) << "the next start asks for it again";
}

TEST_F(StockInfoToolTest, TheTableIsTheOneThatWasAgreed)
{
    TZStockInfoTool::queryWithCondition({});
    TZStockInfoTool::close();
    const QByteArray path = (application.documentsDirectory() + QStringLiteral("/stock.sqlite")).toUtf8();
    sqlite3 *handle = nullptr;
    ASSERT_EQ(sqlite3_open(path.constData(), &handle), SQLITE_OK);
    std::string schema;
    const auto collect = [](void *into, int, char **columns, char **) {
        *static_cast<std::string *>(into) += columns[0];
        return 0;
    };
    sqlite3_exec(handle, "SELECT sql FROM sqlite_master", collect, &schema, nullptr);
    sqlite3_close(handle);
    EXPECT_EQ(schema, "CREATE TABLE t_stock (c TEXT NOT NULL, n TEXT NOT NULL, s TEXT NOT NULL)");
}
