#pragma once

#include <cstddef>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <string_view>

namespace quillbrand {

/// What a file is, as far as its content tells plainly.
enum class FileKind { Terrain, Backup, Picture, ElevatorSets, Settings, PerlinSet, Page };

/// The kind that the bytes of a file tell; nothing where they could be anything.
std::optional<FileKind> KindOf(std::span<const std::byte> bytes);

/// "a terrain" and so on.
std::string_view NameOf(FileKind kind);

/// Throws Fault when the file is there and plainly of another kind than `wanted`, or cannot be
/// read; the fault names the key that gave the file.
void RequireKind(const std::string& key, const std::filesystem::path& path, FileKind wanted);

}  // namespace quillbrand
