#pragma once

#include "core/platform/ShareService.h"

class Pasteboard;
class UrlOpener;

/// Sharing without a vendor's kit: everything in one string goes to the pasteboard, the text with its link
/// into a mail draft.
class DesktopShare : public ShareService {
public:
    DesktopShare(Pasteboard &pasteboard, UrlOpener &urlOpener);

    void start(const QString &) override {}
    void hideTargetsNotInstalled() override {}
    void registerTarget(const ShareTarget &) override {}
    void share(const ShareContent &content) override;
    bool handleOpenUrl(const QString &) override { return false; }

private:
    Pasteboard &board;
    UrlOpener &opener;
};
