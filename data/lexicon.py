#!/usr/bin/env python3
"""Makes the lexicon that lies under the counted texts. Run: lexicon.py FILE

The common words of Portuguese are those of the word list of tesseract-ocr-por that the spelling dictionary of
hunspell-pt-pt knows: small ones, and names in the form in which the dictionary has them. FILE gets them in
small letters, a word a line, sorted, UTF-8, with the dictionary's mark of the word's class after a tab.
"""

import glob
import os
import re
import subprocess
import sys
import tempfile
from pathlib import Path

TRAINED = '/usr/share/tesseract-ocr/*/tessdata/por.traineddata'
DICTIONARY = 'pt_PT'
WORD = re.compile(r"[^\W\d_]+(-[^\W\d_]+)*")
STEM = re.compile(r'\bst:(\S+)')
CLASS = re.compile(r'\bCAT=(\w+)')
# A word of several classes keeps the first of the lowest rank: small words before those of the classes that
# grow ("para" is hardly ever a verb), names last.
RANKS = {'v': 1, 'nc': 1, 'adj': 1, 'a_nc': 1, 'np': 2, '': 3}


def run(*command, **options):
    try:
        return subprocess.run(command, check=True, capture_output=True, **options).stdout
    except FileNotFoundError:
        sys.exit('lexicon: there is no %s; packages.txt tells what to install' % command[0])
    except subprocess.CalledProcessError as error:
        sys.exit('lexicon: %s failed: %s' % (command[0], error.stderr))


def common_words(folder):
    trained = sorted(glob.glob(TRAINED))
    if not trained:
        sys.exit('lexicon: there is no %s; packages.txt tells what to install' % TRAINED)
    parts = folder / 'por.'
    run('combine_tessdata', '-u', trained[-1], str(parts))
    words = folder / 'words'
    run('dawg2wordlist', '%slstm-unicharset' % parts, '%slstm-word-dawg' % parts, str(words))
    return sorted({word for word in words.read_text('utf-8').split('\n') if WORD.fullmatch(word)})


def readings(words, folder):
    """Yields (word, stem, class or '') for every way in which the spelling dictionary reads a word."""
    # An own home: words that somebody has added to their spelling dictionary do not count.
    environment = {'PATH': os.environ['PATH'], 'HOME': str(folder), 'LC_ALL': 'C.UTF-8'}
    known = run('hunspell', '-d', DICTIONARY, '-i', 'utf-8', '-m', input='\n'.join(words) + '\n',
                encoding='utf-8', env=environment)
    for line in known.split('\n'):
        word, _, marks = line.partition(' ')
        if stem := STEM.search(marks):
            classes = CLASS.findall(marks)
            yield word, stem[1], classes[-1] if classes else ''


def fits(word):
    try:
        word.encode('cp1252')
    except UnicodeEncodeError:
        return False
    return True


def rank(mark):
    return RANKS.get(mark, 0)


def main():
    classes = {}
    with tempfile.TemporaryDirectory() as name:
        folder = Path(name)
        for word, stem, mark in readings(common_words(folder), folder):
            if (word == word.lower() or word == stem) and fits(word):
                classes.setdefault(word.lower(), []).append(mark)
    lines = (word + '\t' + min(marks, key=rank) for word, marks in sorted(classes.items()))
    Path(sys.argv[1]).write_text(''.join(line.rstrip('\t') + '\n' for line in lines), 'utf-8')


if __name__ == '__main__':
    main()
