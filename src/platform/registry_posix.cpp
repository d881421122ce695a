#include "platform/system_info.h"

#include <QFile>
#include <QStandardPaths>

namespace cirrava {

// There is no registry here. Its one value is the desktop's own program for system information.
std::optional<RegistryValue> read_registry(std::uint32_t, const std::string& key,
                                           const std::string&) {
    if (key != system_info_program.key)
        return std::nullopt;
    for (const char* program : {"hardinfo2", "hardinfo", "kinfocenter", "mate-system-monitor",
                                "gnome-system-monitor", "xfce4-taskmanager"}) {
        const QString path = QStandardPaths::findExecutable(program);
        if (!path.isEmpty())
            return RegistryValue{string_value, QFile::encodeName(path).toStdString()};
    }
    return std::nullopt;
}

} // namespace cirrava
