#pragma once

#include <string>
#include <string_view>

namespace sandbox::identity {

/// Random bytes of the secure source as lower-case hexadecimal digits, two a byte.
[[nodiscard]] std::string randomHex(std::size_t bytes);

/// Six random digits, every one of the million equally likely.
[[nodiscard]] std::string randomDigits();

/// SHA-256 as 64 lower-case hexadecimal digits.
[[nodiscard]] std::string digest(std::string_view text);

/// A salted hash of a password or an identity number: "salt$hash", PBKDF2 with SHA-256.
[[nodiscard]] std::string hashSecret(std::string_view secret);

/// Whether the secret made this hash; compared in constant time. Never true for an empty hash.
[[nodiscard]] bool matchesSecret(std::string_view secret, std::string_view hash);

} // namespace sandbox::identity
