#include "palette_files/save_palette.h"

#include "platform/failure.h"

#include <QCoreApplication>
#include <QDir>
#include <optional>

namespace cirrava {

namespace {

bool ask_whether_to(const QString& verb, CommonDialog& cdlopen) {
    const QString out_path = QDir::toNativeSeparators(cdlopen.FileName);
    return cdlopen.ask(verb + " " + out_path + "?", "Ready to create");
}

// Asks whether to write the file that was chosen, and opens it. While the question stands, another
// program may make a file or a link there: that is asked about, too, before it is written over.
std::optional<BinaryFile> open_to_write(CommonDialog& cdlopen) {
    const auto path = cdlopen.file_path();
    try {
        if (!plain_file_exists(path)) {
            if (!ask_whether_to("Write", cdlopen))
                return std::nullopt;
            return BinaryFile(path, FileAccess::create);
        }
    } catch (const Failure& failure) {
        if (failure.number != FailureNumber::file_exists)
            throw;
    }
    if (!ask_whether_to("OVERWRITE", cdlopen))
        return std::nullopt;
    return BinaryFile(path, FileAccess::write);
}

} // namespace

bool save_palette(CommonDialog& cdlopen, const Bytes& image, const SaveTexts& texts) {
    try {
        cdlopen.InitDir = QCoreApplication::applicationDirPath();
        cdlopen.FileName = texts.file_name;
        cdlopen.Filter = "*.bmp";
        cdlopen.DialogTitle = texts.title;
        cdlopen.CancelError = true;
        cdlopen.ShowSave();
        auto file = open_to_write(cdlopen);
        if (!file)
            return false;
        file->write(image);
        file->sync();
        file->close();
        return true;
    } catch (const Failure& failure) {
        cdlopen.tell(texts.message_start, failure, " A problem occured during file creation");
        return false;
    }
}

} // namespace cirrava
