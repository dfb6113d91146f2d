#include "calls/exchange/ExchangeCertificates.h"

#include "calls/exchange/ExchangeFolder.h"

#include <QByteArray>

#include <openssl/bio.h>
#include <openssl/ec.h>
#include <openssl/evp.h>
#include <openssl/pem.h>
#include <openssl/rand.h>
#include <openssl/x509.h>
#include <openssl/x509v3.h>

#include <ctime>
#include <memory>

namespace {

constexpr long cDay = 86400;
constexpr long cDaysValid = 800;
constexpr long cDaysLeft = 30;

template <auto Function>
struct Freed
{
    template <typename T>
    void operator()(T *pointer) const
    {
        Function(pointer);
    }
};
using Key = std::unique_ptr<EVP_PKEY, Freed<EVP_PKEY_free>>;
using Certificate = std::unique_ptr<X509, Freed<X509_free>>;
using Buffer = std::unique_ptr<BIO, Freed<BIO_free_all>>;
using Extension = std::unique_ptr<X509_EXTENSION, Freed<X509_EXTENSION_free>>;

QByteArray bytesOf(const Buffer &buffer)
{
    char *data = nullptr;
    const long size = BIO_get_mem_data(buffer.get(), &data);
    return {data, int(size)};
}

QByteArray pemOf(X509 *certificate)
{
    const Buffer buffer(BIO_new(BIO_s_mem()));
    return buffer && PEM_write_bio_X509(buffer.get(), certificate) == 1 ? bytesOf(buffer) : QByteArray();
}

QByteArray pemOf(EVP_PKEY *key)
{
    const Buffer buffer(BIO_new(BIO_s_mem()));
    return buffer && PEM_write_bio_PKCS8PrivateKey(buffer.get(), key, nullptr, nullptr, 0, nullptr, nullptr) == 1
               ? bytesOf(buffer)
               : QByteArray();
}

Buffer bufferOf(const QByteArray &pem)
{
    return Buffer(BIO_new_mem_buf(pem.constData(), pem.size()));
}

bool extend(X509 *certificate, X509 *issuer, int number, const char *value)
{
    X509V3_CTX context;
    X509V3_set_ctx(&context, issuer, certificate, nullptr, nullptr, 0);
    const Extension extension(X509V3_EXT_conf_nid(nullptr, &context, number, value));
    return extension && X509_add_ext(certificate, extension.get(), -1) == 1;
}

/// A certificate of this name for the key, not signed yet and with the issuer's name still missing.
Certificate draft(EVP_PKEY *key, const char *name)
{
    Certificate certificate(X509_new());
    unsigned char serial[8] = {};
    if (!certificate || RAND_bytes(serial, sizeof(serial)) != 1) {
        return nullptr;
    }
    std::uint64_t number = 0;
    for (const unsigned char byte : serial) {
        number = number << 8 | byte;
    }
    X509_NAME *subject = X509_get_subject_name(certificate.get());
    const bool made = X509_set_version(certificate.get(), X509_VERSION_3) == 1 &&
                      // A positive number that is not nothing.
                      ASN1_INTEGER_set_uint64(X509_get_serialNumber(certificate.get()), (number >> 1) | 1) == 1 &&
                      // A clock that was set back a little does not make it one of the future.
                      X509_gmtime_adj(X509_getm_notBefore(certificate.get()), -cDay) != nullptr &&
                      X509_gmtime_adj(X509_getm_notAfter(certificate.get()), cDay * cDaysValid) != nullptr &&
                      X509_set_pubkey(certificate.get(), key) == 1 &&
                      X509_NAME_add_entry_by_txt(subject, "CN", MBSTRING_UTF8,
                                                 reinterpret_cast<const unsigned char *>(name), -1, -1, 0) == 1;
    return made ? std::move(certificate) : nullptr;
}

bool sign(X509 *certificate, X509 *issuer, EVP_PKEY *issuersKey)
{
    return X509_set_issuer_name(certificate, X509_get_subject_name(issuer)) == 1 &&
           X509_sign(certificate, issuersKey, EVP_sha256()) > 0;
}

Certificate makeAuthority(EVP_PKEY *key)
{
    Certificate authority = draft(key, "KelvarIM exchange of this user");
    const bool made = authority &&
                      extend(authority.get(), authority.get(), NID_basic_constraints, "critical,CA:TRUE,pathlen:0") &&
                      extend(authority.get(), authority.get(), NID_key_usage, "critical,keyCertSign") &&
                      extend(authority.get(), authority.get(), NID_subject_key_identifier, "hash") &&
                      sign(authority.get(), authority.get(), key);
    return made ? std::move(authority) : nullptr;
}

Certificate makeOwn(EVP_PKEY *key, X509 *authority, EVP_PKEY *authoritysKey)
{
    Certificate own = draft(key, "localhost");
    const bool made = own && extend(own.get(), authority, NID_basic_constraints, "critical,CA:FALSE") &&
                      extend(own.get(), authority, NID_key_usage, "critical,digitalSignature") &&
                      extend(own.get(), authority, NID_ext_key_usage, "serverAuth") &&
                      extend(own.get(), authority, NID_subject_alt_name, "DNS:localhost,IP:127.0.0.1,IP:::1") &&
                      extend(own.get(), authority, NID_authority_key_identifier, "keyid") &&
                      sign(own.get(), authority, authoritysKey);
    return made ? std::move(own) : nullptr;
}

} // namespace

bool ExchangeCertificates::areGood(const QString &folder)
{
    const QByteArray authorityPem =
        ExchangeFolder::readPrivate(ExchangeFolder::path(folder, ExchangeFolder::cAuthority));
    const QByteArray ownPem = ExchangeFolder::readPrivate(ExchangeFolder::path(folder, ExchangeFolder::cCertificate));
    const QByteArray keyPem = ExchangeFolder::readPrivate(ExchangeFolder::path(folder, ExchangeFolder::cKey));
    const Certificate authority(PEM_read_bio_X509(bufferOf(authorityPem).get(), nullptr, nullptr, nullptr));
    const Certificate own(PEM_read_bio_X509(bufferOf(ownPem).get(), nullptr, nullptr, nullptr));
    const Key key(PEM_read_bio_PrivateKey(bufferOf(keyPem).get(), nullptr, nullptr, nullptr));
    if (!authority || !own || !key) {
        return false;
    }
    std::time_t then = std::time(nullptr) + cDay * cDaysLeft;
    return X509_check_private_key(own.get(), key.get()) == 1 &&
           X509_verify(own.get(), X509_get0_pubkey(authority.get())) == 1 &&
           X509_cmp_time(X509_get0_notAfter(own.get()), &then) > 0 &&
           X509_cmp_time(X509_get0_notAfter(authority.get()), &then) > 0 &&
           X509_cmp_current_time(X509_get0_notBefore(own.get())) < 0;
}

bool ExchangeCertificates::make(const QString &folder, QString *error)
{
    const Key authoritysKey(EVP_EC_gen("P-256"));
    const Key key(EVP_EC_gen("P-256"));
    const Certificate authority = authoritysKey ? makeAuthority(authoritysKey.get()) : nullptr;
    const Certificate own = authority && key ? makeOwn(key.get(), authority.get(), authoritysKey.get()) : nullptr;
    if (!own) {
        *error = QStringLiteral("the exchange's certificate cannot be made");
        return false;
    }
    const bool written =
        ExchangeFolder::writePrivate(ExchangeFolder::path(folder, ExchangeFolder::cKey), pemOf(key.get())) &&
        ExchangeFolder::writePrivate(ExchangeFolder::path(folder, ExchangeFolder::cCertificate), pemOf(own.get())) &&
        ExchangeFolder::writePrivate(ExchangeFolder::path(folder, ExchangeFolder::cAuthority), pemOf(authority.get()));
    if (!written) {
        *error = QStringLiteral("the exchange's certificate cannot be written to %1").arg(folder);
    }
    return written;
}
