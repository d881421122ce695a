#pragma once

#include <QAccessible>

namespace cirrava {

// For QAccessible::installFactory: shows a CellArray to screen readers as a list of its cells, each
// with its number and temperatures as name, its colour as description, its position, and the
// actions of its mouse buttons. Null for every other object.
QAccessibleInterface* accessible_cells(const QString& class_name, QObject* object);

} // namespace cirrava
