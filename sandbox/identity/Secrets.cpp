#include "identity/Secrets.h"

#include <array>
#include <cstdint>
#include <openssl/crypto.h>
#include <openssl/evp.h>
#include <openssl/rand.h>
#include <openssl/sha.h>
#include <stdexcept>
#include <vector>

namespace sandbox::identity {
namespace {

constexpr int rounds = 20'000;

std::string hex(const unsigned char *bytes, std::size_t size)
{
    constexpr std::string_view digits = "0123456789abcdef";
    std::string text;
    text.reserve(size * 2);
    for (std::size_t i = 0; i < size; ++i) {
        text += digits[bytes[i] >> 4];
        text += digits[bytes[i] & 15];
    }
    return text;
}

std::string derive(std::string_view secret, std::string_view salt)
{
    std::array<unsigned char, 32> key{};
    if (PKCS5_PBKDF2_HMAC(secret.data(), static_cast<int>(secret.size()),
                          reinterpret_cast<const unsigned char *>(salt.data()), static_cast<int>(salt.size()),
                          rounds, EVP_sha256(), static_cast<int>(key.size()), key.data()) != 1)
        throw std::runtime_error("cannot hash a secret");
    return hex(key.data(), key.size());
}

} // namespace

std::string randomHex(std::size_t bytes)
{
    std::vector<unsigned char> buffer(bytes);
    if (RAND_bytes(buffer.data(), static_cast<int>(bytes)) != 1)
        throw std::runtime_error("no random numbers");
    return hex(buffer.data(), bytes);
}

std::string randomDigits()
{
    constexpr std::uint32_t fair = UINT32_MAX - UINT32_MAX % 1'000'000;
    std::uint32_t number = fair;
    while (number >= fair)
        if (RAND_bytes(reinterpret_cast<unsigned char *>(&number), sizeof number) != 1)
            throw std::runtime_error("no random numbers");
    const std::string digits = std::to_string(number % 1'000'000);
    return std::string(6 - digits.size(), '0') + digits;
}

std::string digest(std::string_view text)
{
    std::array<unsigned char, SHA256_DIGEST_LENGTH> bytes{};
    SHA256(reinterpret_cast<const unsigned char *>(text.data()), text.size(), bytes.data());
    return hex(bytes.data(), bytes.size());
}

std::string hashSecret(std::string_view secret)
{
    const std::string salt = randomHex(16);
    return salt + "$" + derive(secret, salt);
}

bool matchesSecret(std::string_view secret, std::string_view hash)
{
    const std::size_t border = hash.find('$');
    if (border == std::string_view::npos)
        return false;
    const std::string_view expected = hash.substr(border + 1);
    const std::string found = derive(secret, hash.substr(0, border));
    return found.size() == expected.size() && CRYPTO_memcmp(found.data(), expected.data(), found.size()) == 0;
}

} // namespace sandbox::identity
