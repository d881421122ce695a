"""The running program's window on the accessibility bus. Run as a program, presses its Quit button.

Fails while the program is not on the bus.
"""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi


def children(node):
    return [node.get_child_at_index(i) for i in range(node.get_child_count())]


def window():
    [program] = [p for p in children(Atspi.get_desktop(0)) if p.get_name() == "cirrava-pal"]
    return program.get_child_at_index(0)


if __name__ == "__main__":
    [button] = [control for control in children(window()) if control.get_name() == "Quit"]
    button.do_action(0)
