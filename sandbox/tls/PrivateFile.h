#pragma once

#include <filesystem>
#include <string>

namespace sandbox::tls {

enum class Readers { Owner, Everyone };

/// Replaces the file in one step, so that a reader sees the old or the new text and nothing between. Owner:
/// mode 0600, else 0644. Throws std::system_error when the folder cannot be written.
void writeWhole(const std::filesystem::path &file, const std::string &text, Readers readers);

} // namespace sandbox::tls
