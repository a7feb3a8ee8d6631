#include "ui/Look.h"

#include <QFont>
#include <QFontDatabase>
#include <QGuiApplication>
#include <QIcon>

Look::Look()
{
    QFont typeface;
    typeface.setFamilies({QStringLiteral("Noto Sans CJK SC"), QStringLiteral("Source Han Sans SC"),
                          QStringLiteral("PingFang SC"), QStringLiteral("Microsoft YaHei"),
                          QStringLiteral("WenQuanYi Zen Hei"), QStringLiteral("sans-serif")});
    QGuiApplication::setFont(typeface);
    // Reading the system's fonts takes as long as reading the views; the database is safe to use from there.
    fonts = std::async(std::launch::async, [] { QFontDatabase::families(QFontDatabase::SimplifiedChinese); });
    QGuiApplication::setWindowIcon(QIcon(QStringLiteral(":/qt/qml/Zorvane/Ui/images/common_logo.svg")));
}
