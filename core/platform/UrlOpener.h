#pragma once

#include <QString>

/// Opens a URL outside the client: the store page, the phone dialler, a mail draft.
class UrlOpener {
public:
    virtual ~UrlOpener() = default;
    /// False when nothing on this machine opens it.
    virtual bool open(const QString &url) = 0;
};
