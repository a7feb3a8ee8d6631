#pragma once

#include "http/Connections.h"
#include "http/Faults.h"
#include "http/Router.h"
#include "tls/Certificates.h"

#include <condition_variable>
#include <memory>
#include <thread>

namespace httplib {
class SSLServer;
struct Request;
struct Response;
} // namespace httplib

namespace sandbox::http {

struct Body;

/// The HTTPS front of the service: reads calls, lets faults happen, dispatches, writes answers. One thread
/// per open connection.
class Server {
public:
    /// `log` gets one line per call: method, path, status and milliseconds; it may be empty and is called
    /// from many threads.
    using Log = std::function<void(const std::string &line)>;

    Server(const tls::Identity &identity, Router &router, Faults &faults, Log log);
    ~Server();

    /// Listens and serves on threads of its own. Answers the port; 0 takes a free one. Throws
    /// std::runtime_error, saying why, when the address cannot be used.
    int start(const std::string &host, int port);

    /// Ends every open connection and waits for the threads.
    void stop();

private:
    void serve(const httplib::Request &request, httplib::Response &response,
               const std::function<Body()> &body);
    void answer(const httplib::Request &request, const Call &call, httplib::Response &response);
    void write(const httplib::Request &request, Answer answer, httplib::Response &response);
    void spoil(const httplib::Request &request, const Fault &fault, Answer answer,
               httplib::Response &response);
    void wait(std::chrono::milliseconds time);

    Router &m_router;
    Faults &m_faults;
    Log m_log;
    Connections m_connections;
    std::unique_ptr<httplib::SSLServer> m_server;
    std::thread m_thread;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_stopping = false;
};

} // namespace sandbox::http
