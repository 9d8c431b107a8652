#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace quillbrand {

/// The command line or a script is wrong; nothing has run yet.
class UsageError : public std::runtime_error {
  public:
    /// `command` is the word of the command that is wrong, or empty; `place` says where in a script
    /// it stands, or nothing.
    explicit UsageError(const std::string& text, std::string command = {}, std::string place = {})
        : std::runtime_error(text), command_(std::move(command)), place_(std::move(place)) {}

    const std::string& Command() const { return command_; }
    const std::string& Place() const { return place_; }

  private:
    std::string command_;
    std::string place_;
};

}  // namespace quillbrand
