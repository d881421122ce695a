#include "platform/registry.h"

#include "platform/system_info_keys.h"

#include <QFile>
#include <QStandardPaths>

namespace cirrava {

std::unique_ptr<Registry> system_registry() {
    auto registry = std::make_unique<DataRegistry>();
    for (const char* program : {"hardinfo2", "hardinfo", "kinfocenter", "mate-system-monitor",
                                "gnome-system-monitor", "xfce4-taskmanager"}) {
        const QString path = QStandardPaths::findExecutable(program);
        if (path.isEmpty())
            continue;
        registry->add(system_info_program.key, system_info_program.value,
                      {string_value, QFile::encodeName(path).toStdString() + '\0'});
        break;
    }
    return registry;
}

} // namespace cirrava
