#include "platform/dialogs.h"

#include <QClipboard>
#include <QColorDialog>
#include <QDir>
#include <QFileDialog>
#include <QGridLayout>
#include <QGuiApplication>
#include <QHeaderView>
#include <QKeyEvent>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QRegularExpression>
#include <QScreen>
#include <QStandardPaths>
#include <QTreeView>
#include <QUrl>

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
        setSidebarUrls(places());
        selectFile(question.name);
        if (auto* const files = findChild<QTreeView*>("treeView"))
            files->header()->setSectionResizeMode(QHeaderView::ResizeToContents);
        if (auto* const side_bar = findChild<QListView*>("sidebar")) // as wide as its widest name
            side_bar->setMinimumWidth(side_bar->sizeHintForColumn(0) + 2 * side_bar->frameWidth());
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
    static QList<QUrl> places() {
        QList<QUrl> urls;
        for (const QString& folder :
             {QCoreApplication::applicationDirPath(), QDir::homePath(),
              QStandardPaths::writableLocation(QStandardPaths::DocumentsLocation),
              QDir::currentPath()})
            if (const QUrl url = QUrl::fromLocalFile(folder);
                QFileInfo(folder).isDir() && !urls.contains(url))
                urls << url;
        return urls;
    }

    QString quoted_;
};

// `text` with marks that do not show in each word wider than `width` pixels, such as a long path,
// so that it can be broken anywhere.
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
        setText(breakable(text, fontMetrics(), screen()->availableGeometry().width() / 2));
        if (this->text() != text)
            setTextInteractionFlags(Qt::NoTextInteraction); // the marks would be copied, too
        if (buttons.testFlag(Yes))
            setDefaultButton(Yes);
        make_room_for_title(title);
    }

protected:
    void keyPressEvent(QKeyEvent* event) override {
        if (event->matches(QKeySequence::Copy))
            QGuiApplication::clipboard()->setText(text_);
        else
            QMessageBox::keyPressEvent(event);
    }

private:
    // In the fonts of most desktops, with an icon and the buttons of the title bar.
    void make_room_for_title(const QString& title) {
        const int room = 2 * fontMetrics().horizontalAdvance(title) + 10 * fontMetrics().height();
        if (auto* const grid = qobject_cast<QGridLayout*>(layout()))
            grid->addItem(new QSpacerItem(room, 0), grid->rowCount(), 0, 1, grid->columnCount());
    }

    QString text_;
};

std::optional<QColor> ask_colour(QWidget& parent, const QColor& initial) {
    const QColor colour =
        QColorDialog::getColor(initial, &parent, {}, QColorDialog::DontUseNativeDialog);
    return colour.isValid() ? std::optional(colour) : std::nullopt;
}

} // namespace

Dialogs qt_dialogs(QWidget& parent) {
    return {
        .open =
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
                return MessageBox(parent, title, text, QMessageBox::Yes | QMessageBox::No).exec() ==
                       QMessageBox::Yes;
            },
        .tell =
            [&parent](const QString& text) {
                MessageBox(parent, program_title, text, QMessageBox::Ok).exec();
            }};
}

} // namespace cirrava
