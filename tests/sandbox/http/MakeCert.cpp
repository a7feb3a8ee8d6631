#include "tls/Certificates.h"

#include <iostream>
#include <span>

/// Makes certificates that a careful client refuses, and one that it accepts:
///   DIR/ca.pem          the authority to trust
///   DIR/good.pem        for 127.0.0.1, ::1 and localhost, signed by it
///   DIR/expired.pem     as good, but its time ended yesterday
///   DIR/wrong-host.pem  for "elsewhere.example" only
///   DIR/unknown.pem     as good, but signed by an authority that nobody trusts
/// Each has its key beside it, "good.key".
int main(int count, char **arguments)
{
    using namespace sandbox::tls;
    using namespace std::chrono_literals;
    const std::span words(arguments, static_cast<std::size_t>(count));
    if (words.size() != 2) {
        std::cerr << "usage: zorvane-make-cert DIR" << std::endl;
        return 2;
    }
    try {
        const std::filesystem::path folder = words[1];
        std::filesystem::create_directories(folder);
        const auto now = Clock::now();
        const std::vector<std::string> here{"localhost", "127.0.0.1", "::1"};
        const Identity authority = makeAuthority("Test Authority", now);
        const Identity stranger = makeAuthority("Unknown Authority", now);
        save(authority, folder, "ca");
        save(issue(authority, {here, now - 24h, now + 24h * 30}), folder, "good");
        save(issue(authority, {here, now - 24h * 30, now - 24h}), folder, "expired");
        save(issue(authority, {{"elsewhere.example"}, now - 24h, now + 24h * 30}), folder, "wrong-host");
        save(issue(stranger, {here, now - 24h, now + 24h * 30}), folder, "unknown");
        return 0;
    } catch (const std::exception &error) {
        std::cerr << "zorvane-make-cert: " << error.what() << std::endl;
        return 2;
    }
}
