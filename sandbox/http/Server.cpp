#include "http/Server.h"

#include "http/Body.h"

#include <cerrno>
#include <httplib.h>
#include <netdb.h>
#include <poll.h>
#include <unistd.h>

namespace sandbox::http {
namespace {

using std::chrono::steady_clock;

constexpr std::size_t connectionThreads = 96;
constexpr std::size_t longestPath = 1000;

bool configure(SSL_CTX &context, const tls::Identity &identity)
{
    return SSL_CTX_set_min_proto_version(&context, TLS1_2_VERSION) == 1 &&
           SSL_CTX_use_certificate(&context, identity.certificate.get()) == 1 &&
           SSL_CTX_use_PrivateKey(&context, identity.key.get()) == 1;
}

/// A path as a log may show it: printable ASCII, 120 characters at most.
std::string printable(const std::string &path)
{
    std::string result = path.substr(0, 120);
    std::replace_if(
        result.begin(), result.end(), [](char c) { return c < 0x21 || c > 0x7e; }, '?');
    return result;
}

Call readCall(const httplib::Request &request, Body body)
{
    Call call;
    call.method = request.method;
    call.path = request.path.substr(request.path.empty() ? 0 : 1);
    call.fields = std::move(body.fields);
    call.file = std::move(body.upload);
    if (const std::size_t query = request.target.find('?'); query != std::string::npos)
        call.fields.merge(parseForm(std::string_view(request.target).substr(query + 1)));
    call.token = request.get_header_value("api_token");
    call.infoVersion = request.get_header_value("info_version");
    call.alias = request.get_header_value("alias");
    call.host = request.get_header_value("Host");
    call.origin = request.get_header_value("Origin");
    call.remote = request.remote_addr;
    return call;
}

bool hasEnded(const SSL *connection)
{
    pollfd descriptor{SSL_get_fd(connection), POLLRDHUP, 0};
    return ::poll(&descriptor, 1, 0) > 0;
}

/// Tries again to bind, for the reason that the library does not tell.
std::string whyNotBound(const std::string &host, int port)
{
    addrinfo hints{};
    hints.ai_socktype = SOCK_STREAM;
    hints.ai_flags = AI_PASSIVE;
    addrinfo *found = nullptr;
    if (::getaddrinfo(host.c_str(), std::to_string(port).c_str(), &hints, &found) != 0)
        return "there is no such address on this machine";
    const std::unique_ptr<addrinfo, void (*)(addrinfo *)> address(found, &::freeaddrinfo);
    const int socket = ::socket(address->ai_family, SOCK_STREAM | SOCK_CLOEXEC, 0);
    const int yes = 1;
    ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    const int error = ::bind(socket, address->ai_addr, address->ai_addrlen) == 0 ? EADDRINUSE : errno;
    ::close(socket);
    return error == EADDRINUSE ? "the port is in use; choose another with --port, 0 for a free one"
                               : std::generic_category().message(error);
}

} // namespace

Server::Server(const tls::Identity &identity, Router &router, Faults &faults, Log log)
    : m_router(router), m_faults(faults), m_log(std::move(log))
{
    m_server = std::make_unique<httplib::SSLServer>([this, &identity](SSL_CTX &context) {
        m_connections.watch(&context);
        return configure(context, identity);
    });
    if (!m_server->is_valid())
        throw std::runtime_error("the server certificate cannot be used");
    m_server->new_task_queue = [] { return new httplib::ThreadPool(connectionThreads); };
    m_server->set_tcp_nodelay(true);
    m_server->set_keep_alive_max_count(1'000'000);
    m_server->set_keep_alive_timeout(30);
    m_server->set_read_timeout(15);
    m_server->set_write_timeout(15);
    m_server->set_payload_max_length(longestBody);
    // Without SO_REUSEPORT, which would let two servers share one port unnoticed.
    m_server->set_socket_options([](socket_t socket) {
        const int yes = 1;
        ::setsockopt(socket, SOL_SOCKET, SO_REUSEADDR, &yes, sizeof yes);
    });
    m_server->set_error_handler([](const httplib::Request &, httplib::Response &response) {
        if (response.body.empty())
            response.set_content(Router::enveloped(failure("请求格式不正确")).body,
                                 "application/json; charset=utf-8");
    });

    m_server->set_pre_routing_handler([this](const httplib::Request &request, httplib::Response &response) {
        // Such paths exist nowhere; they are answered here so that no regular expression has to walk them.
        if (request.path.size() <= longestPath && request.path.find('\n') == std::string::npos)
            return httplib::Server::HandlerResponse::Unhandled;
        Call call;
        call.method = request.method;
        call.path = "(" + std::to_string(request.path.size()) + " characters)";
        write(request, m_router.dispatch(call), response);
        return httplib::Server::HandlerResponse::Handled;
    });
    const auto plain = [this](const httplib::Request &request, httplib::Response &response) {
        serve(request, response, [] { return Body{}; });
    };
    const auto withBody = [this](const httplib::Request &request, httplib::Response &response,
                                 const httplib::ContentReader &read) {
        serve(request, response, [&] { return readBody(request, read); });
    };
    m_server->Get(".*", plain).Options(".*", plain);
    m_server->Post(".*", withBody).Put(".*", withBody).Patch(".*", withBody).Delete(".*", withBody);
}

Server::~Server()
{
    stop();
}

int Server::start(const std::string &host, int port)
{
    const int bound = port == 0                            ? m_server->bind_to_any_port(host)
                      : m_server->bind_to_port(host, port) ? port
                                                           : -1;
    if (bound <= 0)
        throw std::runtime_error("cannot listen on " + host + ":" + std::to_string(port) + ": " +
                                 whyNotBound(host, port));
    m_thread = std::thread([this] { m_server->listen_after_bind(); });
    while (!m_server->is_running())
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    return bound;
}

void Server::stop()
{
    if (!m_thread.joinable())
        return;
    {
        const std::scoped_lock lock(m_mutex);
        m_stopping = true;
    }
    m_wake.notify_all();
    m_server->stop();
    m_connections.endAll();
    m_thread.join();
}

void Server::wait(std::chrono::milliseconds time)
{
    std::unique_lock lock(m_mutex);
    m_wake.wait_for(lock, time, [this] { return m_stopping; });
}

void Server::serve(const httplib::Request &request, httplib::Response &response,
                   const std::function<Body()> &body)
{
    const auto began = steady_clock::now();
    try {
        answer(request, readCall(request, body()), response);
    } catch (const BadRequest &bad) {
        write(request, Router::enveloped(failure(bad.what()), bad.status), response);
    }
    if (m_log) {
        const auto spent = std::chrono::duration_cast<std::chrono::milliseconds>(steady_clock::now() - began);
        const std::string status = response.status < 0 ? "dropped" : std::to_string(response.status);
        m_log(request.method + " " + printable(request.path) + " " + status + " " +
              std::to_string(spent.count()) + " ms");
    }
}

void Server::answer(const httplib::Request &request, const Call &call, httplib::Response &response)
{
    const std::optional<Fault> fault = m_faults.take(call.path);
    if (!fault)
        return write(request, m_router.dispatch(call), response);
    Answer done;
    if (worksAtOnce(fault->kind))
        done = m_router.dispatch(call);
    wait(fault->delay);
    switch (fault->kind) {
    case FaultKind::DropBefore:
        return Connections::reset(request.ssl);
    case FaultKind::Status:
        return write(request, Router::enveloped(failure(fault->message), fault->status), response);
    case FaultKind::Refuse:
        return write(request, Router::enveloped(failure(fault->message)), response);
    case FaultKind::DelayBefore:
        return write(request, m_router.dispatch(call), response);
    default:
        return spoil(request, *fault, std::move(done), response);
    }
}

void Server::spoil(const httplib::Request &request, const Fault &fault, Answer answer,
                   httplib::Response &response)
{
    if (fault.kind == FaultKind::DropAfter)
        return Connections::reset(request.ssl);
    if (fault.kind == FaultKind::Garbage)
        answer.body = "<!doctype html>\xff\xfe{\"success\":tru";
    if (fault.kind == FaultKind::ContentType)
        answer.contentType = "application/octet-stream";
    if (fault.kind != FaultKind::Truncate)
        return write(request, std::move(answer), response);
    response.status = answer.status;
    const std::size_t size = answer.body.size();
    response.set_content_provider(
        size, answer.contentType,
        [body = std::move(answer.body)](std::size_t offset, std::size_t, httplib::DataSink &sink) {
            if (offset == 0)
                sink.write(body.data(), body.size() / 2);
            return offset == 0 && body.size() > 1;
        });
}

void Server::write(const httplib::Request &request, Answer answer, httplib::Response &response)
{
    response.status = answer.status;
    response.set_header("Cache-Control", "no-store");
    response.set_header("X-Content-Type-Options", "nosniff");
    for (const auto &[name, value] : answer.headers)
        response.set_header(name, value);
    if (!answer.stream) {
        response.set_content(answer.body, answer.contentType);
        return;
    }
    response.set_chunked_content_provider(
        answer.contentType,
        [next = std::move(answer.stream), ssl = request.ssl](std::size_t, httplib::DataSink &sink) {
            const std::optional<std::string> piece = hasEnded(ssl) ? std::nullopt : next();
            if (!piece)
                sink.done();
            else if (!piece->empty())
                return sink.write(piece->data(), piece->size());
            return true;
        });
}

} // namespace sandbox::http
