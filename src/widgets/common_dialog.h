#pragma once

#include "widgets/dialogs.h"

namespace cirrava {

// The one dialog component that all file and colour dialogs of a window go through. Its members are
// set before a call and keep their values from one call to the next.
class CommonDialog {
public:
    explicit CommonDialog(const Dialogs& dialogs) : dialogs_(dialogs) {}
    Q_DISABLE_COPY_MOVE(CommonDialog)

    // Before a file dialog: the name to propose, with or without a folder; a pattern such as
    // "*.bmp" proposes none. After it: the full path chosen.
    QString FileName;
    QString DialogTitle;
    QString Filter;
    // Where a dialog opens when FileName has no folder; where the user may not write there, it
    // opens in the user's documents folder or home instead.
    QString InitDir;
    bool CancelError = false; // true at each call: a cancel throws Failure{cancelled}
    QColor Color;             // after ShowColor: the colour chosen

    void ShowOpen();
    void ShowSave();
    void ShowColor(const QColor& shown_first);

private:
    FileQuestion file_question() const;
    template <class Answer> Answer given(const std::optional<Answer>& answer) const;

    const Dialogs& dialogs_;
};

} // namespace cirrava
