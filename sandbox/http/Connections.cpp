#include "http/Connections.h"

#include <array>
#include <sys/socket.h>
#include <unistd.h>

namespace sandbox::http {
namespace {

int contextSlot()
{
    static const int slot = SSL_CTX_get_ex_new_index(0, nullptr, nullptr, nullptr, nullptr);
    return slot;
}

} // namespace

void Connections::freed(void *parent, void *self, CRYPTO_EX_DATA *, int, long, void *)
{
    if (!self)
        return;
    auto *connections = static_cast<Connections *>(self);
    const std::scoped_lock lock(connections->m_mutex);
    connections->m_open.erase(static_cast<const SSL *>(parent));
}

void Connections::opened(const SSL *connection, int where, int)
{
    if ((where & SSL_CB_HANDSHAKE_START) == 0)
        return;
    static const int slot = SSL_get_ex_new_index(0, nullptr, nullptr, nullptr, &Connections::freed);
    auto *self = static_cast<Connections *>(SSL_CTX_get_ex_data(SSL_get_SSL_CTX(connection), contextSlot()));
    const std::scoped_lock lock(self->m_mutex);
    if (self->m_open.insert(connection).second)
        SSL_set_ex_data(const_cast<SSL *>(connection), slot, self);
}

void Connections::watch(SSL_CTX *context)
{
    SSL_CTX_set_ex_data(context, contextSlot(), this);
    SSL_CTX_set_info_callback(context, &Connections::opened);
}

void Connections::endAll()
{
    const std::scoped_lock lock(m_mutex);
    for (const SSL *connection : m_open)
        ::shutdown(SSL_get_fd(connection), SHUT_RDWR);
}

void Connections::reset(const SSL *connection)
{
    std::array<int, 2> pair{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, pair.data()) != 0)
        return;
    ::close(pair[1]);
    const linger atOnce{1, 0};
    const int socket = SSL_get_fd(connection);
    ::setsockopt(socket, SOL_SOCKET, SO_LINGER, &atOnce, sizeof atOnce);
    // The last descriptor of the connection becomes one that nobody reads, which sends the reset now;
    // whatever the server still writes goes nowhere, and the descriptor stays its own to close.
    ::dup2(pair[0], socket);
    ::close(pair[0]);
}

} // namespace sandbox::http
