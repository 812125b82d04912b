"""Real programs that the person writes in, with one interface: xterm, editors of three toolkits, and browsers.

Each stands at the top of the screen, corrects nothing by itself, and gives its text back by its own means: the
terminal as the bytes that it got, an editor as the file that it saves, a browser as its page tells it in the title.
While the story goes on an editor is read through the accessibility tree instead, so that no key but the story's
reaches it.
"""

import contextlib
import json
import re
import subprocess
from urllib.parse import unquote

from desktop import Failure, wait_for
from story import expect

WIDTH, HEIGHT = 1200, 380


def log(desktop):
    """What the newest log of the first profile holds by now."""
    return max(desktop.data.glob('generico *.log'), key=lambda path: path.stat().st_mtime).read_text('cp1252')


def changes(desktop):
    """The targets that the log tells of, in order: a window's title, or that of the internal editor."""
    return re.findall('WORD_PROCESSOR_CHANGE (\\S*)', log(desktop))


def click_keys(ondrilo, *names):
    """One after the other has come: clicks that a slow window manager holds back go to where the pointer is then."""
    for name in names:
        before = log(ondrilo.desktop).count('LEFT_MOUSE_DOWN_KEY')
        ondrilo.click(name)
        wait_for(lambda: log(ondrilo.desktop).count('LEFT_MOUSE_DOWN_KEY') > before, 'the press of "%s"' % name)


@contextlib.contextmanager
def attached(desktop, name=''):
    """What is done inside makes our program take a new target, of that name."""
    before = len(changes(desktop))
    yield
    wait_for(lambda: len(changes(desktop)) > before and name in changes(desktop)[-1], 'the target ' + name)


class OtherProgram:
    environment = {}

    def __init__(self, desktop):
        self.desktop = desktop
        self.folder = desktop.folder / self.name
        self.folder.mkdir(exist_ok=True)
        self.file = self.folder / 'texto.txt'
        self.file.write_bytes(b'')
        self.prepare()
        self.process = desktop.start(['env', *('%s=%s' % pair for pair in self.environment.items()), *self.command()])
        self.window = wait_for(lambda: desktop.windows(self.title), 'the window of ' + self.name, 60)[-1]
        desktop.xdotool('windowmove', self.window, 10, 30, 'windowsize', self.window, WIDTH, HEIGHT)
        self.focus()
        self.wait_until_it_writes()

    def prepare(self):
        """Settings, before the start."""

    def origin(self):
        """Of its window's inside, on the screen."""
        told = subprocess.run(['xwininfo', '-id', self.window], check=True, capture_output=True, text=True).stdout
        return [int(number) for number in re.findall(r'Absolute upper-left [XY]: +(-?\d+)', told)]

    def is_active(self):
        return self.desktop.active_window() == self.window

    def focus(self):
        self.desktop.xdotool('windowactivate', self.window)
        wait_for(self.is_active, 'the focus in ' + self.name)

    def type(self, text):
        """The person's own keys, without accents: these would be mapped too briefly."""
        for number, line in enumerate(text.split('\n')):
            if number:
                self.desktop.press('Return')
            self.desktop.xdotool('type', '--delay', '12', '--', line)

    def wait_until_it_writes(self):
        """A young window drops keys: tries one until it shows, and leaves no trace of it."""
        def shows():
            self.desktop.press('a')
            return (self.text() or '').endswith('a')
        wait_for(shows, 'a key in ' + self.name, 60)
        self.clear()

    def expect_text(self, text, seconds=10.0):
        try:
            wait_for(lambda: self.text() == text, '', seconds)
        except Failure:
            raise Failure('%s holds %r, not %r' % (self.name, self.text(), text)) from None
        expect(self.is_active(), '%s lost the focus to "%s"' % (self.name, self.desktop.active_title()))

    def close(self):
        self.process.terminate()
        self.process.wait(10)


class Xterm(OtherProgram):
    """A terminal in which a shell writes down every byte; `text` is what they come to in a line of writing."""

    environment = {'LC_ALL': 'C.UTF-8'}
    tells_text = False
    REPORTS_FOCUS = '\\033[?1004h'  # each loss and return, however short, as bytes too

    def __init__(self, desktop, name='Terminal', setting=''):
        """`setting` is what the terminal itself is told at the start."""
        self.name, self.title, self.setting = name, '^%s$' % name, setting
        super().__init__(desktop)

    def command(self):
        reader = "stty raw -echo; printf '%s'; exec cat >>%s" % (self.setting, self.file)
        return ['xterm', '-u8', '-T', self.name, '-e', 'sh', '-c', reader]

    def click(self):
        self.desktop.xdotool('mousemove', '--window', self.window, 50, 50, 'click', 1)
        wait_for(self.is_active, 'the focus in ' + self.name)

    def bytes(self):
        return self.file.read_bytes()

    def expect_bytes(self, wanted):
        try:
            wait_for(lambda: self.bytes() == wanted, '', 5)
        except Failure:
            raise Failure('%s got %r, not %r' % (self.name, self.bytes(), wanted)) from None

    def text(self):
        text = ''
        for character in self.bytes().decode(errors='replace'):
            if character in '\b\x7f':
                text = text[:-1]
            elif text.endswith('\x01') and character.isprintable():
                text = character  # Ctrl+A, and then it is written over
            else:
                text += '\n' if character == '\r' else character
        return text

    def saved_text(self):
        return self.text()

    def clear(self):
        def only_the_end():
            self.file.write_bytes(b'')
            self.desktop.press('Return')  # comes after all that is still on its way
            return wait_for(self.bytes, 'the end of the keys') == b'\r'
        wait_for(only_the_end, 'the end of the keys')
        self.file.write_bytes(b'')

    def click_behind(self, beginning):
        """Between the characters of the text; where writing goes on: a terminal's place is the end."""
        self.click()
        return len(self.text())


class Editor(OtherProgram):
    tells_text = True

    def __init__(self, desktop):
        import gi  # needs the display and bus of the story in the environment
        gi.require_version('Atspi', '2.0')
        from gi.repository import Atspi, GLib
        self.atspi, self.gone = Atspi, GLib.Error
        super().__init__(desktop)

    def elements(self, accept):
        """Those on the screen that `accept` likes; none if the tree changed meanwhile."""
        showing, found = self.atspi.StateType.SHOWING, []

        def walk(element):
            if accept(element) and element.get_state_set().contains(showing):
                found.append(element)
                return
            for i in range(min(element.get_child_count(), 200)):
                child = element.get_child_at_index(i)
                if child:
                    walk(child)
        desktop = self.atspi.get_desktop(0)
        desktop.clear_cache()
        try:
            for i in range(desktop.get_child_count()):
                application = desktop.get_child_at_index(i)
                if application and application.get_name() == self.name:
                    application.clear_cache()
                    walk(application)
        except self.gone:
            return []
        return found

    def paragraphs(self):
        multi_line = self.atspi.StateType.MULTI_LINE
        return self.elements(lambda e: e.get_role() == self.atspi.Role.TEXT
                             and e.get_state_set().contains(multi_line))

    def text(self):
        """As the accessibility tree tells it."""
        get = self.atspi.Text
        try:
            return '\n'.join(get.get_text(p, 0, get.get_character_count(p)) for p in self.paragraphs())
        except self.gone:
            return None

    def saved_text(self):
        """As the editor itself saves it."""
        before = self.file.stat().st_mtime_ns
        self.desktop.press('ctrl+s')
        wait_for(lambda: self.file.stat().st_mtime_ns != before and self.file.stat().st_size, 'the saved file')
        return self.decode(self.file.read_bytes())

    def decode(self, saved):
        return saved.decode()

    def on_screen(self, place):
        return place(self.atspi.CoordType.SCREEN)

    def click(self):
        """Gives the text the focus as a person does, behind all that is written."""
        place = self.on_screen(lambda in_what: self.paragraphs()[-1].get_extents(in_what))
        self.desktop.click(place.x + place.width - 20, place.y + place.height // 2)
        wait_for(self.is_active, 'the focus in ' + self.name)

    def clear(self):
        self.desktop.press('ctrl+a', 'BackSpace')
        wait_for(lambda: self.text() == '', 'an empty text')

    def click_behind(self, beginning):
        """Between the characters of the first paragraph; where writing goes on."""
        paragraph = self.paragraphs()[0]
        extents = self.atspi.Text.get_character_extents
        place = self.on_screen(lambda in_what: extents(paragraph, len(beginning), in_what))
        self.desktop.click(place.x - 1, place.y + place.height // 2)
        wait_for(lambda: self.atspi.Text.get_caret_offset(paragraph) == len(beginning), 'the caret there')
        return len(beginning)


class Mousepad(Editor):
    title = 'Mousepad$'
    name = 'mousepad'
    environment = {'GSETTINGS_BACKEND': 'memory', 'LC_ALL': 'C.UTF-8'}

    def command(self):
        return ['mousepad', '--disable-server', self.file]


class Featherpad(Editor):
    title = 'texto.txt$'
    name = 'FeatherPad'
    environment = {'QT_ACCESSIBILITY': '1', 'LC_ALL': 'C.UTF-8'}

    def prepare(self):
        settings = self.desktop.folder / 'config' / 'featherpad'
        settings.mkdir(exist_ok=True)
        names = ('appendEmptyLine', 'autoBracket', 'autoReplace', 'removeTrailingSpaces')
        (settings / 'fp.conf').write_text('[text]\n' + ''.join(name + '=false\n' for name in names))

    def command(self):
        return ['featherpad', '--standalone', self.file]


class Writer(Editor):
    title = 'LibreOffice Writer$'
    name = 'soffice'
    environment = {'SAL_USE_VCLPLUGIN': 'gtk3', 'LC_ALL': 'C.UTF-8', 'GSETTINGS_BACKEND': 'memory'}
    SETTINGS = {'Setup/Product': {'ooSetupLastVersion': '99.9', 'LastTimeDonateShown': '9999999999',
                                  'LastTimeGetInvolvedShown': '9999999999'},
                'Common/Misc': {'FirstRun': 'false', 'ShowTipOfTheDay': 'false'},
                'Common/Save/Document': {'WarnAlienFormat': 'false', 'AutoSave': 'false'},
                'Common/AutoCorrect': {name: 'false' for name in (
                    'TwoCapitalsAtStart', 'CapitalAtStartSentence', 'CorrectAccidentalCapsLock', 'ChangeDash',
                    'AddNonBreakingSpace', 'ReplaceSingleQuote', 'ReplaceDoubleQuote', 'SetInetAttr', 'ChangeOrdinal',
                    'IgnoreDoubleSpace', 'RemoveDoubleSpaces', 'UseReplacementTable')},
                "Setup/Office/Factories/org.openoffice.Setup:Factory['com.sun.star.text.TextDocument']": {
                    'ooSetupFactoryWindowAttributes': '0,20,1200,380;1;0,0,0,0;'},
                'Writer/AutoFunction/Completion': {'Enable': 'false'},
                'Writer/AutoFunction/Format/ByInput': {'Enable': 'false'}}

    def prepare(self):
        item = '<item oor:path="/org.openoffice.%s"><prop oor:name="%s" oor:op="fuse"><value>%s</value></prop></item>'
        items = [item % (path if path.startswith('Setup') else 'Office.' + path, name, value)
                 for path, values in self.SETTINGS.items() for name, value in values.items()]
        user = self.folder / 'user'
        user.mkdir()
        (user / 'registrymodifications.xcu').write_text(
            '<?xml version="1.0" encoding="UTF-8"?>\n<oor:items xmlns:oor="http://openoffice.org/2001/registry" '
            'xmlns:xs="http://www.w3.org/2001/XMLSchema" xmlns:xsi="http://www.w3.org/2001/XMLSchema-instance">'
            '\n%s\n</oor:items>\n' % '\n'.join(items))

    def command(self):
        return ['soffice', '-env:UserInstallation=file://%s' % self.folder, '--norestore', '--nologo', '--writer',
                self.file]

    def paragraphs(self):
        return self.elements(lambda e: e.get_role() == self.atspi.Role.PARAGRAPH)

    def decode(self, saved):
        """Plain text of its making begins with a mark and ends its last line too."""
        return saved.decode('utf-8-sig').removesuffix('\n')

    def on_screen(self, place):
        """Its screen coordinates forget the frame of the window."""
        inside = place(self.atspi.CoordType.WINDOW)
        left, top = self.origin()
        inside.x, inside.y = inside.x + left, inside.y + top
        return inside


class Browser(Editor):
    """A page that is filled by one field."""

    title = '^texto='
    TEXTAREA = '<textarea id="field" autofocus></textarea>'
    PART_OF_PAGE = '<div id="field" contenteditable autofocus></div>'  # as mail is written
    PAGE = '''<!DOCTYPE html><meta charset="utf-8"><style>#field{position:fixed;inset:10px}</style>%s<script>
    onload = oninput = () => {
        const text = field.value ?? field.innerText.replace(/\\n$/, "").replaceAll("\\xa0", " ");
        document.title = "texto=" + encodeURIComponent(text) + "=";
    }</script>'''

    def __init__(self, desktop, field=TEXTAREA):
        self.field = field
        super().__init__(desktop)

    def prepare(self):
        self.page = self.folder / 'texto.html'
        self.page.write_text(self.PAGE % self.field)

    def text(self):
        return unquote(self.desktop.xdotool('getwindowname', self.window).split('=')[1])

    def saved_text(self):
        return self.text()

    def paragraphs(self):
        multi_line = self.atspi.StateType.MULTI_LINE
        return self.elements(lambda e: e.get_state_set().contains(multi_line))

    def click(self):
        self.desktop.xdotool('mousemove', '--window', self.window, WIDTH - 100, HEIGHT - 60, 'click', 1)
        wait_for(self.is_active, 'the focus in ' + self.name)


class Firefox(Browser):
    name = 'Firefox'
    PREFERENCES = {'browser.aboutwelcome.enabled': False, 'browser.shell.checkDefaultBrowser': False,
                   'browser.startup.homepage_override.mstone': 'ignore', 'layout.spellcheckDefault': 0,
                   'datareporting.policy.dataSubmissionEnabled': False, 'termsofuse.bypassNotification': True}

    def command(self):
        (self.folder / 'user.js').write_text(''.join(
            'user_pref("%s", %s);\n' % (name, json.dumps(value)) for name, value in self.PREFERENCES.items()))
        return ['firefox-esr', '--no-remote', '--width', str(WIDTH), '--height', str(HEIGHT), '--profile', self.folder,
                self.page.as_uri()]


class Chromium(Browser):
    """Tells its text only when it was started for that, and starts for root only without its sandbox."""

    name = 'Chromium'

    def command(self):
        return ['chromium', '--user-data-dir=%s' % self.folder, '--no-first-run', '--no-default-browser-check',
                '--no-sandbox', '--test-type', '--password-store=basic', '--force-renderer-accessibility',
                self.page.as_uri()]


PROGRAMS = {'xterm': Xterm, 'mousepad': Mousepad, 'featherpad': Featherpad, 'writer': Writer,
            'firefox': Firefox, 'firefox-mail': lambda desktop: Firefox(desktop, Browser.PART_OF_PAGE),
            'chromium-mail': lambda desktop: Chromium(desktop, Browser.PART_OF_PAGE)}
