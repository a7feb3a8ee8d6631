#pragma once

#include <QString>
#include <QStringList>
#include <variant>

/// What the client is started with.
struct Options {
    /// Ends in "/".
    QString apiBaseUrl;
    /// Exists and can be written to.
    QString dataDirectory;
    /// A PEM file of certificate authorities to trust instead of the system's; may be empty.
    QString trustFile = {};
    /// Whether plain HTTP to this machine will do.
    bool loopbackHttp = false;
};

/// A command line that is answered with a text instead of a start: on standard output with status 0, on
/// standard error with any other.
struct Answered {
    int status = 0;
    QString text;
};

/// `arguments` without the program's name. Only developer builds know more than --version and --help. Needs
/// no application object.
std::variant<Options, Answered> readCommandLine(const QStringList &arguments);
