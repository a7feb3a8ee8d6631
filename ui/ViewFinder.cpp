#include "ui/ViewFinder.h"

#include <QFile>

QUrl ViewFinder::screen(const QObject *controller)
{
    if (!controller)
        return {};
    QString name = QString::fromLatin1(controller->metaObject()->className());
    const QLatin1String suffix("Controller");
    if (name.endsWith(suffix))
        name.chop(suffix.size());
    if (!name.endsWith(QLatin1String("View")))
        name += QLatin1String("View");
    return view(name);
}

QUrl ViewFinder::view(const QString &name)
{
    for (const char *module : {"Ui", "Account", "Trading", "Home"}) {
        const QString path = QStringLiteral(":/qt/qml/Zorvane/%1/%2.qml").arg(QLatin1String(module), name);
        if (QFile::exists(path))
            return QUrl(QStringLiteral("qrc") + path);
    }
    qWarning("No view is named %s", qPrintable(name));
    return {};
}
