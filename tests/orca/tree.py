"""What tools that read the tree meet: run on a desk, prints one line for each fault of the
window in front."""

import subprocess
import sys
import time

import gi

gi.require_version("Atspi", "2.0")
from gi.repository import Atspi  # noqa: E402

Role, State = Atspi.Role, Atspi.StateType
CONTAINERS = {Role.FILLER, Role.PANEL, Role.VIEWPORT, Role.SCROLL_PANE, Role.SEPARATOR,
              Role.LAYERED_PANE, Role.MENU_BAR}
NO_ROLE = {Role.INVALID, Role.UNKNOWN}
FOCUSED_KINDS = {Role.PUSH_BUTTON, Role.TEXT, Role.CHECK_BOX, Role.RADIO_BUTTON, Role.LIST}
LIMIT = 30  # seconds for the focus to move
ENGLISH = {"ok", "cancel", "close", "help", "open", "save", "yes", "no button"}


def window_in_front():
    desktop = Atspi.get_desktop(0)
    for i in range(desktop.get_child_count()):
        application = desktop.get_child_at_index(i)
        if application is None or application.get_name() != "pizarrin":
            continue
        application.set_cache_mask(Atspi.Cache.NONE)  # it would be stale without its events
        for k in range(application.get_child_count()):
            window = application.get_child_at_index(k)
            if window.get_state_set().contains(State.ACTIVE):
                return window
    return None


def shown(control):
    yield control
    for i in range(control.get_child_count()):
        child = control.get_child_at_index(i)
        if child is not None and child.get_state_set().contains(State.SHOWING):
            yield from shown(child)


def faults(control):
    role, name = control.get_role(), control.get_name()
    states = control.get_state_set()
    what = f"{control.get_role_name()} {name!r}"
    if role in NO_ROLE:
        yield f"{what} has no role"
    if role in CONTAINERS:
        return
    if not name:
        yield f"{what} has no name"
    if name.lower() in ENGLISH:
        yield f"{what} is not Spanish"
    only_shown = role == Role.TEXT and states.contains(State.READ_ONLY)
    if role in FOCUSED_KINDS and states.contains(State.ENABLED) and not only_shown \
            and not states.contains(State.FOCUSABLE):
        yield f"{what} is no control that takes the focus"
    if states.contains(State.ENABLED) != states.contains(State.SENSITIVE):
        yield f"{what} is enabled and not, at once"


def focused(window):
    return next((control for control in shown(window)
                 if control.get_state_set().contains(State.FOCUSED)), None)


def place(control):
    return control.get_extents(Atspi.CoordType.SCREEN)


def press_tab(window):
    """Returns the control that has got the focus by it."""
    before = focused(window)
    subprocess.run(["xdotool", "key", "Tab"], check=True)
    end = time.monotonic() + LIMIT
    while (now := focused(window)) in (None, before):
        if time.monotonic() > end:
            return before
        time.sleep(0.02)
    return now


def order_faults(window):
    """Tab goes down the screen, or on to the next column, until it begins again."""
    order = [focused(window)]
    if order[0] is None:
        return ["nothing has the focus"]
    stops = sum(1 for control in shown(window)
                if control.get_state_set().contains(State.FOCUSABLE))
    while len(order) <= stops and stops > 1:
        control = press_tab(window)
        if control in order:
            break
        order.append(control)
    first = min(range(len(order)), key=lambda i: (place(order[i]).y, place(order[i]).x))
    order = order[first:] + order[:first]
    found = []
    for before, after in zip(order, order[1:]):
        a, b = place(before), place(after)
        if b.y + b.height <= a.y and b.x <= a.x + a.width:
            found.append(f"{after.get_name()!r} follows {before.get_name()!r} by Tab")
    return found


def main():
    window = window_in_front()
    if window is None:
        sys.exit("no window is in front")
    found = [fault for control in shown(window) for fault in faults(control)]
    if "--order" in sys.argv:
        found += order_faults(window)
    print("\n".join(found))
    sys.exit(bool(found))


if __name__ == "__main__":
    main()
