#pragma once

#include "platform/failure.h"
#include "widgets/dialogs.h"

#include <QColor>
#include <QString>
#include <filesystem>
#include <utility>

namespace cirrava {

// The one dialog component of a window: all its dialogs and messages go through it. Its members are
// set before a dialog is shown and keep their values for the next one.
class CommonDialog {
public:
    explicit CommonDialog(Dialogs dialogs) : dialogs_(std::move(dialogs)) {}

    // Before a file dialog: the name to propose, with or without a folder. After it: the full path
    // chosen.
    QString FileName;
    QString DialogTitle;
    QString Filter; // a pattern such as "*.bmp"
    // The folder in which a dialog opens when FileName has none. Where the user may not write
    // there, it opens in the user's documents folder or home instead.
    QString InitDir;
    QColor Color; // after ShowColor: the colour chosen

    // These throw Failure{cancelled} when the user cancels.
    void ShowOpen();
    void ShowSave();
    void ShowColor(const QColor& shown_first);

    // FileName after a dialog, as files are opened by it. Throws Failure{bad_file_name} for a text
    // that no path can have.
    std::filesystem::path file_path() const;

    bool ask(const QString& question, const QString& title) {
        return dialogs_.ask(question, title);
    }
    void tell(const QString& message) { dialogs_.tell(message); }

    // Tells of a cancel as such, and of any other failure by its number between the two texts.
    void tell(const QString& before, const Failure& failure, const QString& after);

private:
    FileQuestion file_question() const;

    Dialogs dialogs_;
};

} // namespace cirrava
