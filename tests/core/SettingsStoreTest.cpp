#include "app/platform/QtSettingsStore.h"

#include <QCoreApplication>
#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <csignal>
#include <functional>
#include <gtest/gtest.h>

using namespace std::chrono_literals;

namespace {

constexpr auto writerFile = "SETTINGS_STORE_TEST_FILE";

QVariantMap answerOf(qint64 round)
{
    QVariantList rows;
    for (int i = 0; i < 200; ++i)
        rows.append(QVariantMap{{"row", i}, {"round", round}});
    return {{"data", rows}, {"round", round}};
}

class SettingsFile : public testing::Test {
protected:
    const QTemporaryDir directory;
    const QString folder = directory.filePath("deep/er");
    const QString path = folder + "/zorvane.settings";
};

void waitFor(
    std::chrono::milliseconds time, const std::function<bool()> &met = [] { return false; })
{
    for (const QDeadlineTimer limit(time); !met() && !limit.hasExpired();)
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents, 50);
}

/// What the killed process runs: two keys that belong together, told after each flush.
TEST(SettingsWriter, DISABLED_WritesUntilItIsKilled)
{
    QtSettingsStore store(qEnvironmentVariable(writerFile));
    for (qint64 round = store.value("round").toLongLong() + 1;; ++round) {
        store.setValue("answer", answerOf(round));
        store.setValue("round", round);
        store.synchronize();
        std::printf("%lld\n", round);
        std::fflush(stdout);
    }
}

TEST_F(SettingsFile, IsWholeAfterAKillAtAnyMoment)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QLatin1String(writerFile), path);
    qint64 told = 0;
    for (int kill = 0; kill < 50; ++kill) {
        QProcess writer;
        writer.setProcessEnvironment(environment);
        writer.start(QCoreApplication::applicationFilePath(),
                     {"--gtest_filter=SettingsWriter.*", "--gtest_also_run_disabled_tests"});
        QByteArray output;
        while (output.count('\n') < 8 && writer.waitForReadyRead(10'000))
            output += writer.readAll();
        QThread::usleep(static_cast<unsigned long>(kill * 97));
        ::kill(static_cast<pid_t>(writer.processId()), SIGKILL);
        writer.waitForFinished();
        output += writer.readAll();
        const QByteArrayList lines = output.left(output.lastIndexOf('\n')).split('\n');
        ASSERT_GT(lines.last().toLongLong(), told) << output.toStdString();
        told = lines.last().toLongLong();

        const QtSettingsStore store(path);
        ASSERT_EQ(store.problem(), SettingsProblem::None) << "kill " << kill;
        const qint64 round = store.value("round").toLongLong();
        ASSERT_GE(round, told) << "what was flushed is there";
        ASSERT_EQ(store.value("answer").toMap(), answerOf(round)) << "both keys are of one flush";
        ASSERT_EQ(QFileInfo(path).permissions() & (QFile::ReadGroup | QFile::ReadOther),
                  QFile::Permissions());
        EXPECT_EQ(QDir(folder).entryList(QDir::Files),
                  QStringList({"zorvane.settings", "zorvane.settings.lock"}));
        told = round;
    }
}

TEST_F(SettingsFile, SavesByItselfWithinAboutASecondAndNotWithoutAChange)
{
    const QString aside = path + "-aside";
    {
        QtSettingsStore store(path);
        store.setValue("networkStatus", true);
        waitFor(5s, [this] { return QFileInfo(path).size() > 0; });
        ASSERT_TRUE(QFile::rename(path, aside));
        store.setValue("networkStatus", true);
        store.remove("absent");
        store.synchronize();
        EXPECT_FALSE(QFile::exists(path));
    }
    ASSERT_TRUE(QFile::rename(aside, path));
    EXPECT_EQ(QtSettingsStore(path).allKeys(), QStringList({"networkStatus"}));
}

TEST_F(SettingsFile, WritesWhatCouldNotBeWrittenAsSoonAsItCanBe)
{
    const QString away = directory.filePath("away");
    QtSettingsStore store(path);
    ASSERT_TRUE(QDir().rename(folder, away));
    store.setValue("user", "somebody");
    store.synchronize();
    ASSERT_FALSE(QFile::exists(path));
    waitFor(1500ms);
    ASSERT_TRUE(QDir().rename(away, folder));
    waitFor(5s, [this] { return QFileInfo(path).size() > 0; });
    EXPECT_GT(QFileInfo(path).size(), 0);
    EXPECT_EQ(store.problem(), SettingsProblem::None);
}

TEST_F(SettingsFile, AFileHasOneStoreAtATime)
{
    const QString user = "user";
    {
        QtSettingsStore first(path);
        first.setValue(user, "somebody");
        first.synchronize();
        QtSettingsStore second(path);
        EXPECT_EQ(second.problem(), SettingsProblem::InUse);
        second.setValue(user, "somebody else");
        second.synchronize();
    }
    const QtSettingsStore next(path);
    EXPECT_EQ(next.problem(), SettingsProblem::None);
    EXPECT_EQ(next.value(user), "somebody");
}

TEST_F(SettingsFile, BringsValuesBackAsTheyWereSet)
{
    QVariant nested = "bottom";
    for (int depth = 0; depth < 1023; ++depth)
        nested = QVariantList{nested};
    const QVariantMap values{
        {"text", "中文 \"a=b;c\\\" 😀\n"},
        {"empty", ""},
        {"yes", true},
        {"no", false},
        {"number", 12.5},
        {"one row", QVariantList{QVariantMap{{"c", "600000"}}}},
        {"nulls", QVariantList{QVariant::fromValue(nullptr), 1}},
        {"deep", nested},
        {"dictionary", QVariantMap{{"data", QVariantMap{{"", 1}}}}},
    };
    {
        QtSettingsStore store(path);
        ASSERT_EQ(store.problem(), SettingsProblem::None);
        for (auto entry = values.cbegin(); entry != values.cend(); ++entry)
            store.setValue(entry.key(), entry.value());
        store.setValue("removed", 1);
        store.remove("removed");
        store.synchronize();
        EXPECT_EQ(store.problem(), SettingsProblem::None);
    }
    const QtSettingsStore store(path);
    EXPECT_EQ(store.allKeys(), values.keys());
    EXPECT_FALSE(store.value("removed").isValid());
    for (auto entry = values.cbegin(); entry != values.cend(); ++entry) {
        EXPECT_EQ(store.value(entry.key()), entry.value()) << entry.key().toStdString();
        EXPECT_EQ(store.value(entry.key()).typeId(), entry.value().typeId()) << entry.key().toStdString();
    }
    const QFile::Permissions ours = QFile::ReadUser | QFile::WriteUser;
    EXPECT_EQ(QFileInfo(path).permissions() & QFile::Permissions(0x0fff), ours);
    EXPECT_EQ(QFileInfo(folder).permissions() & QFile::Permissions(0x00ff), QFile::Permissions());
}

TEST_F(SettingsFile, TightensAFileThatOthersCouldRead)
{
    QDir().mkpath(folder);
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.setPermissions(QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup | QFile::ReadOther);
    const QtSettingsStore store(path);
    EXPECT_EQ(file.permissions() & QFile::Permissions(0x00ff), QFile::Permissions());
}

TEST_F(SettingsFile, TellsWhatIsWrongWithItsFileAndLeavesItAlone)
{
    {
        QtSettingsStore store(path);
        store.setValue("user", "somebody");
    }
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    const QByteArray good = file.readAll();
    file.close();
    for (const QByteArray &bad :
         {good.chopped(1), good + 'x', QByteArray("[General]\nuser=x\n"), good.left(25)}) {
        ASSERT_TRUE(file.open(QIODevice::WriteOnly | QIODevice::Truncate));
        file.write(bad);
        file.close();
        EXPECT_EQ(QtSettingsStore(path).problem(), SettingsProblem::Garbled) << bad.toStdString();
        ASSERT_TRUE(file.open(QIODevice::ReadOnly));
        EXPECT_EQ(file.readAll(), bad);
        file.close();
    }

    const QString underFile = path + "/below/zorvane.settings";
    EXPECT_NE(QtSettingsStore(underFile).problem(), SettingsProblem::None);
}

} // namespace
