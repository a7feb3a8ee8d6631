#include "RunningSandbox.h"

#include <csignal>
#include <fcntl.h>
#include <fstream>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

namespace sandbox::test {
namespace {

std::string contents(const std::filesystem::path &file)
{
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

/// The program as a process of its own; its output is collected in files.
class Process {
public:
    explicit Process(const std::vector<std::string> &arguments)
    {
        std::vector<char *> words{const_cast<char *>(SANDBOX_PROGRAM)};
        for (const std::string &argument : arguments)
            words.push_back(const_cast<char *>(argument.c_str()));
        words.push_back(nullptr);
        posix_spawn_file_actions_t files;
        posix_spawn_file_actions_init(&files);
        posix_spawn_file_actions_addopen(&files, STDOUT_FILENO, out().c_str(), O_WRONLY | O_CREAT, 0600);
        posix_spawn_file_actions_addopen(&files, STDERR_FILENO, err().c_str(), O_WRONLY | O_CREAT, 0600);
        EXPECT_EQ(::posix_spawn(&m_pid, SANDBOX_PROGRAM, &files, nullptr, words.data(), environ), 0);
        posix_spawn_file_actions_destroy(&files);
    }
    ~Process()
    {
        if (m_pid > 0) {
            ::kill(m_pid, SIGKILL);
            ::waitpid(m_pid, nullptr, 0);
        }
    }
    Process(const Process &) = delete;
    Process &operator=(const Process &) = delete;

    /// The exit status, or minus the signal that ended it.
    int wait()
    {
        int status = 0;
        ::waitpid(m_pid, &status, 0);
        m_pid = 0;
        return WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
    }
    void signal(int number) { ::kill(m_pid, number); }

    [[nodiscard]] std::string printed() const { return contents(out()); }
    [[nodiscard]] std::string complained() const { return contents(err()); }
    /// Waits for the line that says that it is ready.
    std::string ready()
    {
        for (int i = 0; i < 1500; ++i) {
            const std::string text = printed();
            if (text.find('\n') != std::string::npos)
                return text.substr(0, text.find('\n'));
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        return {};
    }

private:
    [[nodiscard]] std::filesystem::path out() const { return m_folder.path() / "out"; }
    [[nodiscard]] std::filesystem::path err() const { return m_folder.path() / "err"; }

    TemporaryFolder m_folder;
    pid_t m_pid = 0;
};

int portOf(const std::string &ready)
{
    const std::size_t colon = ready.find(':', ready.find("//"));
    return std::stoi(ready.substr(colon + 1));
}

TEST(CommandLine, WrongOptionsEndWithOneLineAndStatusTwo)
{
    const TemporaryFolder folder;
    const std::string data = folder.path().string();
    for (const std::vector<std::string> &arguments :
         {std::vector<std::string>{"--colour"},
          {"--port"},
          {"--port", "70000"},
          {"--port", "x"},
          {"--port", "-1"},
          {"--seed", "1.5"},
          {"extra"},
          {"--data-dir", ""},
          {"--data-dir", "/dev/null/x"},
          {"--data-dir", data, "--host", "256.1.1.1"},
          {"--data-dir", data, "--port", "0", "--ready-file", "/no/such/folder/file"}}) {
        Process process(arguments);
        EXPECT_EQ(process.wait(), 2) << arguments.front();
        const std::string text = process.complained();
        EXPECT_EQ(text.rfind("zorvane-sandbox: ", 0), 0u) << text;
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1) << text;
        EXPECT_EQ(process.printed(), "") << arguments.front();
    }
}

TEST(CommandLine, ADamagedDatabaseIsNamedAtTheStartAndLeftAlone)
{
    for (const int begin : {0, 4096 * 3}) {
        const TemporaryFolder folder;
        const std::filesystem::path file = folder.path() / "sandbox.db";
        const std::vector<std::string> arguments{"--data-dir", folder.path().string(), "--port", "0",
                                                 "--quiet"};
        Process sound(arguments);
        static_cast<void>(sound.ready());
        sound.signal(SIGTERM);
        EXPECT_EQ(sound.wait(), 0);
        std::fstream(file, std::ios::in | std::ios::out | std::ios::binary).seekp(begin)
            << std::string(4096 * 8, '\xa5');
        const std::string damaged = contents(file);

        Process process(arguments);
        EXPECT_EQ(process.wait(), 2);
        const std::string text = process.complained();
        EXPECT_NE(text.find("sandbox.db"), std::string::npos) << text;
        EXPECT_EQ(std::count(text.begin(), text.end(), '\n'), 1) << text;
        EXPECT_TRUE(contents(file) == damaged);
    }
}

TEST(CommandLine, AnUsedPortAndAnUsedFolderAreToldApart)
{
    const TemporaryFolder folder;
    const TemporaryFolder other;
    Process first({"--data-dir", folder.path().string(), "--port", "0", "--quiet"});
    const int port = portOf(first.ready());
    Process samePort({"--data-dir", other.path().string(), "--port", std::to_string(port)});
    EXPECT_EQ(samePort.wait(), 2);
    EXPECT_NE(samePort.complained().find("in use"), std::string::npos) << samePort.complained();
    Process sameFolder({"--data-dir", folder.path().string(), "--port", "0"});
    EXPECT_EQ(sameFolder.wait(), 2);
    EXPECT_NE(sameFolder.complained().find("another sandbox"), std::string::npos) << sameFolder.complained();
}

TEST(CommandLine, StartsAnswersAndEndsOnASignalWhileAClientIsConnected)
{
    const TemporaryFolder folder;
    const std::filesystem::path readyFile = folder.path() / "ready";
    Process process({"--data-dir", (folder.path() / "new/data").string(), "--port", "0", "--ready-file",
                     readyFile.string()});
    const std::string ready = process.ready();
    const std::string expected = "ready https://127.0.0.1:" + std::to_string(portOf(ready)) + "/ ca " +
                                 (folder.path() / "new/data/ca.pem").string();
    EXPECT_EQ(ready, expected);
    EXPECT_EQ(contents(readyFile), expected + "\n");

    Client client(portOf(ready), folder.path() / "new/data/ca.pem");
    EXPECT_TRUE(succeeded(client.get("loanOverview")));
    EXPECT_TRUE(succeeded(client.post("user/start", {{"cell", "13800138000"}})));
    const auto began = std::chrono::steady_clock::now();
    process.signal(SIGTERM);
    EXPECT_EQ(process.wait(), 0);
    EXPECT_LT(std::chrono::steady_clock::now() - began, std::chrono::seconds(3));
    EXPECT_NE(process.printed().find("SMS 13800138000: "), std::string::npos);
    EXPECT_NE(process.printed().find("GET /loanOverview 200 "), std::string::npos);
}

TEST(CommandLine, AKillAtAnyMomentOfTheFirstStartLeavesDataThatTheNextStartMakesGood)
{
    const TemporaryFolder folder;
    const std::vector<std::string> arguments{"--data-dir", folder.path().string(), "--port", "0", "--quiet"};
    for (int i = 0; i < 12; ++i) {
        Process process(arguments);
        std::this_thread::sleep_for(std::chrono::milliseconds(i * 12));
        process.signal(SIGKILL);
        process.wait();
    }
    Process process(arguments);
    Client client(portOf(process.ready()), folder.path() / "ca.pem");
    const Json users = client.get("sandbox/state").at("data").at("users");
    ASSERT_EQ(users.size(), 1u);
    EXPECT_EQ(users[0].at("nick"), "体验用户");
    EXPECT_EQ(users[0].at("holdings").size(), 4u);
}

} // namespace
} // namespace sandbox::test
