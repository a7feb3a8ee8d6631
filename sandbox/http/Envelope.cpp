#include "http/Envelope.h"

namespace sandbox::http {

Json success(Json data, const std::string &message)
{
    return {{"success", true}, {"message", message}, {"data", std::move(data)}};
}

Json failure(const std::string &message, const std::string &code, Json data)
{
    Json envelope{{"success", false}, {"message", message}, {"data", std::move(data)}};
    if (!code.empty())
        envelope["code"] = code;
    return envelope;
}

} // namespace sandbox::http
