#pragma once

#include <QByteArray>

// Ed25519 over the exact bytes of a file. Keys and signatures are raw bytes here and base 64 wherever people see them.

inline constexpr qsizetype publicKeySize = 32;
inline constexpr qsizetype signatureSize = 64;
inline constexpr qsizetype seedSize = 32;

/// The bytes that a text stands for, where it is base 64 of exactly this many, without anything else; empty otherwise.
QByteArray bytesOfBase64(const QByteArray &text, qsizetype size);

/// Whether the owner of a key has signed these bytes. False too for a key or a signature of another size, and for a key
/// that anybody could sign for.
bool isSignedBy(const QByteArray &publicKey, const QByteArray &bytes, const QByteArray &signature);

/// A maker's key: the seed is what is kept in secret. Its memory is wiped when it goes.
class SigningKey
{
public:
    /// A new one; empty where the system gives no random bytes.
    static SigningKey generated();
    /// Of a seed in base 64, as seed() gives it; a newline may follow. Empty where it is none.
    static SigningKey ofSeed(const QByteArray &base64);

    ~SigningKey();
    SigningKey(SigningKey &&other) noexcept;
    SigningKey(const SigningKey &) = delete;
    SigningKey &operator=(const SigningKey &) = delete;

    explicit operator bool() const { return !secret_.isEmpty(); }
    /// In base 64, both.
    QByteArray seed() const;
    QByteArray publicKey() const;
    /// 64 bytes.
    QByteArray signatureOf(const QByteArray &bytes) const;

private:
    SigningKey() = default;
    static SigningKey ofRawSeed(const QByteArray &seed);

    QByteArray public_;
    QByteArray secret_;
};
