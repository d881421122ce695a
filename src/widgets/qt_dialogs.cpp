#include "widgets/dialogs.h"

#include <QClipboard>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>
#include <QSplitter>
#include <QStandardPaths>
#include <QTreeView>
#include <QUrl>
#include <functional>

namespace cirrava {

namespace {

QList<QUrl> side_bar_folders() {
    QList<QUrl> urls;
    for (const QString& folder :
         {QCoreApplication::applicationDirPath(), QDir::homePath(),
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
    if (const auto* const splitter = dialog.findChild<QSplitter*>())
        if (auto* const side_bar = qobject_cast<QListView*>(splitter->widget(0)))
            side_bar->setMinimumWidth(side_bar->sizeHintForColumn(0) + 2 * side_bar->frameWidth());
}

std::optional<QString> ask_for_file(QWidget& parent, QFileDialog::AcceptMode mode,
                                    const FileQuestion& question) {
    QFileDialog dialog(&parent, question.title, question.folder, question.filter);
    // The desktop's own dialogs cannot be kept from asking about overwriting everywhere.
    dialog.setOptions(QFileDialog::DontUseNativeDialog | QFileDialog::DontConfirmOverwrite);
    dialog.setFileMode(QFileDialog::AnyFile);
    dialog.setAcceptMode(mode);
    if (mode == QFileDialog::AcceptSave)
        dialog.setLabelText(QFileDialog::LookIn, "Save in:");
    dialog.setSidebarUrls(side_bar_folders());
    dialog.selectFile(question.name);
    let_typing_replace_selection(dialog);
    make_room_for_names(dialog);
    if (dialog.exec() != QDialog::Accepted)
        return std::nullopt;
    return QDir::cleanPath(dialog.selectedFiles().value(0));
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

class MessageBox : public QMessageBox {
public:
    MessageBox(QWidget& parent, const QString& title, const QString& text, StandardButtons buttons)
        : QMessageBox(NoIcon, title, {}, buttons, &parent), text_(text) {
        setTextFormat(Qt::PlainText);
        show_broken_where_long();
        if (buttons.testFlag(Yes))
            setDefaultButton(Yes);
        make_room_for_title();
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->matches(QKeySequence::Copy))
            QGuiApplication::clipboard()->setText(text_);
        else
            QMessageBox::keyPressEvent(event);
    }

private:
    // The clipboard and screen readers get the text without the breaks.
    void show_broken_where_long() {
        setText(breakable(text_, fontMetrics(), screen()->availableGeometry().width() / 2));
        if (text() == text_)
            return;
        setTextInteractionFlags(Qt::NoTextInteraction);
        for (auto* const label : findChildren<QLabel*>())
            if (label->text() == text())
                label->setAccessibleName(text_);
    }

    // The title is as wide in the fonts of most desktops, with an icon and buttons beside it.
    void make_room_for_title() {
        const int room =
            2 * fontMetrics().horizontalAdvance(windowTitle()) + 10 * fontMetrics().height();
        if (auto* const grid = qobject_cast<QGridLayout*>(layout()))
            grid->addItem(new QSpacerItem(room, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }

    QString text_;
};

std::optional<QColor> ask_for_colour(QWidget& parent, const QColor& initial) {
    const QColor colour =
        QColorDialog::getColor(initial, &parent, {}, QColorDialog::DontUseNativeDialog);
    return colour.isValid() ? std::optional(colour) : std::nullopt;
}

bool ask(QWidget& parent, const QString& text, const QString& title) {
    return MessageBox(parent, title, text, QMessageBox::Yes | QMessageBox::No).exec() ==
           QMessageBox::Yes;
}

void tell(QWidget& parent, const QString& text) {
    MessageBox(parent, program_title, text, QMessageBox::Ok).exec();
}

} // namespace

Dialogs qt_dialogs(QWidget& parent) {
    const auto in_front_of = std::ref(parent);
    return {.open = std::bind_front(ask_for_file, in_front_of, QFileDialog::AcceptOpen),
            .save = std::bind_front(ask_for_file, in_front_of, QFileDialog::AcceptSave),
            .colour = std::bind_front(ask_for_colour, in_front_of),
            .ask = std::bind_front(ask, in_front_of),
            .tell = std::bind_front(tell, in_front_of)};
}

} // namespace cirrava
