#!/usr/bin/python3
"""Prints, as a table in Markdown, what word prediction saves on texts: with 5 and with 10 words on the list,
without and with adaptation to the person. Each figure comes from one run of "ondrilo-tool simulate words".
"""

import argparse
import subprocess
import tempfile
from pathlib import Path

HEADING = ('| Text | Words | Predictions | Adaptation | Characters saved | Keys saved | Letters before the word |\n'
           '|---|---|---|---|---|---|---|')


def simulate(arguments, text, predictions, adapt):
    """The columns of the results row, as numbers; the percentages anew, with a decimal."""
    with tempfile.NamedTemporaryFile('r') as rows:
        subprocess.run([arguments.tool, 'simulate', 'words', '--data', arguments.data,
                        '--profile', arguments.profile, '--text', text, '--sim', rows.name,
                        '--predictions', str(predictions), '--adapt', str(adapt),
                        '--encoding', arguments.encoding], check=True, stdout=subprocess.DEVNULL)
        columns = [float(column) for column in Path(rows.name).read_text().split()]
    words, characters, user_characters, _, keys, user_keys, *_, letters = columns
    return words, 100 * (1 - user_characters / characters), 100 * (1 - user_keys / keys), letters


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument('--tool', default='build/full/bin/ondrilo-tool')
    parser.add_argument('--data', default='build/full/data', help='a data folder; nothing in it is changed')
    parser.add_argument('--profile', default='generico')
    parser.add_argument('--encoding', default='utf-8', help='of the texts: utf-8 or windows-1252')
    parser.add_argument('texts', nargs='+')
    arguments = parser.parse_args()
    print(HEADING)
    for text in arguments.texts:
        for predictions in (5, 10):
            for adapt, word in ((0, 'no'), (1, 'yes')):
                words, characters, keys, letters = simulate(arguments, text, predictions, adapt)
                print('| %s | %d | %d | %s | %.1f %% | %.1f %% | %.1f |'
                      % (Path(text).name, words, predictions, word, characters, keys, letters))


if __name__ == '__main__':
    main()
