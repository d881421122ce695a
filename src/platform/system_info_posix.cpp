#include "platform/system_info.h"

#include <QFileInfo>
#include <QStandardPaths>

namespace cirrava {

// The first of the desktops' programs that is on the search path.
FoundProgram find_system_info_program() {
    for (const char* const name : {"hardinfo2", "hardinfo", "kinfocenter", "mate-system-monitor",
                                   "gnome-system-monitor", "xfce4-taskmanager"}) {
        const QString path = QStandardPaths::findExecutable(QString::fromLatin1(name));
        if (!path.isEmpty())
            return QFileInfo(path).filesystemFilePath();
    }
    return std::nullopt;
}

} // namespace cirrava
