#pragma once

#include <QString>

enum class BannerKind { Success, Error };

/// What lies over every screen: the banners and the one waiting indicator. Main thread only.
class Overlays {
public:
    virtual ~Overlays() = default;
    virtual void showBanner(BannerKind kind, const QString &content) = 0;
    /// As `showBanner`, half a second from now.
    virtual void showBannerLater(BannerKind kind, const QString &content) = 0;
    virtual void hideBanners() = 0;
    virtual void showWaiting(const QString &status) = 0;
    virtual void hideWaiting() = 0;
};
