#pragma once

#include <functional>
#include <string>

/// Which program the desktop opens terrain files with.
namespace quillbrand::RegExt {

/// The kind of file that terrains are to the desktop.
constexpr auto terrainType = "application/x-terragen-terrain";

/// Makes the program at the path `command` the one that files ending in `extension` (".ter") open
/// with, for the current user: `description` names their kind, `product` the program. Writes, below
/// XDG_DATA_HOME and XDG_CONFIG_HOME,
///
/// - `mime/packages/PRODUCT.xml`, the kind of file,
/// - `applications/PRODUCT.desktop`, the program,
/// - in `mimeapps.list` the one line of the default application,
///
/// with the product in lower case, and has the desktop's tools take them in where they exist.
/// True when all of it worked; otherwise every file is as it was and `reason`, where given, tells
/// the user why. The same call again changes nothing. The tools may take their time: `wait`, where
/// given, is called again and again meanwhile.
bool RegisterExtension(const std::string& extension, const std::string& description,
                       const std::string& product, const std::string& command,
                       std::string* reason = nullptr, const std::function<void()>& wait = {});

/// The value of "Exec" in a desktop entry that runs the program at `path` on one file. Throws Fault
/// for a path that the desktop cannot run.
std::string ExecOf(const std::string& path);

}  // namespace quillbrand::RegExt
