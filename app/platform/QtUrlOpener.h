#pragma once

#include "core/platform/UrlOpener.h"

/// Opens web pages, mail drafts and the dialler; a local file never, since addresses can come from the
/// service.
class QtUrlOpener : public UrlOpener {
public:
    bool open(const QString &url) override;
};
