// The floor of the start-up figures: the smallest Quick Controls window of the client's size.

#include "benchmarks/startup/FirstFrame.h"

#include <QGuiApplication>
#include <QQmlComponent>
#include <QQmlEngine>
#include <QQuickStyle>
#include <QQuickWindow>

int main(int argc, char **argv)
{
    const QGuiApplication application(argc, argv);
    QQuickStyle::setStyle(QStringLiteral("Basic"));
    QQmlEngine engine;
    QQmlComponent component(&engine, QUrl(QStringLiteral("qrc:/qt/qml/Zorvane/Bare/BareWindow.qml")));
    const std::unique_ptr<QObject> window(component.create());
    reportFirstFrame(qobject_cast<QQuickWindow *>(window.get()));
    return QGuiApplication::exec();
}
