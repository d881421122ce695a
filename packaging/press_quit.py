"""Presses the running program's Quit over the accessibility bus; fails while there is none."""

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi


def children(node):
    return [node.get_child_at_index(i) for i in range(node.get_child_count())]


[program] = [p for p in children(Atspi.get_desktop(0)) if p.get_name() == "cirrava-pal"]
[window] = children(program)
[button] = [control for control in children(window) if control.get_name() == "Quit"]
button.do_action(0)
