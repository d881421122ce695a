#pragma once

#include "platform/common_dialog.h"

#include <filesystem>

// What the actions on palette files share.
namespace cirrava {

// What a file action works with: the window's dialogs and the path of its last file.
struct FileDesk {
    Dialogs dialogs;
    CommonDialog cdlopen{dialogs};
    QString out_path = {};
};

struct SaveProposal {
    QString file_name;
    QString title;
};

// Asks which file to write, in the program's folder at first, and whether to write it. Sets
// `out_path` to the file chosen. False when the user says No; throws a Failure when the user
// cancels or the system cannot tell whether the file exists.
bool choose_output(FileDesk& desk, const SaveProposal& proposal);

// Reports what ended a file action: the cancel as such, any other failure as `start`, its number
// and `end`.
void tell_failure(const FileDesk& desk, const QString& start, const Failure& failure,
                  const QString& end);

std::filesystem::path file_path(const QString& path);

} // namespace cirrava
