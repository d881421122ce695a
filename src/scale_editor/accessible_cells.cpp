#include "scale_editor/cell_array.h"
#include "scale_editor/qt_values.h"
#include "widgets/in_reach.h"
#include "widgets/spoken_colour.h"

#include <QAccessibleWidget>
#include <QPointer>
#include <vector>

namespace cirrava {

namespace {

constexpr QLatin1StringView mark_as_start("mark as start");
constexpr QLatin1StringView mark_as_end("mark as end");
constexpr QLatin1StringView copy_colour("copy colour");

class AccessibleCell : public QAccessibleInterface, public QAccessibleActionInterface {
public:
    AccessibleCell(CellArray& cells, int cell) : cells_(&cells), cell_(cell) {}

    bool isValid() const override { return !cells_.isNull(); }
    QObject* object() const override { return nullptr; }
    QWindow* window() const override { return cells_->window()->windowHandle(); }
    QAccessible::Role role() const override { return QAccessible::ListItem; }
    QAccessible::State state() const override {
        QAccessible::State state;
        state.selectable = true;
        state.selected = cells_->is_marked(cell_);
        return state;
    }

    QString text(QAccessible::Text which) const override {
        switch (which) {
        case QAccessible::Name:
            return to_qt(spoken_text(cells_->kind(), cell_));
        case QAccessible::Description:
            return spoken_colour(to_qt(cells_->colour(cell_)));
        default:
            return {};
        }
    }
    void setText(QAccessible::Text, const QString&) override {}

    QRect rect() const override {
        const QRect strip = cells_->strip(cell_);
        return {cells_->mapToGlobal(strip.topLeft()), strip.size()};
    }

    QAccessibleInterface* parent() const override {
        return QAccessible::queryAccessibleInterface(cells_);
    }
    QAccessibleInterface* child(int) const override { return nullptr; }
    QAccessibleInterface* childAt(int, int) const override { return nullptr; }
    int childCount() const override { return 0; }
    int indexOfChild(const QAccessibleInterface*) const override { return -1; }

    void* interface_cast(QAccessible::InterfaceType type) override {
        return type == QAccessible::ActionInterface ? static_cast<QAccessibleActionInterface*>(this)
                                                    : nullptr;
    }
    QStringList actionNames() const override { return {mark_as_start, mark_as_end, copy_colour}; }
    void doAction(const QString& action) override {
        if (!in_reach(*cells_))
            return;
        if (action == mark_as_start)
            emit cells_->marked(cell_, Side::start);
        else if (action == mark_as_end)
            emit cells_->marked(cell_, Side::end);
        else if (action == copy_colour)
            emit cells_->colour_asked(cell_);
    }
    QStringList keyBindingsForAction(const QString&) const override { return {}; }

    int cell() const { return cell_; }

private:
    QPointer<CellArray> cells_;
    int cell_;
};

class AccessibleCells : public QAccessibleWidget {
public:
    explicit AccessibleCells(CellArray& cells)
        : QAccessibleWidget(&cells, QAccessible::List), cells_(cells),
          children_(static_cast<std::size_t>(cell_count(cells.kind()))) {}
    ~AccessibleCells() override {
        for (const QAccessible::Id child : children_)
            if (child != 0)
                QAccessible::deleteAccessibleInterface(child);
    }

    int childCount() const override { return static_cast<int>(children_.size()); }

    QAccessibleInterface* child(int index) const override {
        if (index < 0 || index >= childCount())
            return nullptr;
        QAccessible::Id& child = children_[static_cast<std::size_t>(index)];
        if (child == 0)
            child = QAccessible::registerAccessibleInterface(new AccessibleCell(cells_, index));
        return QAccessible::accessibleInterface(child);
    }

    QAccessibleInterface* childAt(int x, int y) const override {
        return child(cells_.cell_at(cells_.mapFromGlobal(QPoint(x, y))));
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        const auto* const cell = dynamic_cast<const AccessibleCell*>(child);
        return cell != nullptr ? cell->cell() : -1;
    }

private:
    CellArray& cells_;
    mutable std::vector<QAccessible::Id> children_; // made when asked for; 0 before
};

} // namespace

QAccessibleInterface* CellArray::new_accessible() {
    return new AccessibleCells(*this);
}

} // namespace cirrava
