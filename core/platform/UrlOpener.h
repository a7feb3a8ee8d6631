#pragma once

#include <QString>

/// Opens a URL outside the client: the store page, the phone dialler, a mail draft.
class UrlOpener {
public:
    virtual ~UrlOpener() = default;
    virtual void open(const QString &url) = 0;
};
