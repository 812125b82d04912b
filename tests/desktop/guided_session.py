#!/usr/bin/python3
"""Plays a short session on a private desktop. Run: guided_session.py PROGRAM DELIVERED FOLDER

A person writes a sentence by clicking keys, typing and choosing predicted words; FOLDER then holds a picture
of the screen and the written text.
"""

import shutil
import sys
from pathlib import Path

from desktop import Desktop, Failure, Program, wait_for


def main():
    program, delivered, folder = (Path(word).resolve() for word in sys.argv[1:4])
    shutil.rmtree(folder, ignore_errors=True)
    with Desktop(folder) as desktop:
        desktop.install(delivered)
        shutil.copytree(delivered, desktop.data)
        ondrilo = Program(desktop, program)
        for key in ('Maiúscula', 'o', 'l'):
            ondrilo.click(key)
        wait_for(lambda: 'olá' in ondrilo.keys(), 'the prediction "olá"')
        ondrilo.click('olá')
        ondrilo.expect_text('Olá ')
        desktop.press('t', 'u', 'd')
        wait_for(lambda: 'tudo' in ondrilo.keys(), 'the prediction "tudo"')
        ondrilo.click('tudo')
        ondrilo.expect_text('Olá tudo ')
        desktop.press('b', 'e', 'm')
        ondrilo.click('Ponto de interrogação')
        desktop.press('space')
        ondrilo.click('Maiúscula')
        ondrilo.click('q')
        ondrilo.click('u')
        ondrilo.click('e')
        wait_for(lambda: 'quero' in ondrilo.keys(), 'the prediction "quero"')
        desktop.picture(folder / 'ecra.png')
        ondrilo.click('quero')
        desktop.press('a', 'j', 'u')
        wait_for(lambda: 'ajuda' in ondrilo.keys(), 'the prediction "ajuda"')
        ondrilo.click('ajuda')
        ondrilo.expect_text('Olá tudo bem? Quero ajuda ')
        (folder / 'texto.txt').write_text(ondrilo.text() + '\n')
        ondrilo.quit()
    print('The screen: %s\nThe written text: %s' % (folder / 'ecra.png', folder / 'texto.txt'))


if __name__ == '__main__':
    try:
        main()
    except Failure as failure:
        sys.exit('guided_session: %s' % failure)
