#pragma once

#include "core/platform/HttpTransport.h"

#include <QVariantMap>
#include <optional>

/// The dictionary of an answer: "success", "message", "data" and, of some calls, "code" or "bizCode". None
/// when the status is not one of success, the label names no JSON, or the body is not one whole JSON object.
/// JSON labelled "text/html" is JSON.
std::optional<QVariantMap> decodeEnvelope(const HttpResponse &response);
