#pragma once

#include <QByteArray>
#include <QVariantMap>
#include <optional>

/// "key=value" pairs joined by "&", percent-encoded in UTF-8, in the order of the keys.
QByteArray formFields(const QVariantMap &dict);

struct MultipartBody {
    QByteArray contentType;
    QByteArray bytes;
};

/// The fields, then the local file as one part of the name `partName`; none when the file cannot be read.
std::optional<MultipartBody> multipartBody(const QVariantMap &dict, const QString &fileUrl,
                                           const QString &partName);
