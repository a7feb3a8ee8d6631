#pragma once

#include <QObject>
#include <QtQml/qqml.h>

/// What the theme follows of DisplaySettings.
class Display : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
    Q_PROPERTY(bool followsSystem READ followsSystem NOTIFY changed)
    Q_PROPERTY(bool prefersDark READ prefersDark NOTIFY changed)
    Q_PROPERTY(bool greenRises READ greenRises NOTIFY changed)
    /// 1 for text of the standard size.
    Q_PROPERTY(qreal textScale READ textScale NOTIFY changed)
public:
    explicit Display(QObject *parent = nullptr);

    static bool followsSystem();
    static bool prefersDark();
    static bool greenRises();
    static qreal textScale();

Q_SIGNALS:
    void changed();
};
