"""The menu and the dialogs of the program, worked by pointer and keys."""

from desktop import wait_for


def choose(program, *path):
    """Clicks through the menu: choose(program, 'Perfil', 'Novo Perfil...')."""
    items = [program.atspi.Role.MENU_ITEM]
    for name in path:
        program.click_element(shown(program, program.window, name, items))


def shown(program, root, name, roles=None):
    """Waits for an element of that name, not a label, that is on the screen; the first of several."""
    showing, label = program.atspi.StateType.SHOWING, program.atspi.Role.LABEL

    def is_it(element):
        role = element.get_role()
        return (element.get_name() == name and (role in roles if roles else role != label)
                and element.get_state_set().contains(showing))
    return wait_for(lambda: program.all(is_it, root), '"%s"' % name)[0]


class Dialog:
    """An open dialog or message box, by its title, or by its text for a message."""

    def __init__(self, program, title):
        self.program, self.desktop, self.title = program, program.desktop, title
        self.element = wait_for(self._find, 'the dialog "%s"' % title)
        active = program.atspi.StateType.ACTIVE
        wait_for(lambda: self.element.get_state_set().contains(active), 'the focus in "%s"' % title)
        self.window = self.desktop.active_window()

    def _find(self):
        application = self.program.window.get_parent()
        application.clear_cache()
        for i in range(application.get_child_count()):
            window = application.get_child_at_index(i)
            if window and window.get_name() == self.title:
                return window
        return None

    def is_open(self):
        return self._find() is not None

    def control(self, name):
        return shown(self.program, self.element, name)

    def click(self, name):
        self.program.click_element(self.control(name))

    def enter(self, text):
        """Types into what has the focus, and ends with Enter."""
        self.desktop.xdotool('type', text)
        self.desktop.press('Return')

    def write(self, name, text):
        """Puts `text` into a field, in the place of what is there."""
        self.click(name)
        self.desktop.press('ctrl+a')
        self.desktop.xdotool('type', text)

    def pick(self, choice, instead_of):
        """Chooses in the drop-down box that shows `instead_of`: to the tree that is its name."""
        box = shown(self.program, self.element, instead_of, [self.program.atspi.Role.COMBO_BOX])
        self.program.click_element(box)
        self.enter(choice)

    def close(self, button='OK'):
        self.click(button)
        self.wait_for_end()

    def wait_for_end(self):
        """Until another window has the focus: a click before that would meet nobody."""
        wait_for(lambda: not self.is_open(), 'the end of "%s"' % self.title)
        wait_for(lambda: self.desktop.active_window() not in ('', self.window), 'the focus behind "%s"' % self.title)
