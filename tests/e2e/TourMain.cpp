#include "app/Client.h"
#include "tests/e2e/Tour.h"
#include "ui/Look.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <cstdio>

/// usage: zorvane-tour [--keyboard] [FOLDER]
/// Walks through the client offscreen against a fresh sandbox; the pictures of the steps go to FOLDER. With
/// --keyboard the mouse is not touched. Status 1 when a step fails or the sandbox was asked for something it
/// does not know.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication qt(argc, argv);
    const Look look;

    const QTemporaryDir passing;
    QStringList arguments = QGuiApplication::arguments().mid(1);
    const auto means =
        arguments.removeOne(QStringLiteral("--keyboard")) ? Hand::Means::Keyboard : Hand::Means::Mouse;
    const QDir pictures(arguments.value(0, passing.path()));
    if (!pictures.mkpath(QStringLiteral("."))) {
        std::fprintf(stderr, "zorvane-tour: '%s' cannot be made; name another folder\n",
                     qPrintable(pictures.path()));
        return 2;
    }
    SandboxProcess sandbox;
    const QTemporaryDir data;
    Client client({sandbox.baseUrl(), data.path(), sandbox.authority()});
    QQuickWindow *const window = client.show();
    if (!window)
        return 1;
    Hand hand(*window, means);
    const bool walked = Tour(hand, sandbox, pictures).walk();
    const int unknown = sandbox.unknownRequests();
    if (unknown > 0)
        std::printf("the sandbox did not know %d requests\n", unknown);
    if (!arguments.isEmpty())
        std::printf("pictures: %s\n", qPrintable(pictures.absolutePath()));
    return walked && unknown == 0 ? 0 : 1;
}
