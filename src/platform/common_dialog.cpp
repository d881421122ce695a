#include "platform/common_dialog.h"

#include "platform/failure.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>

namespace cirrava {

namespace {

QString writable_folder(const QString& wanted) {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    for (const QString& folder : {wanted, documents})
        if (QFileInfo(folder).isWritable())
            return folder;
    return QDir::homePath();
}

} // namespace

void CommonDialog::ShowOpen() {
    take_path(dialogs_.open(file_question()));
}

void CommonDialog::ShowSave() {
    take_path(dialogs_.save(file_question()));
}

void CommonDialog::ShowColor() {
    const auto colour = dialogs_.colour(Color);
    check_cancel(colour.has_value());
    Color = colour.value_or(Color);
}

FileQuestion CommonDialog::file_question() const {
    const QFileInfo file(FileName);
    const bool has_folder = FileName.contains(u'/');
    const bool is_pattern = FileName == Filter;
    return {.title = DialogTitle,
            .filter = Filter,
            .folder = has_folder ? file.path() : writable_folder(InitDir),
            .name = is_pattern ? QString() : file.fileName()};
}

void CommonDialog::take_path(const std::optional<QString>& path) {
    check_cancel(path.has_value());
    FileName = path.value_or(FileName);
}

void CommonDialog::check_cancel(bool answered) const {
    if (!answered && CancelError)
        throw Failure{FailureNumber::cancelled};
}

} // namespace cirrava
