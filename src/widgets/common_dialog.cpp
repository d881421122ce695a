#include "widgets/common_dialog.h"

#include "platform/file_system.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <system_error>

namespace cirrava {

namespace {

QString writable_folder(const QString& wanted) {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    for (const QString& folder : {wanted, documents})
        if (may_write_in(QFileInfo(folder).filesystemFilePath()))
            return folder;
    return QDir::homePath();
}

template <class Answer> Answer given(const std::optional<Answer>& answer) {
    if (!answer)
        throw Failure{FailureNumber::cancelled};
    return *answer;
}

} // namespace

void CommonDialog::ShowOpen() {
    FileName = given(dialogs_.open(file_question()));
}

void CommonDialog::ShowSave() {
    FileName = given(dialogs_.save(file_question()));
}

void CommonDialog::ShowColor(const QColor& shown_first) {
    Color = given(dialogs_.colour(shown_first));
}

std::filesystem::path CommonDialog::file_path() const {
    try {
        return QFileInfo(FileName).filesystemFilePath();
    } catch (const std::system_error&) { // no Unicode
        throw Failure{FailureNumber::bad_file_name};
    }
}

void CommonDialog::tell(const QString& before, const Failure& failure, const QString& after) {
    if (failure.number == FailureNumber::cancelled)
        return tell("Operation Cancelled");
    tell(before + QString::number(static_cast<int>(failure.number)) + after);
}

FileQuestion CommonDialog::file_question() const {
    const QFileInfo file(FileName);
    return {.title = DialogTitle,
            .filter = Filter,
            .folder = FileName.contains(u'/') ? file.path() : writable_folder(InitDir),
            .name = file.fileName()};
}

} // namespace cirrava
