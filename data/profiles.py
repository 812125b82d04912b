#!/usr/bin/env python3
"""Makes the delivered profiles and their list. Run: profiles.py FOLDER

profiles/generico.cfg holds all options; base.cfg, the template of new profiles, is the same. Every other
profiles/NAME.cfg holds only what NAME has otherwise. A profile's NAME.acs comes as it stands, and its own
vocabulary is empty: a first start then shows no error boxes. All files are Windows-1252.
"""

import sys
from pathlib import Path

SOURCES = Path(__file__).parent / 'profiles'
GENERIC = 'generico'
VOCABULARY = ('pal', 'par', 'frs', 'paf', 'abr')


def options_of(name):
    lines = (SOURCES / (name + '.cfg')).read_text('utf-8').splitlines()
    return {key: value for key, _, value in (line.partition(' ') for line in lines)}


def write(path, lines):
    path.write_text(''.join(line + '\n' for line in lines), 'cp1252', newline='\n')


def write_profile(path, options):
    write(path, (key + ' ' + value for key, value in options.items()))


def main():
    folder = Path(sys.argv[1])
    generic = options_of(GENERIC)
    others = sorted(path.stem for path in SOURCES.glob('*.cfg') if path.stem != GENERIC)
    write_profile(folder / 'base.cfg', generic)
    write_profile(folder / (GENERIC + '.cfg'), generic)
    for name in others:
        changes = options_of(name)
        unknown = changes.keys() - generic.keys()
        if unknown:
            sys.exit('%s.cfg: no options: %s' % (name, ', '.join(sorted(unknown))))
        write_profile(folder / (name + '.cfg'), generic | changes)
    write(folder / 'utils', others)
    for path in SOURCES.glob('*.acs'):
        write(folder / path.name, path.read_text('utf-8').splitlines())
    for name in [GENERIC, *others]:
        for extension in VOCABULARY:
            (folder / (name + '.' + extension)).touch()


if __name__ == '__main__':
    main()
