#include "RunningSandbox.h"

namespace sandbox::test {
namespace {

Json envelope(const httplib::Result &result)
{
    return result ? Json::parse(result->body, nullptr, false) : Json();
}

} // namespace

Client::Client(int port, const std::filesystem::path &authority)
    : m_client(std::make_unique<httplib::SSLClient>("127.0.0.1", port))
{
    m_client->set_ca_cert_path(authority.c_str());
    m_client->enable_server_certificate_verification(true);
    m_client->set_keep_alive(true);
    m_client->set_tcp_nodelay(true);
    m_client->set_read_timeout(10);
}

httplib::Headers Client::headers() const
{
    httplib::Headers result{{"version", "1"}, {"platform", "iOS"}};
    if (!token.empty())
        result.emplace("api_token", token);
    return result;
}

Json Client::get(const std::string &path)
{
    return envelope(m_client->Get("/" + path, headers()));
}

Json Client::post(const std::string &path, const Fields &fields)
{
    return envelope(m_client->Post("/" + path, headers(), fields));
}

Json Client::put(const std::string &path)
{
    return envelope(m_client->Put("/" + path, headers(), "", "application/x-www-form-urlencoded"));
}

RunningSandbox::RunningSandbox()
{
    start();
}

void RunningSandbox::start()
{
    Options options;
    options.port = 0;
    options.dataDir = m_folder.path();
    m_sandbox = std::make_unique<Sandbox>(options, [this](const std::string &line) {
        const std::scoped_lock lock(m_mutex);
        m_printed.push_back(line);
    });
}

void RunningSandbox::restart()
{
    m_sandbox.reset();
    start();
}

Client RunningSandbox::client()
{
    return {m_sandbox->port(), authority()};
}

Client RunningSandbox::signedIn(const std::string &cell)
{
    Client result = client();
    const Json started = result.post("user/start", {{"cell", cell}});
    const Json verified = result.post(
        "user/verify", {{"bizCode", started.at("bizCode").get<std::string>()}, {"userInput", codeFor(cell)}});
    result.token = verified.at("data").at("api_token");
    return result;
}

std::string RunningSandbox::codeFor(const std::string &cell)
{
    const std::string beginning = "SMS " + cell + ": ";
    const std::vector<std::string> lines = printed();
    for (auto line = lines.rbegin(); line != lines.rend(); ++line)
        if (line->rfind(beginning, 0) == 0)
            return line->substr(beginning.size());
    return {};
}

std::vector<std::string> RunningSandbox::printed()
{
    const std::scoped_lock lock(m_mutex);
    return m_printed;
}

bool succeeded(const Json &envelope)
{
    return envelope.is_object() && envelope.value("success", false);
}

std::string message(const Json &envelope)
{
    return envelope.is_object() ? envelope.value("message", "") : "";
}

std::string code(const Json &envelope)
{
    return envelope.is_object() ? envelope.value("code", "") : "";
}

} // namespace sandbox::test
