#include "palette_files/file_desk.h"

#include "platform/binary_file.h"

#include <QDir>
#include <QFileInfo>

namespace cirrava {

bool choose_output(FileDesk& desk, const SaveProposal& proposal) {
    desk.cdlopen.FileName = proposal.file_name;
    desk.cdlopen.Filter = "*.bmp";
    desk.cdlopen.DialogTitle = proposal.title;
    desk.cdlopen.CancelError = true;
    desk.cdlopen.ShowSave();
    desk.out_path = desk.cdlopen.FileName;

    const bool exists = plain_file_exists(file_path(desk.out_path));
    const QString shown_path = QDir::toNativeSeparators(desk.out_path);
    return desk.dialogs.ask((exists ? "OVERWRITE " : "Write ") + shown_path + "?",
                            "Ready to create");
}

void tell_failure(const FileDesk& desk, const QString& start, const Failure& failure,
                  const QString& end) {
    if (failure.number == FailureNumber::cancelled)
        desk.dialogs.tell("Operation Cancelled");
    else
        desk.dialogs.tell(failure_message(start, failure, end));
}

std::filesystem::path file_path(const QString& path) {
    return QFileInfo(path).filesystemFilePath();
}

} // namespace cirrava
