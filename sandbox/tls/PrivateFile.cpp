#include "tls/PrivateFile.h"

#include <cerrno>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <system_error>
#include <unistd.h>

namespace sandbox::tls {
namespace {

[[noreturn]] void fail(const std::filesystem::path &file)
{
    throw std::system_error(errno, std::generic_category(), file.string());
}

bool writeAll(int descriptor, std::string_view text)
{
    while (!text.empty()) {
        const ssize_t written = ::write(descriptor, text.data(), text.size());
        if (written < 0 && errno != EINTR)
            return false;
        if (written > 0)
            text.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
}

} // namespace

void writeWhole(const std::filesystem::path &file, const std::string &text, Readers readers)
{
    const std::string draft = file.string() + ".new";
    const mode_t mode = readers == Readers::Owner ? 0600 : 0644;
    const int descriptor = ::open(draft.c_str(), O_WRONLY | O_CREAT | O_TRUNC | O_CLOEXEC | O_NOFOLLOW, mode);
    if (descriptor < 0)
        fail(file);
    const bool written =
        ::fchmod(descriptor, mode) == 0 && writeAll(descriptor, text) && ::fsync(descriptor) == 0;
    const int error = errno;
    ::close(descriptor);
    if (!written || ::rename(draft.c_str(), file.c_str()) != 0) {
        if (!written)
            errno = error;
        fail(file);
    }
}

} // namespace sandbox::tls
