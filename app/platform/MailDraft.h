#pragma once

#include <QUrl>

/// The URL that opens a mail draft.
inline QString mailDraftUrl(const QString &to, const QString &subject, const QString &body)
{
    // Mail ends its lines with two characters.
    const auto encoded = [](QString text) {
        return QString::fromLatin1(
            QUrl::toPercentEncoding(text.replace(QLatin1Char('\n'), QStringLiteral("\r\n"))));
    };
    return QStringLiteral("mailto:%1?subject=%2&body=%3").arg(to, encoded(subject), encoded(body));
}
