#!/usr/bin/python3
"""A person who cannot click writes by resting the pointer on keys."""

import time

from desktop import Program
from story import expect, play, prepare_data, use_words


def story(desktop, program):
    prepare_data(desktop)
    # One word only, so that it stays on its key.
    use_words(desktop, 'olá 4\n')
    (desktop.data / 'generico.acs').write_text('TEMPO_PERMANENCIA 600\n')
    ondrilo = Program(desktop, program)

    ondrilo.rest_on('o')
    ondrilo.expect_text('o')
    time.sleep(1.5)
    expect(ondrilo.text() == 'o', 'a key was pressed twice without the pointer leaving it')
    ondrilo.rest_on('l')
    ondrilo.expect_text('ol')
    ondrilo.rest_on('olá')
    ondrilo.expect_text('olá ')

    # Another keyboard comes under the pointer that rests: it has to move before anything is pressed.
    ondrilo.rest_on('Letras com acentos')
    ondrilo.key('a com acento agudo')
    keys = ondrilo.keys()
    time.sleep(1.5)
    expect(ondrilo.keys() == keys and ondrilo.text() == 'olá ', 'a key under the resting pointer was pressed')
    ondrilo.rest_on('a com acento agudo')
    ondrilo.expect_text('olá á')
    expect(ondrilo.quit() == 0, 'the program did not end well')


play(story)
