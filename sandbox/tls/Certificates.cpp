#include "tls/Certificates.h"

#include "tls/PrivateFile.h"

#include <algorithm>
#include <arpa/inet.h>
#include <array>
#include <openssl/bio.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509v3.h>
#include <stdexcept>

namespace sandbox::tls {
namespace {

using namespace std::chrono_literals;

struct FreeParts {
    void operator()(BIO *bio) const { BIO_free(bio); }
    void operator()(X509_EXTENSION *extension) const { X509_EXTENSION_free(extension); }
};
using Memory = std::unique_ptr<BIO, FreeParts>;
using Extension = std::unique_ptr<X509_EXTENSION, FreeParts>;

void require(bool done, const char *step)
{
    if (!done)
        throw std::runtime_error(std::string("certificate: cannot ") + step);
}

bool isAddress(const std::string &name)
{
    std::array<unsigned char, sizeof(in6_addr)> bytes{};
    return inet_pton(AF_INET, name.c_str(), bytes.data()) == 1 ||
           inet_pton(AF_INET6, name.c_str(), bytes.data()) == 1;
}

std::string alternativeNames(const std::vector<std::string> &names)
{
    std::string text;
    for (const auto &name : names)
        text += (text.empty() ? "" : ",") + std::string(isAddress(name) ? "IP:" : "DNS:") + name;
    return text;
}

void addExtension(X509 *certificate, X509 *issuer, int kind, const std::string &value)
{
    X509V3_CTX context;
    X509V3_set_ctx_nodb(&context);
    X509V3_set_ctx(&context, issuer, certificate, nullptr, nullptr, 0);
    const Extension extension(X509V3_EXT_conf_nid(nullptr, &context, kind, value.c_str()));
    require(extension && X509_add_ext(certificate, extension.get(), -1) == 1, "add an extension");
}

Certificate blank(EVP_PKEY *key, const std::string &commonName, Clock::time_point from, Clock::time_point to)
{
    Certificate certificate(X509_new());
    require(certificate != nullptr && X509_set_version(certificate.get(), X509_VERSION_3) == 1, "begin");
    std::array<unsigned char, 16> serial{};
    require(RAND_bytes(serial.data(), serial.size()) == 1, "draw a serial number");
    serial[0] = static_cast<unsigned char>((serial[0] & 0x3f) | 0x40);
    BIGNUM *number = BN_bin2bn(serial.data(), serial.size(), nullptr);
    const bool numbered = number && BN_to_ASN1_INTEGER(number, X509_get_serialNumber(certificate.get()));
    BN_free(number);
    require(numbered, "set the serial number");
    require(ASN1_TIME_set(X509_getm_notBefore(certificate.get()), Clock::to_time_t(from)) &&
                ASN1_TIME_set(X509_getm_notAfter(certificate.get()), Clock::to_time_t(to)),
            "set the dates");
    X509_NAME *name = X509_get_subject_name(certificate.get());
    require(X509_NAME_add_entry_by_txt(name, "CN", MBSTRING_UTF8,
                                       reinterpret_cast<const unsigned char *>(commonName.c_str()), -1, -1,
                                       0) == 1,
            "set the name");
    require(X509_set_pubkey(certificate.get(), key) == 1, "set the key");
    return certificate;
}

Key newKey()
{
    Key key(EVP_EC_gen("P-256"));
    require(key != nullptr, "make a key");
    return key;
}

std::string text(BIO *bio)
{
    char *bytes = nullptr;
    const long size = BIO_get_mem_data(bio, &bytes);
    return {bytes, static_cast<std::size_t>(size)};
}

} // namespace

Identity makeAuthority(const std::string &commonName, Clock::time_point now)
{
    Key key = newKey();
    Certificate certificate = blank(key.get(), commonName, now - 24h, now + 24h * 3650);
    X509 *self = certificate.get();
    require(X509_set_issuer_name(self, X509_get_subject_name(self)) == 1, "set the issuer");
    addExtension(self, self, NID_basic_constraints, "critical,CA:TRUE,pathlen:0");
    addExtension(self, self, NID_key_usage, "critical,keyCertSign,cRLSign");
    addExtension(self, self, NID_subject_key_identifier, "hash");
    require(X509_sign(self, key.get(), EVP_sha256()) > 0, "sign");
    return {std::move(key), std::move(certificate)};
}

Identity issue(const Identity &authority, const Request &request)
{
    Key key = newKey();
    Certificate certificate = blank(key.get(), request.names.at(0), request.notBefore, request.notAfter);
    X509 *issuer = authority.certificate.get();
    require(X509_set_issuer_name(certificate.get(), X509_get_subject_name(issuer)) == 1, "set the issuer");
    addExtension(certificate.get(), issuer, NID_basic_constraints, "critical,CA:FALSE");
    addExtension(certificate.get(), issuer, NID_key_usage, "critical,digitalSignature");
    addExtension(certificate.get(), issuer, NID_ext_key_usage, "serverAuth");
    addExtension(certificate.get(), issuer, NID_subject_alt_name, alternativeNames(request.names));
    addExtension(certificate.get(), issuer, NID_subject_key_identifier, "hash");
    addExtension(certificate.get(), issuer, NID_authority_key_identifier, "keyid:always");
    require(X509_sign(certificate.get(), authority.key.get(), EVP_sha256()) > 0, "sign");
    return {std::move(key), std::move(certificate)};
}

bool serves(const Identity &server, const Identity &authority, const std::vector<std::string> &names,
            Clock::time_point moment)
{
    X509 *certificate = server.certificate.get();
    if (!certificate || !server.key || X509_check_private_key(certificate, server.key.get()) != 1 ||
        X509_verify(certificate, X509_get0_pubkey(authority.certificate.get())) != 1)
        return false;
    time_t until = Clock::to_time_t(moment);
    if (X509_cmp_time(X509_get0_notAfter(certificate), &until) <= 0)
        return false;
    return std::all_of(names.begin(), names.end(), [certificate](const std::string &name) {
        return isAddress(name) ? X509_check_ip_asc(certificate, name.c_str(), 0) == 1
                               : X509_check_host(certificate, name.data(), name.size(), 0, nullptr) == 1;
    });
}

void save(const Identity &identity, const std::filesystem::path &folder, const std::string &name)
{
    const Memory key(BIO_new(BIO_s_mem()));
    const Memory certificate(BIO_new(BIO_s_mem()));
    require(PEM_write_bio_PrivateKey(key.get(), identity.key.get(), nullptr, nullptr, 0, nullptr, nullptr) ==
                    1 &&
                PEM_write_bio_X509(certificate.get(), identity.certificate.get()) == 1,
            "write PEM");
    writeWhole(folder / (name + ".key"), text(key.get()), Readers::Owner);
    writeWhole(folder / (name + ".pem"), text(certificate.get()), Readers::Everyone);
}

Identity load(const std::filesystem::path &folder, const std::string &name)
{
    const Memory key(BIO_new_file((folder / (name + ".key")).c_str(), "r"));
    const Memory certificate(BIO_new_file((folder / (name + ".pem")).c_str(), "r"));
    if (!key || !certificate)
        return {};
    Identity identity{Key(PEM_read_bio_PrivateKey(key.get(), nullptr, nullptr, nullptr)),
                      Certificate(PEM_read_bio_X509(certificate.get(), nullptr, nullptr, nullptr))};
    return identity.key && identity.certificate ? std::move(identity) : Identity{};
}

Identity serverIdentity(const std::filesystem::path &folder, Clock::time_point now)
{
    const std::vector<std::string> names{"localhost", "127.0.0.1", "::1"};
    Identity authority = load(folder, "ca");
    if (!authority.key || !serves(authority, authority, {}, now + 24h * 400)) {
        authority = makeAuthority("Zorvane Sandbox Authority", now);
        save(authority, folder, "ca");
    }
    Identity server = load(folder, "server");
    if (!serves(server, authority, names, now + 24h * 30)) {
        server = issue(authority, {names, now - 24h, now + 24h * 365});
        save(server, folder, "server");
    }
    return server;
}

} // namespace sandbox::tls
