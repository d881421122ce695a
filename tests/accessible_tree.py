"""Reads the tree of controls of the running program over the accessibility bus and checks it."""

import sys

from accessible_program import Atspi, children_of, wait_for_window


class Node:
    def __init__(self, accessible):
        place = accessible.get_extents(Atspi.CoordType.SCREEN)
        self.role = accessible.get_role_name()
        self.name = accessible.get_name().strip()
        self.description = accessible.get_description()
        self.place = (place.x, place.y, place.width, place.height)
        self.focusable = accessible.get_state_set().contains(Atspi.StateType.FOCUSABLE)
        self.children = [Node(child) for child in children_of(accessible)]

    def all(self):
        yield self
        for child in self.children:
            yield from child.all()

    def __str__(self):
        return f"{self.role}: {self.name} | {self.description} | {self.place}"


failures = []


def expect(holds, what):
    if not holds:
        failures.append(what)


def check_controls(window):
    focusable = [node for node in window.children if node.focusable]
    expect(len(focusable) == 72, f"{len(focusable)} controls take the keyboard")
    names = [node.name for node in focusable]
    for node in focusable:
        expect(node.name, f"no name: {node}")
        expect(names.count(node.name) == 1, f"not the only one of its name: {node}")
        expect(node.role not in ("filler", "unknown", "invalid"), f"no role: {node}")
    for node in window.all():
        expect(node.role != "image" or node.name, f"an image without a name: {node}")


def check_cells(window):
    expected = {
        "Thermal scale": (320, {221: "cell 221, 0.0 C, 32 F", 320: "cell 320, 49.5 C, 121.1 F"}),
        "Sea Surface scale": (250, {2: "cell 2, -9.8 C, 14.36 F"}),
        "HVC scale": (100, {61: "cell 61, 0 C, 32 F"}),
    }
    scales = {node.name: node.children for node in window.children if node.role == "list"}
    expect(set(scales) == set(expected), f"the scales are {list(scales)}")
    for scale, cells in scales.items():
        count, names = expected[scale]
        expect(len(cells) == count, f"{scale} has {len(cells)} cells")
        expect(all(cell.role == "list item" for cell in cells), f"roles of the cells of {scale}")
        expect(all(cell.description == "0, 0, 0" for cell in cells), f"colours of {scale}")
        for number, name in names.items():
            expect(cells[number - 1].name == name, f"{cells[number - 1]} should be {name}")
        places = {cell.place for cell in cells}
        expect(len(places) == count, f"two cells of {scale} stand at one place")


def check_places(window):
    left, top, width, height = window.place
    for node in window.all():
        x, y, w, h = node.place
        inside = left <= x and top <= y and x + w <= left + width and y + h <= top + height
        expect(inside and w > 0 and h > 0, f"outside the window: {node}")


root = Node(wait_for_window())
check_controls(root)
check_cells(root)
check_places(root)
nodes = list(root.all())
if failures:
    print(*nodes, sep="\n")
    sys.exit("FAILED:\n" + "\n".join(failures))
print(f"The tree of {len(nodes)} controls and cells reads as it must.")
