#pragma once

#include <QColor>
#include <QLatin1StringView>
#include <QString>
#include <functional>
#include <optional>

class QWidget;

namespace cirrava {

struct FileQuestion {
    QString title;
    QString filter; // a pattern such as "*.bmp"
    QString folder; // in which the dialog opens
    QString name;   // proposed, may be empty
};

// Everything that is asked of the user or told in a window of its own. Each call waits for the
// answer; no answer means that the user cancelled. All texts are shown as plain text.
struct Dialogs {
    // The full path chosen.
    std::function<std::optional<QString>(const FileQuestion&)> open = {};
    std::function<std::optional<QString>(const FileQuestion&)> save = {};

    std::function<std::optional<QColor>(const QColor& initial)> colour = {};

    // Yes (the default) or No.
    std::function<bool(const QString& text, const QString& title)> ask = {};

    // With an OK button only.
    std::function<void(const QString& text)> tell = {};
};

// Qt's own dialogs, in front of `parent`, which must outlive them. The file dialogs accept a name
// whether or not such a file exists, and add no suffix. That for opening offers `examples`, a
// folder, in its side bar; none where it is empty.
Dialogs qt_dialogs(QWidget& parent, const QString& examples = {});

// The program's name as its messages have it, which give no title of their own, and About.
inline constexpr QLatin1StringView program_title("CirravaPal");

} // namespace cirrava
