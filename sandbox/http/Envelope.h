#pragma once

#include <nlohmann/json.hpp>
#include <stdexcept>
#include <string>
#include <utility>

namespace sandbox::http {

using Json = nlohmann::json;

/// Codes that a client acts upon; everything else is told by the message alone.
namespace code {
inline constexpr const char *tradePasswordNeeded = "12000";
inline constexpr const char *tradePasswordWrong = "12002";
} // namespace code

/// A request that the service declines. The message is Chinese and meant for the user.
class Refusal : public std::runtime_error {
public:
    explicit Refusal(const std::string &message, std::string withCode = {}, Json withData = nullptr)
        : std::runtime_error(message), code(std::move(withCode)), data(std::move(withData))
    {
    }

    std::string code;
    Json data;
};

/// A request that does not follow the protocol; answered with an HTTP error status and an envelope.
class BadRequest : public std::runtime_error {
public:
    BadRequest(int withStatus, const std::string &message) : std::runtime_error(message), status(withStatus)
    {
    }

    int status;
};

/// {"success": true, "message": message, "data": data}
[[nodiscard]] Json success(Json data = nullptr, const std::string &message = {});

/// {"success": false, "message": message, "data": data} and "code" when there is one
[[nodiscard]] Json failure(const std::string &message, const std::string &code = {}, Json data = nullptr);

} // namespace sandbox::http
