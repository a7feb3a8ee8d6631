#pragma once

#include "app/platform/DeveloperTrust.h"

#include <QString>
#include <QStringList>
#include <optional>
#include <variant>

/// What the client is started with.
struct Options {
    /// Ends in "/".
    QString apiBaseUrl;
    /// Exists and can be written to.
    QString dataDirectory;
    DeveloperTrust trust;
    /// Where `readTrust` finds the authorities of `trust`; may be empty.
    QString trustFile = {};
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

/// Reads the certificate authorities that the options name. Needs an application object.
std::optional<Answered> readTrust(Options &options);
