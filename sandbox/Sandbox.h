#pragma once

#include "CommandLine.h"
#include "http/Server.h"
#include "http/Service.h"

#include <memory>

namespace sandbox {

/// Something that keeps the sandbox from starting; what() says what is wrong and what to do.
class StartError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/**
 * The whole service: opens the data directory, makes the demo user when there is no user, and serves until it
 * is destroyed. Everything that is printed goes line by line, from any thread, to `print`.
 */
class Sandbox {
public:
    /// Throws StartError.
    Sandbox(const Options &options, const std::function<void(const std::string &)> &print);
    ~Sandbox();
    Sandbox(const Sandbox &) = delete;
    Sandbox &operator=(const Sandbox &) = delete;

    [[nodiscard]] int port() const;
    /// "ready https://127.0.0.1:PORT/ ca DIR/ca.pem"; with [::1] when it listens on IPv6
    [[nodiscard]] std::string readyLine() const;
    [[nodiscard]] http::Service &service();

private:
    struct Parts;
    std::unique_ptr<Parts> m_parts;
};

} // namespace sandbox
