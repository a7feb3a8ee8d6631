#include "tests/core/Certificates.h"

#include <QByteArray>
#include <memory>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509v3.h>

namespace {

template <auto release> struct Release {
    template <typename T> void operator()(T *object) const { release(object); }
};
using Key = std::unique_ptr<EVP_PKEY, Release<EVP_PKEY_free>>;
using Certificate = std::unique_ptr<X509, Release<X509_free>>;
using Memory = std::unique_ptr<BIO, Release<BIO_free_all>>;

QByteArray pem(const std::function<void(BIO *)> &write)
{
    const Memory memory(BIO_new(BIO_s_mem()));
    write(memory.get());
    char *data = nullptr;
    const long size = BIO_get_mem_data(memory.get(), &data);
    return {data, size};
}

Memory reader(const QByteArray &bytes)
{
    return Memory(BIO_new_mem_buf(bytes.constData(), static_cast<int>(bytes.size())));
}

void addExtension(X509 *certificate, X509 *issuer, int kind, const QByteArray &value)
{
    X509V3_CTX context;
    X509V3_set_ctx_nodb(&context);
    X509V3_set_ctx(&context, issuer, certificate, nullptr, nullptr, 0);
    X509_EXTENSION *extension = X509V3_EXT_conf_nid(nullptr, &context, kind, value.constData());
    X509_add_ext(certificate, extension, -1);
    X509_EXTENSION_free(extension);
}

Identity make(const QByteArray &name, const Identity *authority, const QByteArray &subject, Validity validity)
{
    const Key key(EVP_EC_gen("P-256"));
    const Certificate certificate(X509_new());
    X509_set_version(certificate.get(), 2);
    uint64_t serial = 0;
    RAND_bytes(reinterpret_cast<unsigned char *>(&serial), sizeof serial);
    ASN1_INTEGER_set_uint64(X509_get_serialNumber(certificate.get()), serial >> 1);
    X509_gmtime_adj(X509_getm_notBefore(certificate.get()), validity.from);
    X509_gmtime_adj(X509_getm_notAfter(certificate.get()), validity.until);
    X509_set_pubkey(certificate.get(), key.get());
    X509_NAME_add_entry_by_txt(X509_get_subject_name(certificate.get()), "CN", MBSTRING_UTF8,
                               reinterpret_cast<const unsigned char *>(name.constData()), -1, -1, 0);

    Certificate issuer;
    Key issuerKey;
    if (authority) {
        issuer.reset(
            PEM_read_bio_X509(reader(authority->certificate.toPem()).get(), nullptr, nullptr, nullptr));
        issuerKey.reset(
            PEM_read_bio_PrivateKey(reader(authority->key.toPem()).get(), nullptr, nullptr, nullptr));
        addExtension(certificate.get(), issuer.get(), NID_subject_alt_name, subject);
    } else {
        addExtension(certificate.get(), certificate.get(), NID_basic_constraints, "critical,CA:TRUE");
        addExtension(certificate.get(), certificate.get(), NID_key_usage, "critical,keyCertSign,cRLSign");
    }
    X509_set_issuer_name(certificate.get(), X509_get_subject_name(issuer ? issuer.get() : certificate.get()));
    X509_sign(certificate.get(), issuerKey ? issuerKey.get() : key.get(), EVP_sha256());

    const QByteArray keyPem = pem([&key](BIO *out) {
        PEM_write_bio_PrivateKey_traditional(out, key.get(), nullptr, nullptr, 0, nullptr, nullptr);
    });
    return {QSslCertificate(pem([&](BIO *out) { PEM_write_bio_X509(out, certificate.get()); })),
            QSslKey(keyPem, QSsl::Ec)};
}

} // namespace

Identity makeAuthority(const QByteArray &name)
{
    return make(name, nullptr, {}, {});
}

Identity makeServer(const Identity &authority, const QByteArray &subject, Validity validity)
{
    return make("server", &authority, subject, validity);
}
