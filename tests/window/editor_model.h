#pragma once

#include <QImage>
#include <QStringList>
#include <map>
#include <optional>
#include <set>

namespace cirrava {

// What the main window should hold and show, kept in the plainest way: one list of numbers for each
// scale, byte arrays for files. It uses nothing of the program, so that a slip in one of the two
// shows.
struct EditorModel {
    enum Scale { thermal, sea, hvc };
    using Path = std::optional<QString>; // nothing: the user cancels

    static const QStringList names;   // as `Label5` shows them
    static const QList<QRgb> presets; // alpha left out

    // The user's doings. Those that need an enabled control do nothing while it is disabled.
    void choose(int scale);
    void release(int scale, int cell, Qt::MouseButton button);
    void copy_colour(int scale, int cell);
    void take(QRgb colour) { current = {qRed(colour), qGreen(colour), qBlue(colour)}; }
    void apply();
    void reset();
    void move_brightness(int position);
    void generate(int scale, const Path& chosen, bool yes);
    void load(const Path& chosen);

    // The texts, states and numbers on the window, and what was told and asked since they were
    // cleared.
    QStringList window() const;

    // The bytes of a palette file of the scale.
    QByteArray image(int scale) const;

    QList<QList<int>> cells{QList<int>(320), QList<int>(250), QList<int>(100)}; // as 0xBBGGRR
    int working = thermal;
    std::optional<int> last_clicked;
    int start = 0;
    int end = 0;
    QStringList boxes{"", "", "", ""};
    QList<int> current{0, 0, 0}; // red, green, blue: the swatch, the sliders and their readouts
    static constexpr int brightness = 5; // at rest, of 0 to 10
    QImage picture;

    QString preview;                     // path of the preview file
    QString out_path;                    // the file of the last file action
    std::map<QString, QByteArray> files; // by path
    std::set<QString> folders;           // which stand where a file would be
    QStringList told;
    QStringList prompts;

private:
    bool write(const QString& path, int scale);
    void refresh_preview();
    void show_picture();
};

} // namespace cirrava
