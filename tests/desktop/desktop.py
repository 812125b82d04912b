"""A private desktop for one story: X server, window manager, message bus and data folder of its own.

The person is played by real pointer and key events (xdotool); what they would see or hear is read back
through the accessibility tree. Everything waits for a condition with a deadline, and everything that was
started is stopped again.
"""

import os
import shutil
import signal
import subprocess
import tempfile
import time
from pathlib import Path

SCREEN = '1280x800x24'


class Failure(Exception):
    """A story that did not go as told."""


def wait_for(condition, what, seconds=15.0):
    """The first true value of condition(), or a Failure that names what was waited for."""
    deadline = time.monotonic() + seconds
    while True:
        value = condition()
        if value:
            return value
        if time.monotonic() > deadline:
            raise Failure('waited %g s in vain for %s' % (seconds, what))
        time.sleep(0.02)


class Desktop:
    """Use as a context manager; `folder` holds all files of the story."""

    def __init__(self, folder=None):
        self.keep = folder is not None
        self.folder = Path(folder or tempfile.mkdtemp(prefix='ondrilo-desktop-'))
        self.processes = []

    def __enter__(self):
        try:
            self._start()
        except BaseException:
            self.close()
            raise
        return self

    def __exit__(self, *_):
        self.close()

    def _start(self):
        for name, value in {'XDG_DATA_HOME': 'data', 'XDG_CONFIG_HOME': 'config', 'XDG_RUNTIME_DIR': 'runtime',
                            'XDG_CONFIG_DIRS': 'system', 'HOME': 'home'}.items():
            path = self.folder / value
            path.mkdir(parents=True, exist_ok=True)
            path.chmod(0o700)
            os.environ[name] = str(path)
        for name in ('QT_QPA_PLATFORM', 'QT_SCALE_FACTOR', 'WAYLAND_DISPLAY', 'XDG_SESSION_TYPE', 'XAUTHORITY',
                     'SESSION_MANAGER'):
            os.environ.pop(name, None)
        os.environ['QT_LINUX_ACCESSIBILITY_ALWAYS_ON'] = '1'
        # Where nobody listens: a service that the program starts by itself would outlast the story.
        os.environ['SPEECHD_ADDRESS'] = 'unix_socket:%s' % (self.folder / 'silence')
        # Without "-noreset" the server starts anew when a look at it ends, and turns away who comes meanwhile.
        os.environ['DISPLAY'] = ':' + self._answer(['Xvfb', '-displayfd', '1', '-screen', '0', SCREEN,
                                                    '-nolisten', 'tcp', '-noreset'])
        os.environ['DBUS_SESSION_BUS_ADDRESS'] = self._answer(['dbus-daemon', '--session', '--nofork',
                                                               '--print-address=1'])
        self.start(['openbox'])
        wait_for(lambda: b'window id' in subprocess.run(['xprop', '-root', '_NET_SUPPORTING_WM_CHECK'],
                                                        capture_output=True).stdout, 'the window manager', 60)

    def _answer(self, command):
        """Starts a server and reads the one line in which it says where it can be reached."""
        process = self.start(command, stdout=subprocess.PIPE)
        line = process.stdout.readline().decode().strip()
        if not line:
            raise Failure('%s did not start' % command[0])
        return line

    def start(self, command, **options):
        options.setdefault('stdout', subprocess.DEVNULL)
        options.setdefault('stderr', subprocess.DEVNULL)
        process = subprocess.Popen(command, start_new_session=True, **options)
        self.processes.append(process)
        return process

    def close(self):
        for process in reversed(self.processes):
            for number in (signal.SIGTERM, signal.SIGKILL):
                try:
                    os.killpg(process.pid, number)
                    process.wait(3)
                    break
                except (ProcessLookupError, subprocess.TimeoutExpired):
                    continue
        self.processes.clear()
        if not self.keep:
            shutil.rmtree(self.folder, ignore_errors=True)

    def install(self, delivered):
        """What an installer leaves behind: the note of the installation folder, and that folder's files."""
        note = self.folder / 'system' / 'Norvane' / 'Ondrilo 3.0'
        note.mkdir(parents=True, exist_ok=True)
        (note / 'Settings').write_text('Path %s\n' % delivered)

    @property
    def data(self):
        return self.folder / 'data' / 'Norvane' / 'Ondrilo 3.0'

    def xdotool(self, *words):
        return subprocess.run(['xdotool', *map(str, words)], check=True, capture_output=True, text=True).stdout

    def hold(self, key):
        """Long enough for a switch, with its latency and ticks."""
        self.xdotool('keydown', key)
        time.sleep(0.4)
        self.xdotool('keyup', key)

    def press(self, *keys):
        """Key names of X, such as "F1" or "shift+a", one after the other."""
        self.xdotool('key', '--delay', '60', *keys)

    def click(self, x, y, button=1):
        self.xdotool('mousemove', x, y, 'click', button)

    def active_title(self):
        result = subprocess.run(['xdotool', 'getactivewindow', 'getwindowname'], capture_output=True, text=True)
        return result.stdout.strip()

    def active_window(self):
        """Its number, empty if nothing has the focus."""
        return subprocess.run(['xdotool', 'getactivewindow'], capture_output=True, text=True).stdout.strip()

    def windows(self, title):
        """The numbers of the windows that show and have that title."""
        return subprocess.run(['xdotool', 'search', '--onlyvisible', '--name', title], capture_output=True,
                              text=True).stdout.split()

    def picture(self, path):
        subprocess.run(['import', '-window', 'root', str(path)], check=True)


class Program:
    """The running program as a person meets it."""

    NAME = 'ondrilo'
    LIT = '#1b2a41'

    def __init__(self, desktop, path):
        self.desktop = desktop
        self.process = desktop.start([str(path)], stderr=None)
        import gi  # needs the display and bus of the story in the environment
        gi.require_version('Atspi', '2.0')
        from gi.repository import Atspi, GLib
        self.atspi = Atspi
        self.gone = GLib.Error
        self.window = wait_for(self._window, 'the window of the program', 30)
        focused = Atspi.StateType.FOCUSED
        wait_for(lambda: self.editor().get_state_set().contains(focused), 'the focus in the editor')
        time.sleep(0.7)  # the first target is attached half a second after the session's start

    def _window(self):
        desktop = self.atspi.get_desktop(0)
        desktop.clear_cache()
        for i in range(desktop.get_child_count()):
            application = desktop.get_child_at_index(i)
            if application and application.get_name() == self.NAME:
                for j in range(application.get_child_count()):
                    window = application.get_child_at_index(j)
                    if window and 'Ondrilo V3.0' in (window.get_name() or ''):
                        return window
        return None

    def all(self, accept, root=None):
        """Every element of the main window, or below `root`, that `accept` likes, in tree order."""
        return wait_for(lambda: self._walk(accept, root or self.window), 'a tree that stands still')[0]

    def _walk(self, accept, root):
        """What was found, in a tuple; nothing if an element went away meanwhile."""
        found = []

        def walk(element):
            if accept(element):
                found.append(element)
            for i in range(element.get_child_count()):
                child = element.get_child_at_index(i)
                if child:
                    walk(child)
        root.clear_cache()
        try:
            walk(root)
        except self.gone:
            return None
        return (found,)

    def key(self, name, seconds=15.0):
        """The key of that name (its description); of several the last, since predictions stand first."""
        push_button = self.atspi.Role.PUSH_BUTTON
        found = wait_for(lambda: self.all(lambda e: e.get_role() == push_button and e.get_name() == name),
                         'the key "%s"' % name, seconds)
        return found[-1]

    def keys(self):
        push_button = self.atspi.Role.PUSH_BUTTON
        return [e.get_name() for e in self.all(lambda e: e.get_role() == push_button)]

    def place(self, element):
        return element.get_extents(self.atspi.CoordType.SCREEN)

    def click(self, name, button=1):
        self.click_element(self.key(name), button)

    def centre(self, element):
        place = self.place(element)
        return place.x + place.width // 2, place.y + place.height // 2

    def click_element(self, element, button=1):
        self.desktop.click(*self.centre(element), button)

    def rest_on(self, name):
        self.desktop.xdotool('mousemove', *self.centre(self.key(name)))

    def colour(self, name):
        """Of the key's background, as "#rrggbb"."""
        place = self.place(self.key(name))
        corner = '1x1+%d+%d' % (place.x + 4, place.y + place.height - 5)
        pixel = subprocess.run(['import', '-window', 'root', '-crop', corner, '-depth', '8', 'rgb:-'], check=True,
                               capture_output=True).stdout
        return '#' + pixel.hex()

    def is_lit(self, name):
        """Whether the key shows the colours of a lit one (COR_LETRAS of the delivered profile behind)."""
        return self.colour(name) == self.LIT

    def editor(self):
        editor = next(iter(self.all(lambda e: e.get_role() == self.atspi.Role.TEXT and e.get_editable_text_iface())),
                      None)
        if editor is None:
            raise Failure('there is no editor in the accessibility tree')
        return editor

    def text(self):
        """The text of the internal editor."""
        editor = self.editor()
        return self.atspi.Text.get_text(editor, 0, self.atspi.Text.get_character_count(editor))

    def expect_text(self, text, seconds=10.0):
        try:
            wait_for(lambda: self.text() == text, '', seconds)
        except Failure:
            raise Failure('the editor holds %r, not %r' % (self.text(), text)) from None

    def title(self):
        self.window.clear_cache()
        return self.window.get_name()

    def quit(self, seconds=15.0):
        """Closes the window as a person does and waits for the end; returns the exit code."""
        window = self.desktop.xdotool('search', '--name', '^Ondrilo V3.0').split()[0]
        self.click_element(self.editor())  # elsewhere the window takes no focus
        wait_for(lambda: self.desktop.active_window() == window, 'the focus in the editor')
        self.desktop.press('alt+F4')
        return self.process.wait(seconds)
