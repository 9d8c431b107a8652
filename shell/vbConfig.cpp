#include "shell/vbConfig.h"

#include "base/IniFile.h"
#include "base/Text.h"

namespace quillbrand::vbConfig {

std::string ReadIni(const Session& session, const std::string& section, const std::string& key) {
    return IniFile::Read(session.settings.IniPath).Get(section, key);
}

std::string WriteIni(const Session& session, const std::string& section, const std::string& key,
                     const std::string& value) {
    IniFile file = IniFile::Read(session.settings.IniPath);
    file.Set(section, key, value);
    file.Write(session.settings.IniPath);
    return TrimIni(value);
}

}  // namespace quillbrand::vbConfig
