#pragma once

#include <filesystem>
#include <string>

namespace quillbrand {

/// The value of an environment variable, "" when it is not set.
std::string Environment(const char* name);

/// The user's folders by the XDG base directory rules: what the variable names, else the usual
/// place in the home folder. Only absolute paths count; empty where there is none.
std::filesystem::path XdgDataHome();
std::filesystem::path XdgConfigHome();

}  // namespace quillbrand
