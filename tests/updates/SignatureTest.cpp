#include "updater/core/Signature.h"

#include <gtest/gtest.h>

// Whose signature counts.

namespace {

QByteArray raw(const QByteArray &base64)
{
    return QByteArray::fromBase64(base64);
}

/// A known key pair, message and signature, made by other hands (test 2 of RFC 8032).
const QByteArray knownSeed = QByteArray::fromHex("4ccd089b28ff96da9db6c346ec114e0f5b8a319f35aba624da8cf6ed4fb8a6fb");
const QByteArray knownPublicKey =
    QByteArray::fromHex("3d4017c3e843895a92b70aa74d1b7ebc9c982ccf2ec4968cc0cd55f12af4660c");
const QByteArray knownMessage = QByteArray::fromHex("72");
const QByteArray knownSignature =
    QByteArray::fromHex("92a009a9f0d4cab8720e820b5f642540a2b27b5416503f8fb3762223ebdb69da"
                        "085ac1e43e15996e458f3613d0f11d8c387b2eaeb4302aeeb00d291612bb0c00");

} // namespace

TEST(Signature, isTheOneThatOthersMakeAndVerify)
{
    const SigningKey key = SigningKey::ofSeed(knownSeed.toBase64() + '\n');
    EXPECT_EQ(raw(key.publicKey()), knownPublicKey);
    EXPECT_EQ(key.signatureOf(knownMessage), knownSignature);
    EXPECT_TRUE(isSignedBy(knownPublicKey, knownMessage, knownSignature));
}

TEST(Signature, countsForTheExactBytesAlone)
{
    const SigningKey key = SigningKey::generated();
    const QByteArray bytes = "an archive";
    const QByteArray signature = key.signatureOf(bytes);
    const QByteArray publicKey = raw(key.publicKey());
    EXPECT_TRUE(isSignedBy(publicKey, bytes, signature));
    EXPECT_FALSE(isSignedBy(publicKey, bytes + '\0', signature));
    EXPECT_FALSE(isSignedBy(publicKey, bytes.chopped(1), signature));
    EXPECT_FALSE(isSignedBy(publicKey, {}, signature));
    for (qsizetype i = 0; i < signature.size(); ++i) {
        QByteArray damaged = signature;
        damaged[i] = char(damaged[i] ^ 1);
        EXPECT_FALSE(isSignedBy(publicKey, bytes, damaged)) << i;
    }
}

TEST(Signature, ofAnotherKeyDoesNotCount)
{
    const QByteArray bytes = "an archive";
    EXPECT_FALSE(
        isSignedBy(raw(SigningKey::generated().publicKey()), bytes, SigningKey::generated().signatureOf(bytes)));
}

TEST(Signature, isNoneWithAKeyOrASignatureOfAnotherSize)
{
    EXPECT_FALSE(isSignedBy({}, knownMessage, knownSignature));
    EXPECT_FALSE(isSignedBy(knownPublicKey.chopped(1), knownMessage, knownSignature));
    EXPECT_FALSE(isSignedBy(knownPublicKey, knownMessage, {}));
    EXPECT_FALSE(isSignedBy(knownPublicKey, knownMessage, knownSignature + '\0'));
}

TEST(Signature, isNoneForAKeyThatAnybodyCouldSignFor)
{
    // The neutral element, with which a signature of zeros would verify for any message.
    const QByteArray neutral = QByteArray(1, '\1') + QByteArray(31, '\0');
    EXPECT_FALSE(isSignedBy(neutral, knownMessage, neutral + QByteArray(32, '\0')));
    EXPECT_FALSE(isSignedBy(QByteArray(32, '\0'), knownMessage, QByteArray(64, '\0')));
}

TEST(Signature, keysAndSignaturesAreBase64OfOneForm)
{
    const QByteArray text = knownSignature.toBase64();
    EXPECT_EQ(bytesOfBase64(text, signatureSize), knownSignature);
    EXPECT_TRUE(bytesOfBase64(text + '\n', signatureSize).isEmpty());
    EXPECT_TRUE(bytesOfBase64(' ' + text, signatureSize).isEmpty());
    EXPECT_TRUE(bytesOfBase64(text.chopped(2), signatureSize).isEmpty());
    EXPECT_TRUE(bytesOfBase64(text, publicKeySize).isEmpty());
    EXPECT_TRUE(bytesOfBase64({}, signatureSize).isEmpty());
    EXPECT_FALSE(SigningKey::ofSeed("no key"));
    EXPECT_FALSE(SigningKey::ofSeed({}));
}

TEST(Signature, aNewKeyComesBackFromItsSeed)
{
    const SigningKey key = SigningKey::generated();
    ASSERT_TRUE(bool(key));
    EXPECT_NE(key.seed(), SigningKey::generated().seed());
    EXPECT_EQ(SigningKey::ofSeed(key.seed()).publicKey(), key.publicKey());
}
