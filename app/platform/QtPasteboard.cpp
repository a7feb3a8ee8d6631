#include "app/platform/QtPasteboard.h"

#include <QClipboard>
#include <QGuiApplication>

void QtPasteboard::setText(const QString &text)
{
    QGuiApplication::clipboard()->setText(text);
}
