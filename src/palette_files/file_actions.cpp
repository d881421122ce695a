#include "palette_files/file_actions.h"

#include <QDir>
#include <QFileInfo>

namespace cirrava {

std::optional<QString> choose_output(CommonDialog& cdlopen, const Dialogs& dialogs,
                                     const SaveProposal& proposal) {
    cdlopen.FileName = proposal.file_name;
    cdlopen.Filter = "*.bmp";
    cdlopen.DialogTitle = proposal.title;
    cdlopen.CancelError = true;
    cdlopen.ShowSave();

    const QString out_path = cdlopen.FileName;
    const bool exists = plain_file_exists(file_path(out_path));
    const QString verb(exists ? QLatin1StringView("OVERWRITE ") : QLatin1StringView("Write "));
    const QString question = verb + QDir::toNativeSeparators(out_path) + "?";
    return dialogs.ask(question, "Ready to create") ? std::optional(out_path) : std::nullopt;
}

void write_palette(const QString& out_path, const Bytes& image) {
    BinaryFile file(file_path(out_path), FileAccess::read_write);
    file.write(image);
    file.sync();
    file.close();
}

void tell_failure(const Dialogs& dialogs, const QString& start, const Failure& failure,
                  const QString& end) {
    if (failure.number == FailureNumber::cancelled)
        dialogs.tell("Operation Cancelled");
    else
        dialogs.tell(failure_message(start, failure, end));
}

std::filesystem::path file_path(const QString& path) {
    return QFileInfo(path).filesystemFilePath();
}

} // namespace cirrava
