#pragma once

#include <cstddef>
#include <filesystem>
#include <span>
#include <string>
#include <vector>

namespace quillbrand {

using Bytes = std::vector<std::byte>;

/// The first `most` bytes of a regular file, or all of it when it is shorter.
/// Throws Fault with the path and the reason.
Bytes ReadFile(const std::filesystem::path& path, std::size_t most);

/// Makes `content` the content of the file, whole or not at all: it goes to a temporary file in the
/// same folder, is flushed to disk and renamed. A link is followed, the permissions of an old file
/// stay. Throws Fault with the path and the reason; the old file is then untouched.
void ReplaceFile(const std::filesystem::path& path, std::span<const std::byte> content);

/// The same, but where the old file is longer than `content` its surplus bytes stay at the end.
void OverwriteFile(const std::filesystem::path& path, Bytes content);

/// `name` below `folder`, with "\" taken as a separator. Where no file of that spelling exists but
/// one whose name differs only in case does, that one is returned.
std::filesystem::path FindInFolder(const std::filesystem::path& folder, const std::string& name);

/// The file that a path means, through links, whether or not it exists yet.
std::filesystem::path FollowLinks(std::filesystem::path path);

/// Text as bytes, to be written.
std::span<const std::byte> AsBytes(const std::string& text);

}  // namespace quillbrand
