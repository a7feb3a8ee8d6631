#include "core/net/FormBody.h"

#include "core/util/Text.h"

#include <QFile>
#include <QFileInfo>
#include <QMimeDatabase>
#include <QUrl>
#include <QUuid>

namespace {

/// A text between the quotes of a part's header.
QByteArray quoted(const QString &text)
{
    QString safe = text;
    safe.replace(u'"', QStringLiteral("%22")).remove(u'\r').remove(u'\n');
    return '"' + safe.toUtf8() + '"';
}

} // namespace

QByteArray formFields(const QVariantMap &dict)
{
    QByteArrayList pairs;
    for (auto entry = dict.cbegin(); entry != dict.cend(); ++entry)
        pairs.append(QUrl::toPercentEncoding(entry.key()) + '=' +
                     QUrl::toPercentEncoding(textForm(entry.value())));
    return pairs.join('&');
}

std::optional<MultipartBody> multipartBody(const QVariantMap &dict, const QString &fileUrl,
                                           const QString &partName)
{
    QFile file(QUrl(fileUrl).toLocalFile());
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;

    const QByteArray boundary = "part-" + QUuid::createUuid().toByteArray(QUuid::WithoutBraces);
    QByteArray bytes;
    const auto beginPart = [&](const QString &name) {
        bytes += "--" + boundary + "\r\nContent-Disposition: form-data; name=" + quoted(name);
    };
    for (auto entry = dict.cbegin(); entry != dict.cend(); ++entry) {
        beginPart(entry.key());
        bytes += "\r\n\r\n" + textForm(entry.value()).toUtf8() + "\r\n";
    }
    const QString type =
        QMimeDatabase().mimeTypeForFile(file.fileName(), QMimeDatabase::MatchExtension).name();
    beginPart(partName);
    bytes += "; filename=" + quoted(QFileInfo(file).fileName()) + "\r\nContent-Type: " + type.toLatin1() +
             "\r\n\r\n";
    bytes += file.readAll() + "\r\n--" + boundary + "--\r\n";
    return MultipartBody{"multipart/form-data; boundary=" + boundary, bytes};
}
