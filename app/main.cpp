#include "app/Client.h"
#include "app/CommandLine.h"
#include "trading/api/TZStockInfoTool.h"
#include "ui/Look.h"

#include <QGuiApplication>
#include <QQuickWindow>
#include <cstdio>

namespace {
constexpr int cannotStart = 2;

int answer(const Answered &answered)
{
    std::fputs(qPrintable(answered.text), answered.status == 0 ? stdout : stderr);
    return answered.status;
}

/// Qt ends a program that finds no display with a crash.
bool hasDisplay()
{
#ifdef Q_OS_LINUX
    for (const char *variable : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        if (!qEnvironmentVariableIsEmpty(variable))
            return true;
    }
    return false;
#else
    return true;
#endif
}

/// Without the stock table nothing but the search is missing.
void reportStockTable()
{
    if (const QString problem = TZStockInfoTool::tableProblem(); !problem.isEmpty())
        std::fprintf(stderr, "zorvane: %s\n", qPrintable(problem));
}
} // namespace

int main(int argc, char *argv[])
{
    QStringList arguments;
    for (int index = 1; index < argc; ++index)
        arguments << QString::fromLocal8Bit(argv[index]);
    auto line = readCommandLine(arguments);
    if (const auto *const answered = std::get_if<Answered>(&line))
        return answer(*answered);
    if (!hasDisplay())
        return answer(
            {cannotStart, QStringLiteral("zorvane: there is no display; set DISPLAY or WAYLAND_DISPLAY\n")});

    QGuiApplication::setApplicationName(QStringLiteral("zorvane"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Zorvane"));
    QGuiApplication::setApplicationVersion(QStringLiteral(ZORVANE_VERSION));
    const QGuiApplication qt(argc, argv);
    const Look look;
    Client client(std::move(std::get<Options>(line)));
    if (const QString problem = client.problem(); !problem.isEmpty())
        return answer({cannotStart, problem});
    QQuickWindow *const window = client.show();
    if (!window)
        return cannotStart;
    // The first frame does not wait for the table to be opened.
    QObject::connect(window, &QQuickWindow::frameSwapped, &qt, reportStockTable, Qt::SingleShotConnection);
    return QGuiApplication::exec();
}
