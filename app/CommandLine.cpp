#include "app/CommandLine.h"

#include "app/platform/Loopback.h"

#include <QCommandLineParser>
#include <QDir>
#include <QFile>
#include <QStandardPaths>
#include <QTemporaryFile>
#include <QUrl>

namespace {
constexpr int badUsage = 2;

#ifdef ZORVANE_DEVELOPER_OPTIONS
const char help[] = R"(usage: zorvane [--api-base-url URL] [--trust-ca FILE] [--data-dir DIR]
  --api-base-url URL  the service to talk to: https, or http on this machine
  --trust-ca FILE     certificate authorities (PEM) to trust instead of the system's
  --data-dir DIR      where the settings and the stock table are kept
  --version, --help
)";
#else
const char help[] = "usage: zorvane [--version] [--help]\n";
#endif

Answered refused(const QString &what)
{
    return {badUsage, QStringLiteral("zorvane: %1\n").arg(what)};
}

/// Empty when files can be made in `directory`, which is made first when it is missing.
QString directoryProblem(const QString &directory)
{
    if (!QDir(directory).exists()) {
        if (!QDir().mkpath(directory))
            return QStringLiteral("the data directory '%1' cannot be made; ").arg(directory);
        QFile::setPermissions(directory, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    }
    // Permissions do not tell everything (a read-only file system, a full disk): try.
    QTemporaryFile trial(directory + QStringLiteral("/.trial"));
    return trial.open() ? QString()
                        : QStringLiteral("the data directory '%1' cannot be written to; ").arg(directory);
}

#ifdef ZORVANE_DEVELOPER_OPTIONS
QString baseUrlProblem(const QString &text)
{
    const QUrl url(text, QUrl::StrictMode);
    const bool secure = url.scheme() == u"https" || (url.scheme() == u"http" && isLoopback(url));
    return url.isValid() && secure && !url.host().isEmpty() && !url.hasQuery() && !url.hasFragment()
               ? QString()
               : QStringLiteral("--api-base-url '%1' is not a URL of the service; give one such as "
                                "https://127.0.0.1:8443/ (http only on this machine)")
                     .arg(text);
}
#endif
} // namespace

std::variant<Options, Answered> readCommandLine(const QStringList &arguments)
{
    QCommandLineParser parser;
    const QCommandLineOption version(QStringLiteral("version"));
    const QCommandLineOption showHelp(QStringLiteral("help"));
    parser.addOptions({version, showHelp});
    Options options{QStringLiteral(ZORVANE_API_BASE_URL),
                    QStandardPaths::writableLocation(QStandardPaths::GenericDataLocation) +
                        QStringLiteral("/zorvane")};
    QString directoryAdvice = QStringLiteral("make '%1' writable for you").arg(options.dataDirectory);
#ifdef ZORVANE_DEVELOPER_OPTIONS
    const QCommandLineOption apiBaseUrl(QStringLiteral("api-base-url"), {}, QStringLiteral("URL"));
    const QCommandLineOption trustCa(QStringLiteral("trust-ca"), {}, QStringLiteral("FILE"));
    const QCommandLineOption dataDir(QStringLiteral("data-dir"), {}, QStringLiteral("DIR"));
    parser.addOptions({apiBaseUrl, trustCa, dataDir});
#endif
    if (!parser.parse(QStringList(QStringLiteral("zorvane")) + arguments))
        return refused(parser.errorText() + QStringLiteral(" 'zorvane --help' lists the options."));
    if (!parser.positionalArguments().isEmpty())
        return refused(QStringLiteral("'%1' is not an option; 'zorvane --help' lists the options.")
                           .arg(parser.positionalArguments().constFirst()));
    if (parser.isSet(showHelp))
        return Answered{0, QString::fromUtf8(help)};
    if (parser.isSet(version))
        return Answered{0, QStringLiteral("zorvane " ZORVANE_VERSION "\n")};
#ifdef ZORVANE_DEVELOPER_OPTIONS
    for (const QCommandLineOption &option : {apiBaseUrl, trustCa, dataDir}) {
        if (parser.isSet(option) && parser.value(option).isEmpty())
            return refused(QStringLiteral("--%1 needs a value; 'zorvane --help' lists the options")
                               .arg(option.names().constFirst()));
    }
    if (parser.isSet(apiBaseUrl)) {
        options.apiBaseUrl = parser.value(apiBaseUrl);
        if (const QString problem = baseUrlProblem(options.apiBaseUrl); !problem.isEmpty())
            return refused(problem);
    }
    options.trustFile = parser.value(trustCa);
    options.loopbackHttp = true;
    if (parser.isSet(dataDir)) {
        options.dataDirectory = parser.value(dataDir);
        directoryAdvice = QStringLiteral("give another one with --data-dir");
    }
#endif
    if (!options.apiBaseUrl.endsWith(u'/'))
        options.apiBaseUrl += u'/';
    if (const QString problem = directoryProblem(options.dataDirectory); !problem.isEmpty())
        return refused(problem + directoryAdvice);
    return options;
}
