#include "app/Client.h"
#include "tour/Tour.h"
#include "ui/Look.h"

#include <QCommandLineParser>
#include <QGuiApplication>
#include <QQuickWindow>
#include <cstdio>

namespace {
struct Walk {
    Hand::Means means = Hand::Means::Mouse;
    QString folder;
};

Walk readArguments()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Walks through the client offscreen against a fresh sandbox."));
    const QCommandLineOption keyboard(QStringLiteral("keyboard"), QStringLiteral("do not touch the mouse"));
    parser.addOption(keyboard);
    parser.addHelpOption();
    parser.addPositionalArgument(QStringLiteral("folder"),
                                 QStringLiteral("where the pictures of the steps go"),
                                 QStringLiteral("[folder]"));
    parser.process(*QCoreApplication::instance());
    return {parser.isSet(keyboard) ? Hand::Means::Keyboard : Hand::Means::Mouse,
            parser.positionalArguments().value(0)};
}
} // namespace

/// Status 1 when a step fails or the sandbox was asked for something it does not know.
int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_QUICK_BACKEND", "software");
    const QGuiApplication qt(argc, argv);
    const Walk asked = readArguments();
    const Look look;

    const QTemporaryDir passing;
    const QDir pictures(asked.folder.isEmpty() ? passing.path() : asked.folder);
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
    Hand hand(*window, asked.means);
    const bool walked = Tour(hand, sandbox, pictures).walk();
    const int unknown = sandbox.unknownRequests();
    if (unknown > 0)
        std::printf("the sandbox did not know %d requests\n", unknown);
    if (!asked.folder.isEmpty())
        std::printf("pictures: %s\n", qPrintable(pictures.absolutePath()));
    return walked && unknown == 0 ? 0 : 1;
}
