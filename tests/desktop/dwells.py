#!/usr/bin/python3
"""A person who cannot click writes by resting the pointer on keys, and confirms what was shown by resting longer."""

import time

from desktop import Program, wait_for
from story import expect, play, prepare_data, set_option, use_words


def story(desktop, program):
    prepare_data(desktop)
    # One word only, so that it stays on its key.
    use_words(desktop, 'olá 4\n')
    (desktop.data / 'generico.acs').write_text('TEMPO_PERMANENCIA 600\n')
    ondrilo = Program(desktop, program)

    def rest_on(name):
        extents = ondrilo.key(name).get_extents(ondrilo.atspi.CoordType.SCREEN)
        desktop.xdotool('mousemove', extents.x + extents.width // 2, extents.y + extents.height // 2)

    rest_on('o')
    ondrilo.expect_text('o')
    time.sleep(1.5)
    expect(ondrilo.text() == 'o', 'a key was pressed twice without the pointer leaving it')
    rest_on('l')
    ondrilo.expect_text('ol')
    wait_for(lambda: 'olá' in ondrilo.keys(), 'the prediction "olá"')
    rest_on('olá')
    ondrilo.expect_text('olá ')

    # Another keyboard comes under the pointer that rests: it has to move before anything is pressed.
    rest_on('Letras com acentos')
    wait_for(lambda: 'a com acento agudo' in ondrilo.keys(), 'the linked keyboard')
    keys = ondrilo.keys()
    time.sleep(1.5)
    expect(ondrilo.keys() == keys and ondrilo.text() == 'olá ', 'a key under the resting pointer was pressed')
    rest_on('a com acento agudo')
    ondrilo.expect_text('olá á')
    expect(ondrilo.quit() == 0, 'the program did not end well')

    set_option(desktop, 'VER_ANTES_COMPLETAR', 1)
    ondrilo = Program(desktop, program)
    rest_on('o')
    time.sleep(0.9)
    expect(ondrilo.text() == '', 'the key was not only shown')
    ondrilo.expect_text('o')
    expect(ondrilo.quit() == 0, 'the program did not end well')


play(story)
