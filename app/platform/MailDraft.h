#pragma once

#include <QUrl>

/// The URL that opens a mail draft.
inline QString mailDraftUrl(const QString &to, const QString &subject, const QString &body)
{
    const auto encoded = [](const QString &text) {
        return QString::fromLatin1(QUrl::toPercentEncoding(text));
    };
    return QStringLiteral("mailto:%1?subject=%2&body=%3").arg(to, encoded(subject), encoded(body));
}
