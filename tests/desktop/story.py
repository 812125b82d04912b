"""The frame of a story: runs it on a desktop of its own, with the delivered data as an installer leaves it."""

import shutil
import signal
import sys
from pathlib import Path

from desktop import Desktop, Failure


def play(story):
    """Calls story(desktop, program) with the words of the command line: PROGRAM DELIVERED."""
    # The end of the story from outside, too, stops what it started.
    signal.signal(signal.SIGTERM, lambda *_: sys.exit('stopped'))
    program, delivered = (Path(word).resolve() for word in sys.argv[1:3])
    with Desktop() as desktop:
        desktop.install(delivered)
        try:
            story(desktop, program)
        except Failure as failure:
            picture = Path('failed-%s.png' % Path(sys.argv[0]).stem).resolve()
            desktop.picture(picture)
            sys.exit('%s\nThe screen: %s' % (failure, picture))
    print('1 passed, 0 failed')


def prepare_data(desktop, delivered=None):
    shutil.copytree(delivered or Path(sys.argv[2]), desktop.data)


def set_option(desktop, key, value, profile='generico'):
    path = desktop.data / (profile + '.cfg')
    lines = ['%s %s' % (key, value) if line.split(' ')[0] == key else line
             for line in path.read_text('cp1252').splitlines()]
    path.write_text('\n'.join(lines) + '\n', 'cp1252')


def set_options(desktop, options):
    for key, value in options.items():
        set_option(desktop, key, value)


def copy_profile(desktop, name):
    for file in desktop.data.glob('generico.*'):
        shutil.copy(file, desktop.data / (name + file.suffix))
    with (desktop.data / 'utils').open('a') as profiles:
        profiles.write(name + '\n')


def use_words(desktop, words='', pairs=''):
    """The whole general vocabulary: each line a word, or two, and how often it is used."""
    for ending, lines in {'pal': words, 'par': pairs, 'frs': '', 'paf': ''}.items():
        (desktop.data / ('geral.' + ending)).write_text(lines, 'cp1252')


def letters(text):
    """A key for each, in a keyboard file."""
    return ''.join('TECLA TECLA_NORMAL %s %s %s\n' % (letter, letter, letter) for letter in text)


def expect(condition, what):
    if not condition:
        raise Failure(what)
