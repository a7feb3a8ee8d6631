#pragma once

#include <mutex>
#include <openssl/ssl.h>
#include <set>

namespace sandbox::http {

/// The TLS connections that are open, so that a stopping server can end the idle ones at once instead of
/// waiting for their keep-alive time. It learns of them from the TLS context and must outlive it. Safe from
/// any thread.
class Connections {
public:
    void watch(SSL_CTX *context);
    void endAll();

    /// Makes the connection of a call go away with a reset instead of an orderly end.
    static void reset(const SSL *connection);

private:
    static void opened(const SSL *connection, int where, int result);
    static void freed(void *parent, void *self, CRYPTO_EX_DATA *data, int index, long argument,
                      void *pointer);

    std::mutex m_mutex;
    std::set<const SSL *> m_open;
};

} // namespace sandbox::http
