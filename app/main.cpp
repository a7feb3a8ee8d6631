#include "app/Client.h"
#include "app/CommandLine.h"
#include "ui/Look.h"

#include <QGuiApplication>
#include <cstdio>

namespace {
constexpr int cannotStart = 2;

int answer(const Answered &answered)
{
    std::fputs(qPrintable(answered.text), answered.status == 0 ? stdout : stderr);
    return answered.status;
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

    QGuiApplication::setApplicationName(QStringLiteral("zorvane"));
    QGuiApplication::setApplicationDisplayName(QStringLiteral("Zorvane"));
    QGuiApplication::setApplicationVersion(QStringLiteral(ZORVANE_VERSION));
    const QGuiApplication qt(argc, argv);
    installLook();
    Options &options = std::get<Options>(line);
    if (const auto answered = readTrust(options))
        return answer(*answered);
    Client client(options);
    if (const QString problem = client.problem(); !problem.isEmpty())
        return answer({cannotStart, problem});
    return client.show() ? QGuiApplication::exec() : cannotStart;
}
