#pragma once

#include <stdexcept>
#include <string>
#include <utility>

namespace quillbrand {

/// What ends a command: overflow, division by zero, a file that cannot be read, a refusal.
/// Its text is shown to the user as it stands; programming errors are assertions instead.
class Fault : public std::runtime_error {
  public:
    explicit Fault(const std::string& text) : std::runtime_error(text) {}

    /// `title` is the title of the message box; without one the front shows the command's name.
    Fault(const std::string& text, std::string title)
        : std::runtime_error(text), title_(std::move(title)) {}

    const std::string& Title() const { return title_; }

  private:
    std::string title_;
};

}  // namespace quillbrand
