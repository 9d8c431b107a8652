#include "shell/vbConfig.h"

#include "base/IniFile.h"
#include "base/Text.h"

namespace quillbrand::vbConfig {

std::string ReadIni(const Settings& settings, const std::string& section, const std::string& key) {
    return IniFile::Read(settings.IniPath).Get(section, key);
}

std::string WriteIni(const Settings& settings, const std::string& section, const std::string& key,
                     const std::string& value) {
    IniFile file = IniFile::Read(settings.IniPath);
    file.Set(section, key, value);
    file.Write(settings.IniPath);
    return TrimIni(value);
}

}  // namespace quillbrand::vbConfig
