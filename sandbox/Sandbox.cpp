#include "Sandbox.h"

#include "console/Console.h"
#include "http/Routes.h"
#include "pages/Pages.h"

#include <condition_variable>
#include <fcntl.h>
#include <iostream>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace sandbox {
namespace {

constexpr const char *demoCell = "13800138000";
constexpr std::chrono::milliseconds heartbeat{200};

Millis realNow()
{
    using namespace std::chrono;
    return duration_cast<milliseconds>(system_clock::now().time_since_epoch()).count();
}

/// The data directory, used by one sandbox at a time. One that is made here is its owner's only.
class DataDirectory {
public:
    explicit DataDirectory(const std::filesystem::path &path) : m_path(path)
    {
        std::error_code error;
        if (std::filesystem::create_directories(path, error))
            ::chmod(path.c_str(), 0700);
        m_lock = error ? -1 : ::open((path / "lock").c_str(), O_RDWR | O_CREAT | O_CLOEXEC, 0600);
        if (m_lock < 0)
            throw StartError("cannot write to " + path.string() + ": " +
                             (error ? error.message() : std::generic_category().message(errno)) +
                             "; choose another folder with --data-dir");
        if (::flock(m_lock, LOCK_EX | LOCK_NB) != 0) {
            ::close(m_lock);
            throw StartError("another sandbox uses " + path.string() +
                             "; stop it or choose another --data-dir");
        }
    }
    ~DataDirectory() { ::close(m_lock); }
    DataDirectory(const DataDirectory &) = delete;
    DataDirectory &operator=(const DataDirectory &) = delete;

    [[nodiscard]] std::string database() const { return (m_path / "sandbox.db").string(); }

private:
    std::filesystem::path m_path;
    int m_lock = -1;
};

/// Brings the market forward and pushes what happened to orders, five times a second.
class Heartbeat {
public:
    explicit Heartbeat(http::Service &service) : m_service(service), m_thread([this] { run(); }) {}
    ~Heartbeat()
    {
        {
            const std::scoped_lock lock(m_mutex);
            m_stopping = true;
        }
        m_wake.notify_all();
        m_thread.join();
    }
    Heartbeat(const Heartbeat &) = delete;
    Heartbeat &operator=(const Heartbeat &) = delete;

private:
    void run()
    {
        std::unique_lock lock(m_mutex);
        while (!m_wake.wait_for(lock, heartbeat, [this] { return m_stopping; })) {
            try {
                beat();
            } catch (const std::exception &error) {
                std::cerr << "error: " << error.what() << std::endl;
            }
        }
    }

    void beat() { m_service.brokerage.tick(); }

    http::Service &m_service;
    std::mutex m_mutex;
    std::condition_variable m_wake;
    bool m_stopping = false;
    std::thread m_thread;
};

/// Every step may be repeated, so that a start that was cut short is made good by the next.
void makeDemoUser(http::Service &service)
{
    const identity::User user = service.users.create(demoCell, {});
    service.brokerage.createDemoAccount(user.id);
    service.users.setNick(user.id, "体验用户");
    service.users.setRealName(user.id, "张三丰", "110101199003070011");
    service.users.setCard(user.id, {"招商银行", "CMB", "7890"});
    http::welcome(service, user.id);
    messages::Message news;
    news.user = user.id;
    news.source = messages::source::activity;
    news.title = "新手指南";
    news.summary = "三分钟学会下单";
    news.content = "选择一只股票，点一下盘口中的价格，填写数量并确认。买入数量须为100股的整数倍，当天买入的股"
                   "票下一个交易日才能卖出。";
    service.messages.add(std::move(news));
    service.users.setTradePassword(user.id, "123456");
}

} // namespace

struct Sandbox::Parts {
    Parts(const Options &options, const std::function<void(const std::string &)> &print)
        : directory(options.dataDir), caFile(options.dataDir / "ca.pem"),
          certificate(tls::serverIdentity(options.dataDir, tls::Clock::now())),
          brokerage({directory.database(), options.seed, options.marketHours}, clock),
          users(directory.database(), realNow),
          sms(directory.database(), realNow,
              [print](const identity::Sms &sent) { print("SMS " + sent.cell + ": " + sent.code); }),
          resets(directory.database(), realNow),
          messages(directory.database(), realNow), service{clock,    brokerage,
                                                           users,    sms,
                                                           sessions, resets,
                                                           messages, push,
                                                           faults,   options.dataDir / "images"},
          server(certificate, router, faults, options.quiet ? http::Server::Log{} : http::Server::Log{print})
    {
        const auto demo = users.byCell(demoCell);
        if (!demo || !demo->hasTradePassword)
            makeDemoUser(service);
        for (const identity::User &user : users.all())
            brokerage.createAccount(user.id);
        http::addAccountRoutes(router, service);
        http::addStockRoutes(router, service);
        http::addTradingRoutes(router, service);
        http::addFundRoutes(router, service);
        http::addHomeRoutes(router, service);
        http::addMessageRoutes(router, service);
        http::addSandboxRoutes(router, service);
        console::addConsole(router, service);
        pages::addPages(router);
        port = server.start(options.host, options.port);
        host = options.host == "::1" || options.host == "::" ? "[::1]" : "127.0.0.1";
    }
    ~Parts()
    {
        push.close();
        server.stop();
    }
    Parts(const Parts &) = delete;
    Parts &operator=(const Parts &) = delete;

    DataDirectory directory;
    std::filesystem::path caFile;
    tls::Identity certificate;
    Clock clock;
    Brokerage brokerage;
    identity::Users users;
    identity::SmsCodes sms;
    identity::Sessions sessions;
    identity::Resets resets;
    messages::Messages messages;
    messages::PushHub push;
    http::Faults faults;
    http::Service service;
    http::Router router;
    http::Server server;
    std::string host; ///< as a URL of this machine names it
    int port = 0;
    Heartbeat beat{service};
};

Sandbox::Sandbox(const Options &options, const std::function<void(const std::string &)> &print)
{
    try {
        m_parts = std::make_unique<Parts>(options, print);
    } catch (const StoreError &error) {
        throw StartError((options.dataDir / "sandbox.db").string() + " cannot be used: " + error.what() +
                         "; move it away or choose another --data-dir");
    } catch (const std::system_error &error) {
        throw StartError(std::string(error.what()) + "; choose another folder with --data-dir");
    }
}

Sandbox::~Sandbox() = default;

int Sandbox::port() const
{
    return m_parts->port;
}

std::string Sandbox::readyLine() const
{
    return "ready https://" + m_parts->host + ":" + std::to_string(m_parts->port) + "/ ca " +
           std::filesystem::absolute(m_parts->caFile).string();
}

http::Service &Sandbox::service()
{
    return m_parts->service;
}

} // namespace sandbox
