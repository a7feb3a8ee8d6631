#pragma once

#include <QObject>
#include <QUrl>
#include <QtQml/qqml.h>

/// Finds the view of a screen or a dialog by name, in the modules Ui, Account, Trading and Home.
class ViewFinder : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_SINGLETON
public:
    using QObject::QObject;

    /// `TZHomeViewController` gives TZHomeView.qml, `TZMoreController` TZMoreView.qml. Empty when no module
    /// has it.
    Q_INVOKABLE static QUrl screen(const QObject *controller);
    Q_INVOKABLE static QUrl view(const QString &name);
};
