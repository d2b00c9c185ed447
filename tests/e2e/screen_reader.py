"""A screen reader: it finds, presses and hears what the program offers through AT-SPI."""

import re

from desktop import wait_for

# What is asked waits so long for an answer; a busy machine needs more than the usual second.
ANSWER_MILLISECONDS = 20000
HEARD = ("object:state-changed:focused", "object:property-change:accessible-name",
         "object:property-change:accessible-description", "window:activate", "mouse:button")
# What must have a name, whether or not it takes the keyboard. The bars of a scroll area are part of it.
CONTROLS = {"check box", "check menu item", "combo box", "list", "list item", "menu item", "page tab",
            "push button", "radio button", "radio menu item", "slider", "spin button", "table",
            "table cell", "text", "toggle button", "tree", "tree item", "tree table",
            "document text"}


class ScreenReader:
    """Made when the desktop's environment is in place; at most one in a process."""

    def __init__(self):
        import pyatspi
        from gi.repository import GLib

        self.atspi = pyatspi
        pyatspi.setTimeout(ANSWER_MILLISECONDS, ANSWER_MILLISECONDS)
        self.context = GLib.MainContext.default()
        self.heard = []
        pyatspi.Registry.registerEventListener(self._hear, *HEARD)

    def _hear(self, event):
        try:
            if event.type.startswith("object:state") and not event.detail1:
                return
            kind = event.type.split(":")[-1].removeprefix("accessible-")
            self.heard.append((kind, event.source.name, event.source.description))
        except Exception:  # what it was about is gone already
            pass

    def _listen(self):
        while self.context.iteration(False):
            pass

    def wait_for(self, condition, what):
        def found():
            self._listen()
            return condition()
        return wait_for(found, what)

    def waits_to_hear(self, kind, name, description=""):
        """A matching announcement; all that came before it is forgotten."""
        def match(entry):
            return (entry[0] == kind and re.search(name, entry[1])
                    and re.search(description, entry[2]))

        def found():
            return any(match(entry) for entry in self.heard)

        try:
            self.wait_for(found, f"{kind} of {name!r} {description!r}")
        except AssertionError as error:
            raise AssertionError(f"{error}; heard {self.heard}") from None
        self.heard.clear()

    def application(self):
        for application in self.atspi.Registry.getDesktop(0):
            if application is not None and application.name == "GallopadeNova":
                return application
        return None

    def windows(self):
        application = self.application()
        return [window for window in application or []
                if window is not None and self.shows(window)]

    def window(self, title):
        def found():
            return next((window for window in self.windows() if re.search(title, window.name)),
                        None)
        return self.wait_for(found, f"a window called {title}")

    def has_window(self, title):
        return any(re.search(title, window.name) for window in self.windows())

    def shows(self, node):
        return node.getState().contains(self.atspi.STATE_SHOWING)

    def is_enabled(self, node):
        return node.getState().contains(self.atspi.STATE_ENABLED)

    def is_focused(self, node):
        return node.getState().contains(self.atspi.STATE_FOCUSED)

    def everything_in(self, node):
        for child in node:
            if child is not None:
                yield child
                yield from self.everything_in(child)

    def find(self, node, role, name):
        """The one descendant of that role and name."""
        for child in self.everything_in(node):
            if child.getRoleName() == role and child.name == name:
                return child
        raise AssertionError(f"no {role} called {name!r} in {node.name!r}")

    def press(self, node):
        action = node.queryAction()
        names = [action.getName(number) for number in range(action.nActions)]
        action.doAction(names.index("Press"))
        self._listen()

    def unnamed_controls(self, window):
        """What a player could come upon in a window without being told what it is."""
        return [f"{node.getRoleName()} {node.getIndexInParent()} in {node.parent.name!r}"
                for node in self.everything_in(window)
                if self.shows(node) and not node.name.strip() and self._is_control(node)]

    def _is_control(self, node):
        focusable = node.getState().contains(self.atspi.STATE_FOCUSABLE)
        return focusable or node.getRoleName() in CONTROLS
