#include "core/util/PropertyList.h"

#include <QFile>
#include <QXmlStreamReader>

namespace {
QVariant readValue(QXmlStreamReader &reader);

QVariant readDictionary(QXmlStreamReader &reader)
{
    QVariantMap dictionary;
    while (reader.readNextStartElement()) {
        if (reader.name() != u"key") {
            reader.raiseError(QStringLiteral("a key is missing"));
            break;
        }
        const QString key = reader.readElementText();
        if (!reader.readNextStartElement()) {
            reader.raiseError(QStringLiteral("a value is missing"));
            break;
        }
        dictionary.insert(key, readValue(reader));
    }
    return dictionary;
}

QVariant readArray(QXmlStreamReader &reader)
{
    QVariantList array;
    while (reader.readNextStartElement())
        array.append(readValue(reader));
    return array;
}

/// Leaves the reader behind the element's end.
QVariant readValue(QXmlStreamReader &reader)
{
    const QString type = reader.name().toString();
    if (type == u"dict")
        return readDictionary(reader);
    if (type == u"array")
        return readArray(reader);
    if (type == u"true" || type == u"false") {
        reader.skipCurrentElement();
        return type == u"true";
    }
    const QString text = reader.readElementText();
    if (type == u"integer")
        return text.toLongLong();
    if (type == u"real")
        return text.toDouble();
    return text;
}
} // namespace

QVariant readPropertyList(const QByteArray &xml)
{
    QXmlStreamReader reader(xml);
    if (!reader.readNextStartElement() || reader.name() != u"plist" || !reader.readNextStartElement())
        return {};
    const QVariant value = readValue(reader);
    return reader.hasError() ? QVariant() : value;
}

QVariant readPropertyListFile(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? readPropertyList(file.readAll()) : QVariant();
}
