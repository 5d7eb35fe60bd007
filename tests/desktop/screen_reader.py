"""gxhost's windows as a screen reader reads them: over the bus, from outside of the process."""
from display import SpokenX11, wait_for


def elements(parent):
    """All that is shown in it; of tables and lists not what they hold."""
    for element in parent:
        if element and "showing" in states(element):
            yield element
            if role_of(element) not in ("table", "tree", "list"):
                yield from elements(element)


def role_of(element):
    return element.getRoleName().removeprefix("push ")  # the push button's name has changed


def states(element):
    return {pyatspi.stateToString(state) for state in element.getState().getStates()}


def related(element, relation):
    """What is joined to it by a relation, such as "LABEL_FOR"."""
    kind = getattr(pyatspi, f"RELATION_{relation}")
    return [found.getTarget(i) for found in element.getRelationSet() if found.getRelationType() == kind
            for i in range(found.getNTargets())]


def labels(element):
    return [label.name.removesuffix(":") for label in related(element, "LABELLED_BY") if role_of(label) == "label"]


class ScreenReader:
    """With a desktop of its own, on which it starts the program; once in a process."""

    def __init__(self, *command):
        self.desktop = SpokenX11()
        try:
            self.desktop.start(*command)
            global pyatspi  # looks for the bus when it is imported
            import pyatspi
            bus = pyatspi.Registry.getDesktop(0)
            bus.set_cache_mask(0)
            self.program = wait_for(lambda: next((program for program in bus if program), None), "a program on the bus")
        except BaseException:
            self.desktop.close()
            raise

    def window(self, title):
        """By the beginning of its title."""
        def find():
            return next((window for window in self.program if window and window.name.startswith(title)), None)
        return wait_for(find, f"the window {title}")

    @staticmethod
    def find(role, name, parent):
        """By its own name or its label's."""
        for element in elements(parent):
            if role_of(element) == role and name in [element.name, *labels(element)]:
                return element
        raise AssertionError(f"no {role} {name!r}")

    @staticmethod
    def choose(window, *names):
        """A menu item, by its way through the menus, by its own action."""
        def item():
            found = next(element for element in window if role_of(element) == "menu bar")
            for name in names:
                items = [child for menu in (found, *found) for child in menu]
                found = next((child for child in items if child.name == name), None)
                if not found:
                    return None
            return found if "enabled" in states(found) else None
        wait_for(item, f"the menu item {names}").queryAction().doAction(0)
