#pragma once

#include <QByteArray>
#include <QVariant>

/// Reads an XML property list: dictionaries, arrays, texts, numbers, booleans. Invalid where it is not one;
/// dates and data are read as texts.
QVariant readPropertyList(const QByteArray &xml);
/// As above, from a file or a built-in resource.
QVariant readPropertyListFile(const QString &path);
