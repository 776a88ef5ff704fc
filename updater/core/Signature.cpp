#include "updater/core/Signature.h"

#include <sodium.h>
#include <utility>

static_assert(publicKeySize == crypto_sign_PUBLICKEYBYTES);
static_assert(signatureSize == crypto_sign_BYTES);
static_assert(seedSize == crypto_sign_SEEDBYTES);

namespace {

bool isLibraryReady()
{
    static const bool ready = sodium_init() >= 0;
    return ready;
}

const unsigned char *unsignedBytes(const QByteArray &bytes)
{
    return reinterpret_cast<const unsigned char *>(bytes.constData());
}

unsigned char *unsignedBytes(QByteArray &bytes)
{
    return reinterpret_cast<unsigned char *>(bytes.data());
}

void wipe(QByteArray &bytes)
{
    if (!bytes.isEmpty())
        sodium_memzero(bytes.data(), size_t(bytes.size()));
}

} // namespace

QByteArray bytesOfBase64(const QByteArray &text, qsizetype size)
{
    const auto decoding = QByteArray::fromBase64Encoding(text, QByteArray::AbortOnBase64DecodingErrors);
    // Written again it is the same text: no blank, nothing after the padding, one way to write it.
    return decoding && decoding.decoded.size() == size && decoding.decoded.toBase64() == text ? decoding.decoded
                                                                                              : QByteArray();
}

bool isSignedBy(const QByteArray &publicKey, const QByteArray &bytes, const QByteArray &signature)
{
    return publicKey.size() == publicKeySize && signature.size() == signatureSize && isLibraryReady()
        && crypto_sign_verify_detached(unsignedBytes(signature), unsignedBytes(bytes),
               static_cast<unsigned long long>(bytes.size()), unsignedBytes(publicKey))
        == 0;
}

SigningKey SigningKey::generated()
{
    if (!isLibraryReady())
        return {};
    QByteArray seed(seedSize, '\0');
    randombytes_buf(seed.data(), size_t(seed.size()));
    SigningKey key = ofRawSeed(seed);
    wipe(seed);
    return key;
}

SigningKey SigningKey::ofSeed(const QByteArray &base64)
{
    QByteArray seed = bytesOfBase64(base64.endsWith('\n') ? base64.chopped(1) : base64, seedSize);
    if (seed.isEmpty() || !isLibraryReady())
        return {};
    SigningKey key = ofRawSeed(seed);
    wipe(seed);
    return key;
}

SigningKey SigningKey::ofRawSeed(const QByteArray &seed)
{
    SigningKey key;
    key.public_.resize(publicKeySize);
    key.secret_.resize(crypto_sign_SECRETKEYBYTES);
    crypto_sign_seed_keypair(unsignedBytes(key.public_), unsignedBytes(key.secret_), unsignedBytes(seed));
    return key;
}

SigningKey::SigningKey(SigningKey &&other) noexcept
    : public_(std::exchange(other.public_, {})), secret_(std::exchange(other.secret_, {}))
{
}

SigningKey::~SigningKey()
{
    wipe(secret_);
}

QByteArray SigningKey::seed() const
{
    return secret_.left(seedSize).toBase64();
}

QByteArray SigningKey::publicKey() const
{
    return public_.toBase64();
}

QByteArray SigningKey::signatureOf(const QByteArray &bytes) const
{
    QByteArray signature(signatureSize, '\0');
    crypto_sign_detached(unsignedBytes(signature), nullptr, unsignedBytes(bytes),
        static_cast<unsigned long long>(bytes.size()), unsignedBytes(secret_));
    return signature;
}
