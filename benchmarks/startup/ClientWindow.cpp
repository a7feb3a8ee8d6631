// The client as it starts for a signed-in user, on its home page.
// usage: client-window BASE_URL CA_FILE DATA_DIRECTORY TOKEN

#include "app/Client.h"
#include "benchmarks/startup/FirstFrame.h"
#include "core/session/SettingsKeys.h"
#include "ui/Look.h"

#include <QFile>
#include <QGuiApplication>
#include <QQuickWindow>
#include <cstdio>

namespace {
/// What a past run has left behind: a signed-in user, and the guide already seen.
void prepare(const QString &dataDirectory, const QString &token)
{
    QtSettingsStore settings(dataDirectory + QStringLiteral("/settings"));
    const QtApplicationInfo application({}, dataDirectory);
    settings.setValue(SettingsKeys::user, QVariantMap{{QStringLiteral("api_token"), token}});
    settings.setValue(SettingsKeys::bundleVersion, application.buildVersion());
    settings.synchronize();
}
} // namespace

int main(int argc, char **argv)
{
    if (argc != 5) {
        std::fputs("usage: client-window BASE_URL CA_FILE DATA_DIRECTORY TOKEN\n", stderr);
        return 2;
    }
    const QGuiApplication application(argc, argv);
    QGuiApplication::setApplicationVersion(QStringLiteral(ZORVANE_VERSION));
    const QStringList arguments = QGuiApplication::arguments();
    const QString &data = arguments.at(3);
    if (!QFile::exists(data + QStringLiteral("/settings")))
        prepare(data, arguments.at(4));
    const Look look;
    Client client({arguments.at(1), data, arguments.at(2)});
    QQuickWindow *const window = client.show();
    if (!window)
        return 1;
    reportFirstFrame(window);
    return QGuiApplication::exec();
}
