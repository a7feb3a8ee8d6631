#include "RunningSandbox.h"

#include <condition_variable>

namespace sandbox::test {
namespace {

/// Reads a push stream on a thread of its own.
class Listener {
public:
    Listener(int port, const std::filesystem::path &authority, const std::string &alias)
        : m_client(port, authority), m_thread([this, alias] {
              m_client.raw().Get("/sandbox/push", {{"alias", alias}},
                                 [this](const char *data, std::size_t size) {
                                     const std::scoped_lock lock(m_mutex);
                                     m_text.append(data, size);
                                     m_news.notify_all();
                                     return !m_stop;
                                 });
              const std::scoped_lock lock(m_mutex);
              m_ended = true;
              m_news.notify_all();
          })
    {
    }
    ~Listener()
    {
        {
            const std::scoped_lock lock(m_mutex);
            m_stop = true;
            m_client.raw().stop();
        }
        m_thread.join();
    }
    Listener(const Listener &) = delete;
    Listener &operator=(const Listener &) = delete;

    /// Waits until so many events have come and answers them; the first heartbeat counts as none.
    std::vector<Json> events(std::size_t count)
    {
        wait([&] { return parsed().size() >= count; });
        const std::scoped_lock lock(m_mutex);
        return parsed();
    }
    void opened()
    {
        EXPECT_TRUE(wait([&] { return !m_text.empty(); }));
    }
    bool ended()
    {
        return wait([&] { return m_ended; });
    }

private:
    template <typename Condition> bool wait(Condition condition)
    {
        std::unique_lock lock(m_mutex);
        return m_news.wait_for(lock, std::chrono::seconds(5), [&] { return condition() || m_ended; });
    }
    std::vector<Json> parsed() const
    {
        std::vector<Json> result;
        std::istringstream lines(m_text);
        for (std::string line; std::getline(lines, line);)
            if (!line.empty())
                result.push_back(Json::parse(line));
        return result;
    }

    std::mutex m_mutex;
    std::condition_variable m_news;
    std::string m_text;
    bool m_ended = false;
    std::atomic<bool> m_stop = false;
    Client m_client;
    std::thread m_thread;
};

messages::Message notice(UserId user, const std::string &title)
{
    messages::Message message;
    message.user = user;
    message.source = messages::source::system;
    message.title = title;
    message.content = "正文";
    return message;
}

TEST(Messages, AreListedByPageMarkedReadAndCounted)
{
    RunningSandbox running;
    Client client = running.signedIn("13912345678");
    const UserId user = running.service().users.byCell("13912345678")->id;
    EXPECT_EQ(client.get("msg/count").at("data"), 1);
    for (int i = 0; i < 4; ++i)
        http::sendMessage(running.service(), notice(user, "通知" + std::to_string(i)));
    EXPECT_EQ(client.get("msg/count").at("data"), 5);

    const Json first = client.get("msg/list?pageIndex=1&pageSize=3&status=3&source=100").at("data");
    EXPECT_EQ(first.at("hasNext"), true);
    EXPECT_EQ(first.at("page"), 1);
    EXPECT_EQ(first.at("data").at(0).at("title"), "通知3");
    const Json second = client.get("msg/list?pageIndex=2&pageSize=3&status=3&source=100").at("data");
    EXPECT_EQ(second.at("hasNext"), false);
    EXPECT_EQ(second.at("data").size(), 2u);
    EXPECT_TRUE(
        client.get("msg/list?pageIndex=1&pageSize=100&status=3&source=200").at("data").at("data").empty());

    const std::string id = first.at("data").at(0).at("id");
    EXPECT_TRUE(succeeded(client.put("msg/mark?msgId=" + id)));
    EXPECT_EQ(client.get("msg/count").at("data"), 4);
    EXPECT_EQ(client.get("msg/list?pageIndex=1&pageSize=10&status=2&source=100").at("data").at("data").size(),
              1u);
    EXPECT_FALSE(succeeded(running.signedIn().put("msg/mark?msgId=" + id)));
}

TEST(Push, MessagesAndOrdersReachTheirUserOnlyAndTwiceOnDemand)
{
    RunningSandbox running;
    Client client = running.signedIn();
    const std::string stranger = running.signedIn("13912345678").token;
    Listener mine(running.sandbox().port(), running.authority(), client.token);
    Listener others(running.sandbox().port(), running.authority(), stranger);
    mine.opened();
    others.opened();

    const UserId user = running.service().users.byCell("13800138000")->id;
    client.post("sandbox/fault", {{"kind", "duplicate-push"}});
    http::sendMessage(running.service(), notice(user, "你好"));
    const std::string stock = client.get("holding").at("data").at(0).at("stockCode");
    const std::string price =
        client.get("timelyInfo/timelyOrderForm?stockCode=" + stock).at("data").at("upperLimit");
    const Json bought = client.post("entrust/createBuy", {{"stockCode", stock},
                                                          {"entrustPrice", price},
                                                          {"entrustShares", "100"},
                                                          {"tradePassword", "123456"}});
    client.post("sandbox/push-order", {{"user", std::to_string(user)},
                                       {"entrustNo", bought.at("data").at("entrustNo").get<std::string>()}});

    const std::vector<Json> events = mine.events(3);
    ASSERT_EQ(events.size(), 3u);
    EXPECT_EQ(events[0].at("pageId"), 2);
    EXPECT_EQ(events[0].at("data").at("title"), "你好");
    EXPECT_EQ(events[1], events[0]);
    EXPECT_EQ(events[2].at("pageId"), 3);
    EXPECT_EQ(events[2].at("data").at("id"), bought.at("data").at("id"));
    EXPECT_EQ(events[2].at("data").at("status"), "8");
    EXPECT_TRUE(others.events(0).empty());
}

TEST(Push, AForgedAliasIsTurnedAwayAndStreamsEndWithClientAndService)
{
    RunningSandbox running;
    Client client = running.client();
    EXPECT_EQ(client.raw().Get("/sandbox/push", {{"alias", "off_line"}})->status, 401);
    const std::string token = running.signedIn().token;
    {
        Listener gone(running.sandbox().port(), running.authority(), token);
        gone.opened();
        EXPECT_EQ(running.service().push.listeners().size(), 1u);
    }
    for (int i = 0; i < 300 && !running.service().push.listeners().empty(); ++i)
        std::this_thread::sleep_for(std::chrono::milliseconds(10));
    EXPECT_TRUE(running.service().push.listeners().empty());
    Listener listener(running.sandbox().port(), running.authority(), token);
    listener.opened();
    running.restart();
    EXPECT_TRUE(listener.ended());
}

TEST(Push, StreamsDoNotStarveRequests)
{
    RunningSandbox running;
    const std::string token = running.signedIn().token;
    std::vector<std::unique_ptr<Listener>> listeners;
    for (std::size_t i = 0; i < messages::PushHub::mostStreams; ++i) {
        listeners.push_back(std::make_unique<Listener>(running.sandbox().port(), running.authority(), token));
        listeners.back()->opened();
    }
    Client client = running.client();
    EXPECT_EQ(client.raw().Get("/sandbox/push", {{"alias", token}})->status, 503);
    EXPECT_TRUE(succeeded(client.get("loanOverview")));
}

} // namespace
} // namespace sandbox::test
