#include "app/platform/QtSettingsStore.h"
#include "core/session/SettingsKeys.h"

#include <QDir>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>
#include <QThread>
#include <csignal>
#include <gtest/gtest.h>

namespace {
const QString client = QStringLiteral(ZORVANE_CLIENT);
const QString nobody = QStringLiteral("https://127.0.0.1:9/");

QProcessEnvironment offscreen(const QString &runtimeDirectory)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("QT_QPA_PLATFORM"), QStringLiteral("offscreen"));
    environment.insert(QStringLiteral("QT_QUICK_BACKEND"), QStringLiteral("software"));
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), runtimeDirectory);
    return environment;
}

void write(const QString &path, const QByteArray &bytes)
{
    QFile file(path);
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
}
} // namespace

class ProcessTest : public testing::Test {
protected:
    ProcessTest() { process.setProcessEnvironment(offscreen(folder.path())); }

    QTemporaryDir folder;
    QProcess process;
};

TEST_F(ProcessTest, WhatCannotBeFollowedEndsWithOneLineAndStatusTwo)
{
    const QString file = folder.filePath(QStringLiteral("file"));
    write(file, "not a certificate");
    const QString garbled = folder.filePath(QStringLiteral("garbled"));
    QDir().mkpath(garbled);
    write(garbled + QStringLiteral("/settings"), "what is this");
    struct Case {
        QStringList arguments;
        QString says;
    };
    const QString base = QStringLiteral("--api-base-url");
    const QString trust = QStringLiteral("--trust-ca");
    const QString data = QStringLiteral("--data-dir");
    const Case cases[] = {
        {{QStringLiteral("--nonsense")}, QStringLiteral("--help")},
        {{QStringLiteral("stray")}, QStringLiteral("'stray'")},
        {{data}, QStringLiteral("--data-dir")},
        {{base, QStringLiteral("nonsense")}, base},
        {{base, QStringLiteral("http://example.com/")}, base},
        {{base, QStringLiteral("ftp://127.0.0.1/")}, base},
        {{base, QStringLiteral("https://")}, base},
        {{base, QStringLiteral("https://127.0.0.1/?a=b")}, base},
        {{trust, folder.filePath(QStringLiteral("missing"))}, QStringLiteral("holds no certificate")},
        {{trust, file}, QStringLiteral("holds no certificate")},
        {{trust, QString()}, trust},
        {{data, QString()}, data},
        {{data, file}, QStringLiteral("cannot be made")},
        {{data, file + QStringLiteral("/below")}, QStringLiteral("cannot be made")},
        {{data, QStringLiteral("/proc/zorvane")}, QStringLiteral("cannot be made")},
        {{data, QStringLiteral("/proc")}, QStringLiteral("cannot be written to")},
        {{data, garbled}, QStringLiteral("move it away")},
    };
    for (const Case &line : cases) {
        process.start(client, line.arguments);
        const std::string asked = line.arguments.join(u' ').toStdString();
        ASSERT_TRUE(process.waitForFinished(30'000)) << asked;
        EXPECT_EQ(process.exitStatus(), QProcess::NormalExit) << asked;
        EXPECT_EQ(process.exitCode(), 2) << asked;
        EXPECT_EQ(process.readAllStandardOutput(), "") << asked;
        const QByteArray said = process.readAllStandardError();
        EXPECT_EQ(said.count('\n'), 1) << said.toStdString();
        EXPECT_TRUE(said.startsWith("zorvane: ")) << said.toStdString();
        EXPECT_TRUE(QString::fromUtf8(said).contains(line.says)) << said.toStdString();
    }
}

TEST_F(ProcessTest, HelpAndVersionNeedNoDisplay)
{
    QProcessEnvironment bare = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        bare.remove(QString::fromUtf8(name));
    process.setProcessEnvironment(bare);
    for (const char *option : {"--help", "--version"}) {
        process.start(client, {QString::fromUtf8(option)});
        ASSERT_TRUE(process.waitForFinished(30'000));
        EXPECT_EQ(process.exitCode(), 0);
        EXPECT_TRUE(process.readAllStandardOutput().contains("zorvane"));
        EXPECT_EQ(process.readAllStandardError(), "");
    }
}

TEST_F(ProcessTest, WithoutADisplayItSaysSo)
{
    QProcessEnvironment bare = QProcessEnvironment::systemEnvironment();
    for (const char *name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        bare.remove(QString::fromUtf8(name));
    process.setProcessEnvironment(bare);
    process.start(client, {QStringLiteral("--data-dir"), folder.path()});
    ASSERT_TRUE(process.waitForFinished(30'000));
    EXPECT_EQ(process.exitCode(), 2);
    EXPECT_TRUE(process.readAllStandardError().startsWith("zorvane: there is no display"));
}

TEST_F(ProcessTest, AStockTableThatIsNoneIsReportedAndTheClientGoesOn)
{
    write(folder.filePath(QStringLiteral("stock.sqlite")), QByteArray(4096, 'x'));
    process.start(client,
                  {QStringLiteral("--data-dir"), folder.path(), QStringLiteral("--api-base-url"), nobody});
    process.setReadChannel(QProcess::StandardError);
    QByteArray said;
    for (int tries = 0; tries < 300 && !said.contains("stock.sqlite"); ++tries) {
        process.waitForReadyRead(50);
        said += process.readAllStandardError();
    }
    EXPECT_TRUE(said.contains("zorvane: ")) << said.toStdString();
    EXPECT_EQ(process.state(), QProcess::Running);
    process.kill();
    process.waitForFinished();
}

TEST_F(ProcessTest, AKillAtAnyMomentOfTheStartLeavesTheSettingsWhole)
{
    const QVariantMap user{{QStringLiteral("api_token"), QStringLiteral("t0ken")},
                           {QStringLiteral("nick"), QStringLiteral("股海")}};
    const QString path = folder.filePath(QStringLiteral("settings"));
    {
        QtSettingsStore store(path);
        store.setValue(SettingsKeys::user, user);
        store.setValue(SettingsKeys::needTradePwd, false);
        store.synchronize();
    }
    bool reachedTheEnd = false;
    for (int kill = 0; kill < 40; ++kill) {
        process.start(
            client, {QStringLiteral("--data-dir"), folder.path(), QStringLiteral("--api-base-url"), nobody});
        ASSERT_TRUE(process.waitForStarted());
        // Most of them during the first tenth of a second, the last ones after a slow start.
        QThread::msleep(static_cast<unsigned long>(kill * kill / 3));
        ::kill(static_cast<pid_t>(process.processId()), SIGKILL);
        ASSERT_TRUE(process.waitForFinished(30'000));
        EXPECT_EQ(process.exitStatus(), QProcess::CrashExit)
            << "ended by itself: " << process.readAllStandardError().toStdString();

        const QtSettingsStore store(path);
        ASSERT_EQ(store.problem(), SettingsProblem::None) << "kill " << kill;
        ASSERT_EQ(store.value(SettingsKeys::user), QVariant(user)) << "kill " << kill;
        ASSERT_TRUE(store.value(SettingsKeys::needTradePwd).isValid()) << "kill " << kill;
        reachedTheEnd = reachedTheEnd || store.value(SettingsKeys::needTradePwd).toBool();
    }
    EXPECT_TRUE(reachedTheEnd)
        << "no start came as far as its last step: the kills came too early to show anything";
}

TEST_F(ProcessTest, ASecondClientOnTheSameDataDirectorySaysSoUntilTheFirstIsKilled)
{
    const QStringList arguments{QStringLiteral("--data-dir"), folder.path(), QStringLiteral("--api-base-url"),
                                nobody};
    const auto startFirst = [&] {
        const QString settings = folder.filePath(QStringLiteral("settings"));
        QFile::remove(settings);
        process.start(client, arguments);
        for (int tries = 0; tries < 300 && !QFile::exists(settings); ++tries)
            process.waitForFinished(20);
        EXPECT_EQ(process.state(), QProcess::Running) << process.readAllStandardError().toStdString();
    };
    startFirst();
    QProcess second;
    second.setProcessEnvironment(process.processEnvironment());
    second.start(client, arguments);
    ASSERT_TRUE(second.waitForFinished(30'000));
    EXPECT_EQ(second.exitCode(), 2);
    EXPECT_EQ(QString::fromUtf8(second.readAllStandardError()),
              QStringLiteral("zorvane: another client is using '%1'; close it and start again\n")
                  .arg(folder.path()));

    process.kill();
    ASSERT_TRUE(process.waitForFinished());
    startFirst();
    process.kill();
    process.waitForFinished();
}

TEST_F(ProcessTest, TheDataDirectoryIsMadeForItsOwnerOnly)
{
    const QString data = folder.filePath(QStringLiteral("new/data"));
    process.start(client, {QStringLiteral("--data-dir"), data, QStringLiteral("--api-base-url"), nobody});
    ASSERT_TRUE(process.waitForStarted());
    for (int tries = 0; tries < 300 && !QFile::exists(data + QStringLiteral("/settings")); ++tries)
        QThread::msleep(20);
    process.kill();
    process.waitForFinished();
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                      QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    EXPECT_EQ(QFile::permissions(data) & others, QFile::Permissions());
    ASSERT_TRUE(QFile::exists(data + QStringLiteral("/settings")));
    EXPECT_EQ(QFile::permissions(data + QStringLiteral("/settings")) & others, QFile::Permissions());
}
