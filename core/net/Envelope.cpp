#include "core/net/Envelope.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <algorithm>
#include <array>

namespace {

bool namesJson(const QByteArray &contentType)
{
    static constexpr std::array<QByteArrayView, 4> accepted{"application/json", "text/json",
                                                            "text/javascript", "text/html"};
    const QByteArray type = contentType.split(';').first().trimmed().toLower();
    return std::find(accepted.begin(), accepted.end(), type) != accepted.end();
}

} // namespace

std::optional<QVariantMap> decodeEnvelope(const HttpResponse &response)
{
    if (response.status < 200 || response.status > 299 || !namesJson(response.contentType))
        return std::nullopt;
    const QJsonDocument document = QJsonDocument::fromJson(response.body);
    if (!document.isObject())
        return std::nullopt;
    return document.object().toVariantMap();
}
