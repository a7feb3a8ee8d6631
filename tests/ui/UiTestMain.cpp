#include "tests/ui/UiWorld.h"

#include <QQmlContext>
#include <QQmlEngine>
#include <QtQuickTest>

class Setup : public QObject {
    Q_OBJECT
public Q_SLOTS:
    void qmlEngineAvailable(QQmlEngine *engine)
    {
        engine->addImportPath(QStringLiteral("qrc:/qt/qml"));
        engine->rootContext()->setContextProperty(QStringLiteral("world"), &world);
    }

private:
    UiWorld world;
};

QUICK_TEST_MAIN_WITH_SETUP(ui, Setup)

#include "UiTestMain.moc"
