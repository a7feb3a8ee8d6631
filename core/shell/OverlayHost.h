#pragma once

#include "core/platform/Overlays.h"
#include "core/platform/Timer.h"
#include "core/util/RowListModel.h"

#include <QObject>
#include <list>

/// One banner: full width, 45 points high, 64 points from the top, at opacity 0.8. `fading` once its two
/// seconds are over.
struct MVNoticeView {
    Q_GADGET
    Q_PROPERTY(QString content MEMBER content)
    Q_PROPERTY(bool success MEMBER success)
    Q_PROPERTY(bool fading MEMBER fading)
public:
    QString content;
    bool success = false;
    bool fading = false;
    int number = 0;
};

/// The banners and the waiting indicator of the window, with their timing.
class OverlayHost : public QObject, public Overlays {
    Q_OBJECT
    Q_PROPERTY(GadgetListModel *banners READ banners CONSTANT)
    Q_PROPERTY(bool waiting READ isWaiting NOTIFY waitingChanged)
    Q_PROPERTY(QString waitingStatus READ waitingStatus NOTIFY waitingChanged)
    /// True once the indicator has covered the window for five seconds without a break: what is waited for
    /// may never come.
    Q_PROPERTY(bool waitingLong READ isWaitingLong NOTIFY waitingChanged)
public:
    explicit OverlayHost(QObject *parent = nullptr) : QObject(parent) {}

    void showBanner(BannerKind kind, const QString &content) override;
    void showBannerLater(BannerKind kind, const QString &content) override;
    void hideBanners() override;
    void showWaiting(const QString &status) override;
    void hideWaiting() override;

    RowListModel<MVNoticeView> *banners() { return &rows; }
    bool isWaiting() const { return !status.isNull(); }
    QString waitingStatus() const { return status; }
    bool isWaitingLong() const { return isWaiting() && !patience.isActive(); }

Q_SIGNALS:
    void waitingChanged();

private:
    void fade(int number);
    void discard(int number);
    int rowOf(int number) const;

    struct Banner {
        int number = 0;
        Timer timer;
    };
    RowListModel<MVNoticeView> rows;
    std::list<Banner> timed;
    std::list<Banner> pending;
    QString status;
    Timer patience;
    int lastNumber = 0;
};
