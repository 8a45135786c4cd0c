"""What tools that read the tree meet, on every screen: run on a desk with the program, opens one
screen after the other by keys alone and prints a line for each fault."""

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
LIMIT = 60  # seconds for a window to come up and for the focus to move
ENGLISH = {"ok", "cancel", "close", "help", "open", "save", "yes", "options", "menu"}

MENU = "PIZARRIN"
# The caption of the button that opens a screen, and the keys that lead on to dialogs of it, each
# with the item of a menu that has the focus then.
SCREENS = [
    ("Suma repetida", []),
    ("Tablas de multiplicar", []),
    ("Tablas rápidas", []),
    ("Completa el hueco", []),
    ("Múltiplos y divisores", []),
    ("Multiplicaciones", [[("alt+o", "Cifras factor 1"), ("s", "Cualquiera"), ("s", None)]]),
    ("Divisiones", []),
    ("Problemas", [
        [("alt+o", "Gestión de problemas..."), ("g", None)],
        [("alt+o", "Gestión de problemas..."), ("s", "Seleccionar problemas..."),
         ("Return", None)],  # two items have the S
    ]),
    ("Operaciones combinadas", []),
    ("Lluvia de números", []),
]
RACE = "La gran carrera"  # its dialog comes up above it, and leads to it
# Whose order is given: its rows and its result, then the buttons.
GIVEN_ORDER = {"Multiplicaciones"}


# --- the tree

def window_in_front():
    desktop = Atspi.get_desktop(0)
    for application in children(desktop):
        if application.get_name() != "pizarrin":
            continue
        application.set_cache_mask(Atspi.Cache.NONE)  # it would be stale without its events
        for window in children(application):
            if window.get_state_set().contains(State.ACTIVE):
                return window
    return None


def children(control):
    found = (control.get_child_at_index(i) for i in range(control.get_child_count()))
    return [child for child in found if child is not None]


def shown(control):
    yield control
    for child in children(control):
        if child.get_state_set().contains(State.SHOWING):
            yield from shown(child)


def is_group_of_options(control):
    """A list, to newer readers: it is the panel around it that is named."""
    return control.get_role() == Role.LIST and any(
        child.get_role() == Role.RADIO_BUTTON for child in children(control))


def focused(window):
    """The current item of a list stays focused, whatever has the focus, says the toolkit."""
    return next((control for control in shown(window)
                 if control.get_state_set().contains(State.FOCUSED)
                 and control.get_role() != Role.LIST_ITEM), None)


def described(control):
    return f"{control.get_role_name()} {control.get_name()!r}"


# --- faults

def faults(control):
    role, name, states = control.get_role(), control.get_name(), control.get_state_set()
    if role in NO_ROLE:
        yield f"{described(control)} has no role"
    if role in CONTAINERS or is_group_of_options(control):
        return  # where the focus only rests is one too, and better says nothing
    if not name and role != Role.LABEL:  # one that has nothing to show yet
        yield f"{described(control)} has no name"
    if name.lower() in ENGLISH:
        yield f"{described(control)} is not Spanish"
    only_shown = role == Role.TEXT and states.contains(State.READ_ONLY)
    if role in FOCUSED_KINDS and states.contains(State.ENABLED) and not only_shown \
            and not states.contains(State.FOCUSABLE):
        yield f"{described(control)} does not take the focus"
    if states.contains(State.ENABLED) != states.contains(State.SENSITIVE):
        yield f"{described(control)} is enabled and not, at once"
    if role == Role.TEXT \
            and states.contains(State.EDITABLE) == states.contains(State.READ_ONLY):
        yield f"{described(control)} is written and only read, at once"


def place(control):
    return control.get_extents(Atspi.CoordType.SCREEN)


def order_faults(order):
    """Tab goes down the screen, or on to the next column, wherever it begins again."""
    return min((list(steps_back(order[i:] + order[:i])) for i in range(len(order))), key=len)


def steps_back(order):
    for before, after in zip(order, order[1:]):
        a, b = place(before), place(after)
        if b.y + b.height <= a.y and b.x <= a.x + a.width:
            yield f"{described(after)} follows {described(before)} by Tab"


# --- the keyboard

def press(*keys):
    subprocess.run(["xdotool", "key", "--delay", "30", *keys], check=True)


def wait(condition, complaint):
    end = time.monotonic() + LIMIT
    while not (found := condition()):
        if time.monotonic() > end:
            sys.exit(complaint)
        time.sleep(0.02)
    return found


def press_tab(before):
    """Returns the control that has got the focus by it, or the same one where there is no other."""
    press("Tab")
    return wait(lambda: (now := focused(window_in_front())) != before and now,
                f"Tab does not lead on from {described(before)}")


def press_in_menus(window, keys):
    """A menu that is about to come up does not take its keys yet."""
    for key, item in keys:
        press(key)
        if item is not None:
            wait(lambda: item in chosen_items(window), f"{key} does not lead to {item!r}")


def chosen_items(window):
    return [control.get_name() for control in shown(window)
            if control.get_role() == Role.MENU_ITEM
            and control.get_state_set().contains(State.FOCUSED)]


def tab_order(window):
    order = [wait(lambda: focused(window), f"nothing has the focus in {window.get_name()!r}")]
    stops = sum(control.get_role() in FOCUSED_KINDS
                and control.get_state_set().contains(State.FOCUSABLE)
                and control.get_state_set().contains(State.ENABLED) for control in shown(window))
    while stops > 1 and (control := press_tab(order[-1])) not in order:
        order.append(control)
    return order


def goes_to(title):
    """Waits for another window than that with this title. One that has just gone has no name."""
    return wait(lambda: (window := window_in_front()) and window.get_name() not in ("", title)
                and window,
                f"nothing came up in front of {title!r}")


# --- the walk

class Walk:
    def __init__(self):
        self.faults = []
        self.screens = 0

    def read(self, window):
        title = window.get_name()
        wait(lambda: focused(window), f"nothing has the focus in {title!r}")
        found = [fault for control in shown(window) for fault in faults(control)]
        if title not in GIVEN_ORDER:
            found += order_faults(tab_order(window))
        self.faults += [f"{title}: {fault}" for fault in found]
        self.screens += 1
        print(f"{title}: {sum(1 for _ in shown(window))} controls, {len(found)} faults", flush=True)

    def close(self, title):
        press("alt+F4")
        goes_to(title)

    def open(self, caption):
        menu = wait(lambda: (window := window_in_front()) and window.get_name() == MENU and window,
                    "the menu is not in front")
        control = focused(menu)
        while control.get_name() != caption:
            control = press_tab(control)
        press("space")
        return goes_to(MENU)

    def visit(self, caption, dialogs):
        window = self.open(caption)
        title = window.get_name()
        self.read(window)
        for keys in dialogs:
            press_in_menus(window, keys)
            dialog = goes_to(title)
            self.read(dialog)
            self.close(dialog.get_name())
        self.close(title)

    def visit_race(self):
        dialog = self.open(RACE)
        while dialog.get_name() == RACE:  # whose options come up at once
            dialog = goes_to(RACE)
        self.read(dialog)
        accept = focused(dialog)
        while accept.get_name() != "Aceptar":
            accept = press_tab(accept)
        press("space")
        self.read(goes_to(dialog.get_name()))
        self.close(RACE)


def main():
    walk = Walk()
    walk.read(wait(window_in_front, "no window is in front"))
    for caption, dialogs in SCREENS:
        walk.visit(caption, dialogs)
    walk.visit_race()
    if walk.screens != 16:
        walk.faults.append(f"{walk.screens} screens were read")
    print("\n".join(walk.faults))
    sys.exit(bool(walk.faults))


if __name__ == "__main__":
    main()
