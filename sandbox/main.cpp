#include "Sandbox.h"
#include "tls/PrivateFile.h"

#include <csignal>
#include <iostream>
#include <mutex>
#include <sys/stat.h>

namespace {

constexpr int cannotStart = 2;

int run(const sandbox::Options &options)
{
    // What is kept is its owner's only.
    ::umask(077);

    // Blocked here, and so in every thread made later: only sigwait below takes them.
    sigset_t ends;
    sigemptyset(&ends);
    sigaddset(&ends, SIGINT);
    sigaddset(&ends, SIGTERM);
    pthread_sigmask(SIG_BLOCK, &ends, nullptr);

    std::mutex terminal;
    const auto print = [&terminal](const std::string &line) {
        const std::scoped_lock lock(terminal);
        std::cout << line << std::endl;
    };
    sandbox::Sandbox service(options, print);
    if (!options.readyFile.empty())
        sandbox::tls::writeWhole(options.readyFile, service.readyLine() + "\n",
                                 sandbox::tls::Readers::Everyone);
    print(service.readyLine());

    int signal = 0;
    sigwait(&ends, &signal);
    return 0;
}

} // namespace

int main(int count, char **arguments)
{
    try {
        const auto options = sandbox::parseCommandLine({arguments + 1, static_cast<std::size_t>(count - 1)});
        if (options.help) {
            std::cout << sandbox::helpText();
            return 0;
        }
        return run(options);
    } catch (const sandbox::UsageError &error) {
        std::cerr << "zorvane-sandbox: " << error.what() << "; see --help" << std::endl;
    } catch (const std::exception &error) {
        std::cerr << "zorvane-sandbox: " << error.what() << std::endl;
    }
    return cannotStart;
}
