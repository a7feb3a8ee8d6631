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
const QString nobody = "https://127.0.0.1:9/";

QProcessEnvironment offscreen(const QString &runtimeDirectory)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert("QT_QPA_PLATFORM", "offscreen");
    environment.insert("QT_QUICK_BACKEND", "software");
    environment.insert("XDG_RUNTIME_DIR", runtimeDirectory);
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

    static QStringList in(const QString &dataDirectory)
    {
        return {"--data-dir", dataDirectory, "--api-base-url", nobody};
    }
    void kill()
    {
        process.kill();
        ASSERT_TRUE(process.waitForFinished());
    }

    QTemporaryDir folder;
    QProcess process;
};

TEST_F(ProcessTest, WhatCannotBeFollowedEndsWithOneLineAndStatusTwo)
{
    const QString file = folder.filePath("file");
    write(file, "not a certificate");
    const QString garbled = folder.filePath("garbled");
    QDir().mkpath(garbled);
    write(garbled + "/settings", "what is this");
    struct Case {
        QStringList arguments;
        QString says;
    };
    const QString base = "--api-base-url";
    const QString trust = "--trust-ca";
    const QString data = "--data-dir";
    const Case cases[] = {
        {{"--nonsense"}, "--help"},
        {{"stray"}, "'stray'"},
        {{data}, "--data-dir"},
        {{base, "nonsense"}, base},
        {{base, "http://example.com/"}, base},
        {{base, "ftp://127.0.0.1/"}, base},
        {{base, "https://"}, base},
        {{base, "https://127.0.0.1/?a=b"}, base},
        {{trust, folder.filePath("missing")}, "holds no certificate"},
        {{trust, file}, "holds no certificate"},
        {{trust, QString()}, trust},
        {{data, QString()}, data},
        {{data, file}, "cannot be made"},
        {{data, file + "/below"}, "cannot be made"},
        {{data, "/proc/zorvane"}, "cannot be made"},
        {{data, "/proc"}, "cannot be written to"},
        {{data, garbled}, "move it away"},
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

TEST_F(ProcessTest, WithoutADisplayThereIsOnlyHelpAndVersion)
{
    QProcessEnvironment bare = QProcessEnvironment::systemEnvironment();
    for (const QString name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"})
        bare.remove(name);
    process.setProcessEnvironment(bare);
    for (const QString option : {"--help", "--version"}) {
        process.start(client, {option});
        ASSERT_TRUE(process.waitForFinished(30'000));
        EXPECT_EQ(process.exitCode(), 0);
        EXPECT_TRUE(process.readAllStandardOutput().contains("zorvane"));
        EXPECT_EQ(process.readAllStandardError(), "");
    }
    process.start(client, {"--data-dir", folder.path()});
    ASSERT_TRUE(process.waitForFinished(30'000));
    EXPECT_EQ(process.exitCode(), 2);
    EXPECT_TRUE(process.readAllStandardError().startsWith("zorvane: there is no display"));
}

TEST_F(ProcessTest, AStockTableThatIsNoneIsReportedAndTheClientGoesOn)
{
    write(folder.filePath("stock.sqlite"), QByteArray(4096, 'x'));
    process.start(client, in(folder.path()));
    QByteArray said;
    for (int tries = 0; tries < 300 && !said.contains("stock.sqlite"); ++tries) {
        process.waitForFinished(50);
        said += process.readAllStandardError();
    }
    EXPECT_TRUE(said.contains("zorvane: ")) << said.toStdString();
    EXPECT_EQ(process.state(), QProcess::Running);
    kill();
}

TEST_F(ProcessTest, AKillAtAnyMomentOfTheStartLeavesTheSettingsWhole)
{
    const QVariantMap user{{"api_token", "t0ken"}, {"nick", "股海"}};
    const QString path = folder.filePath("settings");
    {
        QtSettingsStore store(path);
        store.setValue(SettingsKeys::user, user);
        store.setValue(SettingsKeys::needTradePwd, false);
        store.synchronize();
    }
    bool reachedTheEnd = false;
    for (int round = 0; round < 40; ++round) {
        process.start(client, in(folder.path()));
        ASSERT_TRUE(process.waitForStarted());
        // Most of them during the first tenth of a second, the last ones after a slow start.
        QThread::msleep(static_cast<unsigned long>(round * round / 3));
        ::kill(static_cast<pid_t>(process.processId()), SIGKILL);
        ASSERT_TRUE(process.waitForFinished(30'000));
        EXPECT_EQ(process.exitStatus(), QProcess::CrashExit)
            << "ended by itself: " << process.readAllStandardError().toStdString();

        const QtSettingsStore store(path);
        ASSERT_EQ(store.problem(), SettingsProblem::None) << "kill " << round;
        ASSERT_EQ(store.value(SettingsKeys::user), QVariant(user)) << "kill " << round;
        ASSERT_TRUE(store.value(SettingsKeys::needTradePwd).isValid()) << "kill " << round;
        reachedTheEnd = reachedTheEnd || store.value(SettingsKeys::needTradePwd).toBool();
    }
    EXPECT_TRUE(reachedTheEnd)
        << "no start came as far as its last step: the kills came too early to show anything";
}

TEST_F(ProcessTest, TheDataDirectoryIsItsOwnersAndHasOneClientUntilThatIsKilled)
{
    const QString data = folder.filePath("new/data");
    const QString settings = data + "/settings";
    const auto startFirst = [&] {
        QFile::remove(settings);
        process.start(client, in(data));
        for (int tries = 0; tries < 300 && !QFile::exists(settings); ++tries)
            process.waitForFinished(20);
        EXPECT_EQ(process.state(), QProcess::Running) << process.readAllStandardError().toStdString();
    };
    startFirst();
    const QFile::Permissions others = QFile::ReadGroup | QFile::WriteGroup | QFile::ExeGroup |
                                      QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
    EXPECT_EQ(QFile::permissions(data) & others, QFile::Permissions());
    ASSERT_TRUE(QFile::exists(settings));
    EXPECT_EQ(QFile::permissions(settings) & others, QFile::Permissions());

    QProcess second;
    second.setProcessEnvironment(process.processEnvironment());
    second.start(client, in(data));
    ASSERT_TRUE(second.waitForFinished(30'000));
    EXPECT_EQ(second.exitCode(), 2);
    EXPECT_EQ(QString::fromUtf8(second.readAllStandardError()),
              QStringLiteral("zorvane: another client is using '%1'; close it and start again\n").arg(data));
    kill();
    startFirst();
    kill();
}
