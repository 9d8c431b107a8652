#pragma once

#include <QDir>
#include <string>

namespace quillbrand {

/// Writes the file whole or not at all. Throws std::runtime_error with the reason.
void WriteFile(const QDir& folder, const std::string& name, const std::string& content);

}  // namespace quillbrand
