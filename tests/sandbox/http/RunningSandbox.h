#pragma once

#include "Sandbox.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>
#include <httplib.h>

namespace sandbox::test {

using http::Json;
using Fields = httplib::Params;

/// A client that trusts one authority and sends a token once it has one.
class Client {
public:
    Client(int port, const std::filesystem::path &authority);

    /// The envelope; a null value when there was no answer or it was no JSON.
    Json get(const std::string &path);
    Json post(const std::string &path, const Fields &fields = {});
    Json put(const std::string &path);

    [[nodiscard]] httplib::SSLClient &raw() { return *m_client; }
    [[nodiscard]] httplib::Headers headers() const;
    std::string token;

private:
    std::unique_ptr<httplib::SSLClient> m_client;
};

/// The real service on a free port with a fresh data directory.
class RunningSandbox {
public:
    RunningSandbox();

    [[nodiscard]] Client client();
    /// A client signed in with the SMS code that was printed; registers the number when it is new.
    [[nodiscard]] Client signedIn(const std::string &cell = "13800138000");
    /// The code printed last for the number.
    [[nodiscard]] std::string codeFor(const std::string &cell);
    /// Ends the service and starts it again on the same data.
    void restart();

    [[nodiscard]] Sandbox &sandbox() { return *m_sandbox; }
    [[nodiscard]] http::Service &service() { return m_sandbox->service(); }
    [[nodiscard]] std::filesystem::path authority() const { return m_folder.path() / "ca.pem"; }
    [[nodiscard]] std::vector<std::string> printed();

private:
    void start();

    TemporaryFolder m_folder;
    std::mutex m_mutex;
    std::vector<std::string> m_printed;
    std::unique_ptr<Sandbox> m_sandbox;
};

/// Whether an envelope says success, and its message.
[[nodiscard]] bool succeeded(const Json &envelope);
[[nodiscard]] std::string message(const Json &envelope);
[[nodiscard]] std::string code(const Json &envelope);

} // namespace sandbox::test
