#include "CommandLine.h"

#include <charconv>
#include <cstdlib>

namespace sandbox {
namespace {

std::filesystem::path defaultDataDir()
{
    if (const char *data = std::getenv("XDG_DATA_HOME"); data && *data)
        return std::filesystem::path(data) / "zorvane-sandbox";
    const char *home = std::getenv("HOME");
    return std::filesystem::path(home && *home ? home : ".") / ".local/share/zorvane-sandbox";
}

template <typename Number> Number number(const std::string &option, const std::string &text, Number most)
{
    Number value = 0;
    const auto [rest, error] = std::from_chars(text.data(), text.data() + text.size(), value);
    if (error != std::errc() || rest != text.data() + text.size() || value < 0 || value > most)
        throw UsageError(option + " needs a number from 0 to " + std::to_string(most) + ", not \"" + text +
                         "\"");
    return value;
}

} // namespace

Options parseCommandLine(std::span<const char *const> arguments)
{
    Options options;
    options.dataDir = defaultDataDir();
    for (std::size_t i = 0; i < arguments.size(); ++i) {
        const std::string option = arguments[i];
        const auto value = [&]() -> std::string {
            if (i + 1 == arguments.size() || *arguments[i + 1] == '\0')
                throw UsageError(option + " needs a value");
            return arguments[++i];
        };
        if (option == "--host")
            options.host = value();
        else if (option == "--port")
            options.port = number<int>(option, value(), 65535);
        else if (option == "--data-dir")
            options.dataDir = value();
        else if (option == "--seed")
            options.seed = number<std::uint64_t>(option, value(), INT64_MAX);
        else if (option == "--market-hours")
            options.marketHours = true;
        else if (option == "--ready-file")
            options.readyFile = value();
        else if (option == "--quiet")
            options.quiet = true;
        else if (option == "--help")
            options.help = true;
        else
            throw UsageError("unknown option \"" + option + "\"");
    }
    return options;
}

std::string helpText()
{
    return R"(usage: zorvane-sandbox [options]

A simulated stock-trading service on this machine, for the client to talk to.

  --host ADDRESS     address to listen on (127.0.0.1)
  --port N           port to listen on, 0 for a free one (8443)
  --data-dir DIR     where accounts, orders and certificates are kept
                     ($XDG_DATA_HOME/zorvane-sandbox or ~/.local/share/zorvane-sandbox)
  --seed N           which companies and prices a new data directory gets (1)
  --market-hours     follow the real sessions; otherwise the market is always open
  --ready-file FILE  write the ready line into FILE as well
  --quiet            no line for each request; SMS codes are still printed
  --help             this text
)";
}

} // namespace sandbox
