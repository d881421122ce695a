#pragma once

#include "platform/binary_file.h"
#include "widgets/common_dialog.h"

// What the actions on palette files share.
namespace cirrava {

struct SaveProposal {
    QString file_name;
    QString title;
};

// Asks which file to write, in the program's folder at first, and whether to write it. Nothing when
// the user says No; throws a Failure when the user cancels or the system cannot tell whether the
// file exists.
std::optional<QString> choose_output(CommonDialog& cdlopen, const Dialogs& dialogs,
                                     const SaveProposal& proposal);

// Writes a palette that is to last. Throws a Failure.
void write_palette(const QString& out_path, const Bytes& image);

// Reports what ended a file action: the cancel as such, any other failure as `start`, its number
// and `end`.
void tell_failure(const Dialogs& dialogs, const QString& start, const Failure& failure,
                  const QString& end);

std::filesystem::path file_path(const QString& path);

} // namespace cirrava
