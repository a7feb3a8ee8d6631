#pragma once

#include <QObject>
#include <QString>

/// A message of the operator: `source` is "100" for system notices, "200" for activities; `read` is "1" once
/// it was read.
struct TZMessageModel {
    Q_GADGET
    Q_PROPERTY(QString id MEMBER id)
    Q_PROPERTY(QString title MEMBER title)
    Q_PROPERTY(QString content MEMBER content)
    Q_PROPERTY(QString url MEMBER url)
    Q_PROPERTY(QString source MEMBER source)
    Q_PROPERTY(QString type MEMBER type)
    Q_PROPERTY(QString canReply MEMBER canReply)
    Q_PROPERTY(QString sendDate MEMBER sendDate)
    Q_PROPERTY(QString read MEMBER read)
    Q_PROPERTY(QString shareImg MEMBER shareImg)
    Q_PROPERTY(QString shareTitle MEMBER shareTitle)
    Q_PROPERTY(QString shareUrl MEMBER shareUrl)
    Q_PROPERTY(QString shareDescription MEMBER shareDescription)
    Q_PROPERTY(QString summary MEMBER summary)
public:
    QString id;
    QString title;
    QString content;
    QString url;
    QString source;
    QString type;
    QString canReply;
    QString sendDate;
    QString read;
    QString shareImg;
    QString shareTitle;
    QString shareUrl;
    QString shareDescription;
    QString summary;
};
