#include "app/Views.h"

#include "core/shell/KRWindow.h"
#include "core/shell/OverlayHost.h"

#include <QQuickWindow>

namespace {
QUrl view(const char *path)
{
    return QUrl(QStringLiteral("qrc:/qt/qml/Zorvane/") + QLatin1String(path));
}
} // namespace

Views::Views()
{
    engine.addImportPath(QStringLiteral("qrc:/qt/qml"));
    // The background waits for this thread when a plugin is to be loaded; this loads the one that all need.
    QQmlComponent(&engine).setData("import QtQml\nQtObject {}", {});
    for (const char *const path : {"Ui/Main.qml", "Ui/SideMenuFrame.qml", "Home/TZHomeView.qml"})
        early.push_back(std::make_unique<QQmlComponent>(&engine, view(path), QQmlComponent::Asynchronous));
}

QQuickWindow *Views::show(KRWindow &window, OverlayHost &overlays)
{
    engine.setInitialProperties({{QStringLiteral("window"), QVariant::fromValue(&window)},
                                 {QStringLiteral("overlays"), QVariant::fromValue(&overlays)}});
    engine.load(view("Ui/Main.qml"));
    return engine.rootObjects().isEmpty() ? nullptr
                                          : qobject_cast<QQuickWindow *>(engine.rootObjects().first());
}
