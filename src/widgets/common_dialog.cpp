#include "widgets/common_dialog.h"

#include <QDir>
#include <QFileInfo>
#include <QStandardPaths>
#include <QTemporaryFile>

namespace cirrava {

namespace {

// Asked by trying: on Windows, Qt does not look at a folder's permissions.
bool is_writable(const QString& folder) {
    return !folder.isEmpty() && QTemporaryFile(folder + "/cirrava-pal").open();
}

QString writable_folder(const QString& wanted) {
    const QString documents = QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation);
    for (const QString& folder : {wanted, documents})
        if (is_writable(folder))
            return folder;
    return QDir::homePath();
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

FileQuestion CommonDialog::file_question() const {
    const QFileInfo file(FileName);
    const bool has_folder = FileName.contains(u'/');
    const bool is_pattern = FileName == Filter;
    return {.title = DialogTitle,
            .filter = Filter,
            .folder = has_folder ? file.path() : writable_folder(InitDir),
            .name = is_pattern ? QString() : file.fileName()};
}

template <class Answer> Answer CommonDialog::given(const std::optional<Answer>& answer) const {
    Q_ASSERT(CancelError);
    if (!answer)
        throw Failure{FailureNumber::cancelled};
    return *answer;
}

} // namespace cirrava
