#pragma once

#include <QString>

struct ShareContent {
    QString text;
    QString title;
    QString image;
    QString link;
};

struct ShareTarget {
    QString name;
    QString applicationId;
    QString key;
    QString callbackUrl;
};

/// The kit of a sharing vendor.
class ShareService {
public:
    virtual ~ShareService() = default;
    virtual void start(const QString &applicationKey) = 0;
    virtual void hideTargetsNotInstalled() = 0;
    virtual void registerTarget(const ShareTarget &target) = 0;
    virtual void share(const ShareContent &content) = 0;
    /// A URL by which another application comes back; true when it was this kit's.
    virtual bool handleOpenUrl(const QString &url) = 0;
};
