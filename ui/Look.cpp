#include "ui/Look.h"

#include <QFont>
#include <QGuiApplication>
#include <QIcon>

void installLook()
{
    QFont typeface;
    typeface.setFamilies({QStringLiteral("Noto Sans CJK SC"), QStringLiteral("Source Han Sans SC"),
                          QStringLiteral("PingFang SC"), QStringLiteral("Microsoft YaHei"),
                          QStringLiteral("WenQuanYi Zen Hei"), QStringLiteral("sans-serif")});
    QGuiApplication::setFont(typeface);
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/qt/qml/Zorvane/Ui/images/common_logo.svg")));
}
