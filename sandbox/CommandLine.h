#pragma once

#include <cstdint>
#include <filesystem>
#include <span>
#include <stdexcept>
#include <string>

namespace sandbox {

struct Options {
    std::string host = "127.0.0.1";
    int port = 8443; ///< 0: any free port
    std::filesystem::path dataDir;
    std::uint64_t seed = 1;
    bool marketHours = false;
    std::filesystem::path readyFile; ///< gets the ready line when not empty
    bool quiet = false;
    bool help = false;
};

/// A command line that cannot be followed; what() says what is wrong.
class UsageError : public std::runtime_error {
public:
    using std::runtime_error::runtime_error;
};

/// Reads the arguments after the program's name. Throws UsageError.
[[nodiscard]] Options parseCommandLine(std::span<const char *const> arguments);

[[nodiscard]] std::string helpText();

} // namespace sandbox
