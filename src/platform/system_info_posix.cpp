#include "platform/system_info.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace cirrava {

// Takes the first of the desktops' programs that is on the search path.
std::filesystem::path find_system_info_program() {
    for (const QString& name :
         QStringList{"hardinfo2", "hardinfo", "kinfocenter", "mate-system-monitor",
                     "gnome-system-monitor", "xfce4-taskmanager"})
        if (const QString path = QStandardPaths::findExecutable(name); !path.isEmpty())
            return QFileInfo(path).filesystemFilePath();
    return {};
}

} // namespace cirrava
