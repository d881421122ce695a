#include "widgets/button.h"
#include "widgets/dialogs.h"
#include "widgets/spoken.h"

#include <QAccessibleWidget>
#include <QClipboard>
#include <QColorDialog>
#include <QDialogButtonBox>
#include <QDir>
#include <QFileDialog>
#include <QFileIconProvider>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMimeDatabase>
#include <QRegularExpression>
#include <QScreen>
#include <QShortcut>
#include <QStandardPaths>
#include <QTreeView>
#include <QUrl>
#include <QVBoxLayout>
#include <functional>

namespace cirrava {

namespace {

QList<QUrl> side_bar_folders(const QString& first) {
    QList<QUrl> urls;
    for (const QString& folder :
         {first, QCoreApplication::applicationDirPath(), QDir::homePath(),
          QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation), QDir::currentPath()})
        if (const QUrl url = QUrl::fromLocalFile(folder);
            QFileInfo(folder).isDir() && !urls.contains(url))
            urls << url;
    return urls;
}

// While a path is typed, Qt selects in the list what lies on the way to it, and may then take a
// selected folder for the answer.
void let_typing_replace_selection(QFileDialog& dialog) {
    auto* const edit = dialog.findChild<QLineEdit*>();
    auto* const files = dialog.findChild<QTreeView*>();
    if (edit != nullptr && files != nullptr)
        QObject::connect(edit, &QLineEdit::textEdited, files->selectionModel(),
                         &QItemSelectionModel::clearSelection);
}

// Widens the side bar and the columns of the list, in which Qt would cut names.
void make_room_for_names(QFileDialog& dialog) {
    if (auto* const files = dialog.findChild<QTreeView*>())
        files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
    if (auto* const side_bar = dialog.findChild<QListView*>("sidebar"))
        side_bar->setMinimumWidth(side_bar->sizeHintForColumn(0) + 2 * side_bar->frameWidth());
}

// The path of the file that was chosen. Qt takes quotation marks in a name for those around several
// names.
QString chosen_in(const QFileDialog& dialog) {
    const auto* const edit = dialog.findChild<QLineEdit*>();
    if (edit != nullptr && edit->text().contains(u'"'))
        return dialog.directory().absoluteFilePath(edit->text());
    return dialog.selectedFiles().value(0);
}

// What a file is, by its name and whether it is a folder: Qt's own looks into files, which may take
// for ever.
class FileKinds : public QFileIconProvider {
public:
    QIcon icon(const QFileInfo& file) const override {
        return QFileIconProvider::icon(file.isDir() ? Folder : File);
    }
    QString type(const QFileInfo& file) const override {
        return QMimeDatabase().mimeTypeForFile(file, QMimeDatabase::MatchExtension).comment();
    }
};

std::optional<QString> ask_for_file(QWidget& parent, QFileDialog::AcceptMode mode,
                                    const QString& examples, const FileQuestion& question) {
    FileKinds kinds;
    QFileDialog dialog(&parent, question.title, question.folder,
                       question.filter + ";;All files (*)");
    // The desktop's own dialogs cannot be kept from asking about overwriting everywhere, nor that
    // of Windows from adding a suffix.
    dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
    dialog.setOption(QFileDialog::ReadOnly, mode == QFileDialog::AcceptOpen);
    for (auto* const view : dialog.findChildren<QAbstractItemView*>())
        view->setDragDropMode(QAbstractItemView::NoDragDrop); // which would move files
    dialog.setIconProvider(&kinds);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setAcceptMode(mode);
    if (mode == QFileDialog::AcceptSave)
        dialog.setLabelText(QFileDialog::LookIn, "Save in:");
    dialog.setSidebarUrls(side_bar_folders(examples));
    dialog.selectFile(question.name);
    let_typing_replace_selection(dialog);
    make_room_for_names(dialog);
    dialog.resize(dialog.sizeHint().boundedTo(parent.size())); // which fits on the screen
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return QDir::cleanPath(chosen_in(dialog));
}

// Lets words wider than `width` pixels, such as a long path, be broken anywhere: returns `text`
// with invisible breaks between their letters.
QString breakable(const QString& text, const QFontMetrics& metrics, int width) {
    static const QRegularExpression letter("(\\X)");
    QStringList words = text.split(u' ');
    for (QString& word : words)
        if (metrics.horizontalAdvance(word) > width)
            word.replace(letter, QStringLiteral("\\1\u200B"));
    return words.join(u' ');
}

// A text and a row of buttons, of which the first accepts and is the default. Qt's own message box
// keeps room for an icon that is not there, and copies the breaks of a long path with its text.
class MessageBox : public QDialog, public Spoken {
public:
    MessageBox(QWidget& parent, const QString& title, const QString& text,
               const QStringList& captions)
        : QDialog(&parent), text_(text) {
        setWindowTitle(title);
        auto* const column = new QVBoxLayout(this);
        column->setSizeConstraint(QLayout::SetFixedSize);
        column->addWidget(label());
        auto* const row = new QDialogButtonBox;
        for (const QString& caption : captions) {
            auto* const button = new Button; // the row owns it
            button->setText(caption);
            // Pressed by its first letter. A shortcut finds Latin letters under other alphabets.
            new QShortcut(caption.left(1), this, button, &Button::click);
            row->addButton(button, row->buttons().isEmpty() ? QDialogButtonBox::AcceptRole
                                                            : QDialogButtonBox::RejectRole);
        }
        connect(row, &QDialogButtonBox::accepted, this, &QDialog::accept);
        connect(row, &QDialogButtonBox::rejected, this, &QDialog::reject);
        column->addWidget(row);
        new QShortcut(QKeySequence::Copy, this,
                      [this] { QGuiApplication::clipboard()->setText(text_); });
    }

    QAccessibleInterface* new_accessible() override {
        return new QAccessibleWidget(this, QAccessible::AlertMessage);
    }

private:
    QLabel* label() const {
        const QFontMetrics metrics = fontMetrics();
        const int room = screen()->availableGeometry().width() / 2;
        // About the width of a title bar, with an icon and buttons beside the title, in the fonts
        // of most desktops.
        const int title = 2 * metrics.horizontalAdvance(windowTitle()) + 10 * metrics.height();
        const QString shown = breakable(text_, metrics, room);
        auto* const label = new QLabel(shown);
        label->setTextFormat(Qt::PlainText);
        label->setWordWrap(true);
        label->setMinimumWidth(qMax(title, qMin(metrics.size(0, text_).width(), room)));
        label->setAccessibleName(text_); // without the breaks, which marked text would have
        if (shown == text_)
            label->setTextInteractionFlags(Qt::TextSelectableByMouse);
        return label;
    }

    const QString text_;
};

std::optional<QColor> ask_for_colour(QWidget& parent, const QColor& initial) {
    const QColor colour =
        QColorDialog::getColor(initial, &parent, {}, QColorDialog::DontUseNativeDialog);
    return colour.isValid() ? std::optional(colour) : std::nullopt;
}

bool ask(QWidget& parent, const QString& text, const QString& title) {
    return MessageBox(parent, title, text, {"Yes", "No"}).exec() == QDialog::Accepted;
}

void tell(QWidget& parent, const QString& text) {
    MessageBox(parent, program_title, text, {"OK"}).exec();
}

} // namespace

Dialogs qt_dialogs(QWidget& parent, const QString& examples) {
    const auto in_front_of = std::ref(parent);
    return {.open = std::bind_front(ask_for_file, in_front_of, QFileDialog::AcceptOpen, examples),
            .save = std::bind_front(ask_for_file, in_front_of, QFileDialog::AcceptSave, QString()),
            .colour = std::bind_front(ask_for_colour, in_front_of),
            .ask = std::bind_front(ask, in_front_of),
            .tell = std::bind_front(tell, in_front_of)};
}

} // namespace cirrava
