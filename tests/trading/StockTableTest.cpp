#include "core/net/KRAFHTTPClient.h"
#include "core/session/SettingsKeys.h"
#include "core/util/Service.h"
#include "tests/support/BrokenAnswers.h"
#include "tests/trading/StockTableFixture.h"

#include <QDir>
#include <QFile>
#include <sqlite3.h>

namespace {
class StockInfoToolTest : public StockTableTest {
protected:
    QString version() const { return settings.value(SettingsKeys::infoVersion).toString(); }
    void setVersion(const QString &version) { settings.setValue(SettingsKeys::infoVersion, version); }

    /// The table as another program sees it.
    struct Closing {
        void operator()(sqlite3 *handle) const { sqlite3_close(handle); }
    };
    QString file() const { return application.documentsDirectory() + "/stock.sqlite"; }
    std::unique_ptr<sqlite3, Closing> openOther() const
    {
        sqlite3 *handle = nullptr;
        EXPECT_EQ(sqlite3_open(file().toUtf8().constData(), &handle), SQLITE_OK);
        return std::unique_ptr<sqlite3, Closing>(handle);
    }
    static void run(const std::unique_ptr<sqlite3, Closing> &handle, const char *sql)
    {
        EXPECT_EQ(sqlite3_exec(handle.get(), sql, nullptr, nullptr, nullptr), SQLITE_OK);
    }

    int calls = 0;
    const Success counting{&overlays, [this](const Operation &, const QVariantMap &) { ++calls; }};
};
} // namespace

TEST_F(StockInfoToolTest, ARefusalBringsTheNewListAndCallsNothing)
{
    const Failure failing{&overlays, [this](const Operation &, const RequestError &) { ++calls; }};
    TZStockInfoTool::getStockInfoWithParam({{"ignored", 1}}, counting, failing);
    EXPECT_EQ(http.last().request.url, "https://service.test/info");
    EXPECT_FALSE(overlays.isWaiting());
    const QVariant null = QVariant::fromValue(nullptr);
    http.answer("info", newList(QVariantList{listed("600124", null, ""), listed(null, "西部水泥", "XBSN"),
                                             QVariantMap(), "600125", QVariantList{1, 2}, null,
                                             listed(600126, "西部水泥", "XBSN")}));
    EXPECT_EQ(version(), "7");
    EXPECT_GT(settings.flushes, 0);
    waitUntilSaved();
    EXPECT_EQ(codes(), (QStringList{"600124", "600126"})) << "a broken row does not cost the others";
    EXPECT_EQ(calls, 0);
    EXPECT_TRUE(banners().isEmpty());
}

TEST_F(StockInfoToolTest, AnAcceptedAnswerMeansThatNothingIsNewer)
{
    save({steel});
    setVersion("6");
    TZStockInfoTool::getStockInfoWithParam({}, counting, {});
    EXPECT_EQ(http.last().header("info_version"), "6");
    Service::showWaitingProgressView();
    QVariantMap answer = newList(medicine);
    answer.insert("success", true);
    http.answer("info", answer);
    EXPECT_EQ(calls, 1);
    EXPECT_FALSE(overlays.isWaiting());
    EXPECT_FALSE(TZStockInfoTool::isSaving());
    EXPECT_EQ(version(), "6");
    EXPECT_EQ(codes(), QStringList{"600123"});
}

TEST_F(StockInfoToolTest, ANewVersionWithoutAUsableListLeavesTheTable)
{
    save({steel});
    for (const QVariant &data : {QVariant(), QVariant::fromValue(nullptr), QVariant(QVariantMap{{"c", 1}}),
                                 QVariant("x"), QVariant(5)}) {
        fetch(newList(data, "8"));
        EXPECT_EQ(version(), "8");
        EXPECT_EQ(codes().size(), 1);
    }
    fetch(refused("系统维护中"));
    EXPECT_EQ(version(), "8") << "none has come";
    EXPECT_TRUE(banners().isEmpty());
}

TEST_F(StockInfoToolTest, NoBrokenAnswerCostsTheTableOrItsVersion)
{
    save({steel});
    setVersion("6");
    QList<HttpOutcome> outcomes;
    for (const UnusableAnswer &answer : unusableAnswers())
        outcomes.append(answer.outcome);
    for (const QByteArray &body : misshapenSuccesses())
        outcomes.append(HttpResponse{200, "application/json", body});
    for (const HttpOutcome &outcome : outcomes) {
        const auto *response = std::get_if<HttpResponse>(&outcome);
        SCOPED_TRACE(response ? response->body.left(80).toStdString() : "no response");
        int finished = 0;
        const Operation request = TZStockInfoTool::getStockInfoWithParam({}, {}, {});
        QObject::connect(request.get(), &RequestOperation::finished, &overlays, [&] { ++finished; });
        http.answerRaw(http.last(), outcome);
        waitUntilSaved();
        EXPECT_EQ(finished, 1);
        EXPECT_EQ(codes().size(), 1);
        EXPECT_EQ(version(), "6");
    }
}

TEST_F(StockInfoToolTest, AListThatCannotBeInsertedEmptiesTheTableAndIsAskedForAgain)
{
    save({{"600123", QString(), "DFGT"}});
    EXPECT_TRUE(TZStockInfoTool::isTableEmpty());
    setVersion("6");
    TZStockInfoTool::getStockInfoWithParam({}, {}, {});
    EXPECT_EQ(http.last().header("info_version"), "")
        << "the version of a list that is not there would hide it for ever";
}

TEST_F(StockInfoToolTest, OfListsThatComeWhileOneIsBeingSavedTheLastOneStays)
{
    TZStockInfoTool::saveStockInfo(many(6000, "a"));
    TZStockInfoTool::saveStockInfo(many(3000, "b"));
    TZStockInfoTool::saveStockInfo(many(2, "c"));
    waitUntilSaved();
    EXPECT_EQ(codes(), (QStringList{"c000", "c001"}));
}

TEST_F(StockInfoToolTest, FindsByAnyPartOfCodeNameOrInitials)
{
    save({steel, medicine, {"300001", "60米传媒", "LSMCM"}, {"300002", "海天😀", "HT"}});
    const QStringList all{"600123", "000600", "300001", "300002"};
    const std::pair<QString, QStringList> cases[] = {
        {"", all},
        {"60", {"600123", "000600", "300001"}},
        {"海", {"000600", "300002"}},
        {"nhyy", {"000600"}},
        {"😀", {"300002"}},
        {"zzzz", {}},
        {"６０", {}},
        {"%", all},
        {"6%3", {"600123"}},
        {"南_医", {"000600"}},
        {QString(10000, u'6'), {}},
        {QString(10000, u'%'), all},
        // A quote finds nothing and changes nothing.
        {"'", {}},
        {"60'", {}},
        {"x'; DELETE FROM t_stock;--", {}},
        {"3'; DROP TABLE t_stock; SELECT '", {}},
        {"'; ATTACH 'other.sqlite' AS other;--", {}},
        {QString(QChar(0)) + u'\'', {}},
        {QString(QChar(0)), {}},
    };
    for (const auto &[condition, found] : cases)
        EXPECT_EQ(codesFoundBy(condition), found) << condition.left(20).toStdString();
    EXPECT_EQ(codes(), all);
}

TEST_F(StockInfoToolTest, AFileThatIsNoDatabaseLeavesAnEmptySearch)
{
    QFile other(file());
    ASSERT_TRUE(other.open(QIODevice::WriteOnly));
    const QByteArray contents = QByteArray("not a database at all ").repeated(200);
    other.write(contents);
    other.close();

    const QString problem = TZStockInfoTool::tableProblem();
    EXPECT_TRUE(problem.contains(file()) && !problem.contains(u'\n')) << problem.toStdString();
    EXPECT_TRUE(TZStockInfoTool::isTableEmpty());
    TZStockInfoTool::saveStockInfo({steel});
    EXPECT_FALSE(TZStockInfoTool::isSaving());
    EXPECT_TRUE(codes().isEmpty());
    TZStockInfoTool::close();
    ASSERT_TRUE(other.open(QIODevice::ReadOnly));
    EXPECT_EQ(other.readAll(), contents) << "somebody's file is not overwritten";
}

TEST_F(StockInfoToolTest, AFolderThatCannotBeReadLeavesAnEmptySearch)
{
    QDir().mkpath(file());
    EXPECT_FALSE(TZStockInfoTool::tableProblem().isEmpty());
    EXPECT_TRUE(codesFoundBy("60").isEmpty());
}

TEST_F(StockInfoToolTest, ALockHeldByAnotherProgramNeitherStallsNorLosesAList)
{
    save({steel});
    const auto other = openOther();
    run(other, "BEGIN IMMEDIATE");
    QElapsedTimer clock;
    clock.start();
    TZStockInfoTool::saveStockInfo({medicine});
    runLoop.advance(std::chrono::seconds(2));
    EXPECT_EQ(codes(), QStringList{"600123"});
    EXPECT_TRUE(TZStockInfoTool::isSaving());
    EXPECT_LT(clock.elapsed(), 500);

    run(other, "COMMIT");
    runLoop.advance(std::chrono::seconds(1));
    waitUntilSaved();
    EXPECT_EQ(codes(), QStringList{"000600"});
}

TEST_F(StockInfoToolTest, AnOldListThatCouldNotBeReplacedIsNotTakenForTheNewOne)
{
    save({steel});
    run(openOther(), "CREATE TRIGGER stays BEFORE DELETE ON t_stock BEGIN SELECT RAISE(ABORT, 'stays'); END");
    fetch(newList(medicine));
    EXPECT_EQ(codes(), QStringList{"600123"});
    EXPECT_EQ(version(), "") << "the next start asks for it again";
}

TEST_F(StockInfoToolTest, TheTableIsTheOneThatWasAgreed)
{
    codes();
    TZStockInfoTool::close();
    std::string schema;
    const auto collect = [](void *into, int, char **columns, char **) {
        *static_cast<std::string *>(into) += columns[0];
        return 0;
    };
    sqlite3_exec(openOther().get(), "SELECT sql FROM sqlite_master", collect, &schema, nullptr);
    EXPECT_EQ(schema, "CREATE TABLE t_stock (c TEXT NOT NULL, n TEXT NOT NULL, s TEXT NOT NULL)");
}
