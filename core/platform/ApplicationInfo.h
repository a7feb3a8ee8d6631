#pragma once

#include <QString>

/// What is known of this program and the system below it. Constant while it runs.
class ApplicationInfo {
public:
    virtual ~ApplicationInfo() = default;
    virtual QString buildVersion() const = 0;
    /// Ends in "/".
    virtual QString apiBaseUrl() const = 0;
    /// The user's documents of this application; exists.
    virtual QString documentsDirectory() const = 0;
    /// The version of the system, for example 8.0.
    virtual double systemVersion() const = 0;
};
