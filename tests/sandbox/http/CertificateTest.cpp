#include "TemporaryFolder.h"
#include "tls/Certificates.h"

#include <fstream>
#include <gtest/gtest.h>
#include <sys/stat.h>

namespace sandbox::tls {
namespace {

using namespace std::chrono_literals;
using test::TemporaryFolder;

const std::vector<std::string> here{"localhost", "127.0.0.1", "::1"};

std::string contents(const std::filesystem::path &file)
{
    std::ifstream stream(file);
    return {std::istreambuf_iterator<char>(stream), {}};
}

TEST(Certificates, AreMadeOnceKeptAndRenewedNearTheirEnd)
{
    const TemporaryFolder folder;
    const auto now = Clock::now();
    static_cast<void>(serverIdentity(folder.path(), now));
    const std::string authority = contents(folder.path() / "ca.pem");
    const std::string first = contents(folder.path() / "server.pem");
    struct stat key {};
    ASSERT_EQ(::stat((folder.path() / "ca.key").c_str(), &key), 0);
    EXPECT_EQ(key.st_mode & 0777, 0600u);

    static_cast<void>(serverIdentity(folder.path(), now + 24h * 300));
    EXPECT_EQ(contents(folder.path() / "server.pem"), first);
    static_cast<void>(serverIdentity(folder.path(), now + 24h * 340));
    EXPECT_NE(contents(folder.path() / "server.pem"), first);
    EXPECT_EQ(contents(folder.path() / "ca.pem"), authority);
}

TEST(Certificates, ADamagedFileIsReplaced)
{
    const TemporaryFolder folder;
    const auto now = Clock::now();
    static_cast<void>(serverIdentity(folder.path(), now));
    std::ofstream(folder.path() / "server.key") << "not a key";
    const Identity server = serverIdentity(folder.path(), now);
    EXPECT_TRUE(serves(server, load(folder.path(), "ca"), here, now + 24h));
}

TEST(Certificates, ServeOnlyTheirNamesTimeAndAuthority)
{
    const auto now = Clock::now();
    const Identity authority = makeAuthority("One", now);
    const Identity other = makeAuthority("Other", now);
    const Identity good = issue(authority, {here, now - 24h, now + 24h});
    const Identity elsewhere = issue(authority, {{"elsewhere.example"}, now - 24h, now + 24h});
    EXPECT_TRUE(serves(good, authority, here, now));
    EXPECT_FALSE(serves(good, authority, here, now + 25h));
    EXPECT_FALSE(serves(good, other, here, now));
    EXPECT_FALSE(serves(elsewhere, authority, here, now));
}

} // namespace
} // namespace sandbox::tls
