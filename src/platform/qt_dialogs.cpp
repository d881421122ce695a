#include "platform/dialogs.h"

#include <QColorDialog>
#include <QFileDialog>
#include <QGridLayout>
#include <QHeaderView>
#include <QLineEdit>
#include <QMessageBox>
#include <QTreeView>

namespace cirrava {

namespace {

// Qt takes quotes in a typed name for separators between several names; here they are part of the
// one name.
class OneFileDialog : public QFileDialog {
public:
    OneFileDialog(QWidget& parent, const FileQuestion& question, AcceptMode mode)
        : QFileDialog(&parent, question.title, question.folder, question.filter) {
        // The desktop's own dialogs cannot be kept from asking about overwriting everywhere.
        setOptions(DontUseNativeDialog | DontConfirmOverwrite);
        setFileMode(AnyFile);
        setAcceptMode(mode);
        selectFile(question.name);
        if (auto* const files = findChild<QTreeView*>("treeView"))
            files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    }

    std::optional<QString> ask() {
        if (exec() != Accepted)
            return std::nullopt;
        return quoted_.isEmpty() ? selectedFiles().value(0) : quoted_;
    }

protected:
    void accept() override {
        const auto* name = findChild<QLineEdit*>("fileNameEdit");
        if (name == nullptr || !name->text().contains(u'"'))
            return QFileDialog::accept();
        quoted_ = directory().absoluteFilePath(name->text());
        if (QFileInfo(quoted_).isDir())
            setDirectory(quoted_);
        else
            done(Accepted);
    }

private:
    QString quoted_;
};

QMessageBox::StandardButton show_message(QWidget& parent, const QString& title, const QString& text,
                                         QMessageBox::StandardButtons buttons) {
    QMessageBox box(QMessageBox::NoIcon, title, text, buttons, &parent);
    box.setTextFormat(Qt::PlainText);
    if (auto* const grid = qobject_cast<QGridLayout*>(box.layout())) // wide enough for the title
        grid->addItem(new QSpacerItem(2 * box.fontMetrics().horizontalAdvance(title), 0),
                      grid->rowCount(), 0, 1, grid->columnCount());
    if (buttons.testFlag(QMessageBox::Yes))
        box.setDefaultButton(QMessageBox::Yes);
    return static_cast<QMessageBox::StandardButton>(box.exec());
}

std::optional<QColor> ask_colour(QWidget& parent, const QColor& initial) {
    const QColor colour =
        QColorDialog::getColor(initial, &parent, {}, QColorDialog::DontUseNativeDialog);
    return colour.isValid() ? std::optional(colour) : std::nullopt;
}

} // namespace

Dialogs qt_dialogs(QWidget& parent) {
    return {.open =
                [&parent](const FileQuestion& question) {
                    return OneFileDialog(parent, question, QFileDialog::AcceptOpen).ask();
                },
            .save =
                [&parent](const FileQuestion& question) {
                    return OneFileDialog(parent, question, QFileDialog::AcceptSave).ask();
                },
            .colour = [&parent](const QColor& initial) { return ask_colour(parent, initial); },
            .ask =
                [&parent](const QString& text, const QString& title) {
                    return show_message(parent, title, text, QMessageBox::Yes | QMessageBox::No) ==
                           QMessageBox::Yes;
                },
            .tell =
                [&parent](const QString& text) {
                    show_message(parent, program_title, text, QMessageBox::Ok);
                }};
}

} // namespace cirrava
