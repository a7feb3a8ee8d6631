#pragma once

#include <chrono>
#include <filesystem>
#include <memory>
#include <openssl/evp.h>
#include <openssl/x509.h>
#include <string>
#include <vector>

namespace sandbox::tls {

struct Free {
    void operator()(EVP_PKEY *key) const { EVP_PKEY_free(key); }
    void operator()(X509 *certificate) const { X509_free(certificate); }
};
using Key = std::unique_ptr<EVP_PKEY, Free>;
using Certificate = std::unique_ptr<X509, Free>;

/// A certificate with the key that proves it.
struct Identity {
    Key key;
    Certificate certificate;
};

using Clock = std::chrono::system_clock;

/// What a server certificate is to say. Names are host names or addresses ("127.0.0.1", "::1", "localhost").
struct Request {
    std::vector<std::string> names;
    Clock::time_point notBefore;
    Clock::time_point notAfter;
};

/// A self-signed authority (ECDSA P-256, ten years). Throws std::runtime_error when OpenSSL refuses.
[[nodiscard]] Identity makeAuthority(const std::string &commonName, Clock::time_point now);

/// A server certificate signed by the authority.
[[nodiscard]] Identity issue(const Identity &authority, const Request &request);

/// Whether the certificate is signed by the authority, carries every name and stays valid until `moment`.
[[nodiscard]] bool serves(const Identity &server, const Identity &authority,
                          const std::vector<std::string> &names, Clock::time_point moment);

/// Writes NAME.pem and NAME.key into the folder, each whole or not at all; the key file has mode 0600.
void save(const Identity &identity, const std::filesystem::path &folder, const std::string &name);

/// Reads what `save` wrote; both members are empty when a file is missing or damaged.
[[nodiscard]] Identity load(const std::filesystem::path &folder, const std::string &name);

/// The server's own identity in a data directory: the authority "ca" made at the first start, and a "server"
/// certificate for 127.0.0.1, ::1 and localhost, renewed thirty days before its end.
[[nodiscard]] Identity serverIdentity(const std::filesystem::path &folder, Clock::time_point now);

} // namespace sandbox::tls
