#!/usr/bin/python3
"""A person writes, completes, follows a link and changes the profile with two switches, and then writes with one.

The switches are real keys. What is lit is looked up on the screen.
"""

import shutil
import subprocess
import time

from desktop import Program, wait_for
from story import expect, play, prepare_data, set_option, use_words

KEYBOARD = """LINHA Palavras
GRUPO Palavras
TECLA TECLA_PREDICAO
TECLA TECLA_PREDICAO
LINHA Letras
GRUPO Vogais
TECLA TECLA_NORMAL o o o
TECLA TECLA_NORMAL a a a
GRUPO Consoantes
TECLA TECLA_NORMAL l l l
TECLA TECLA_NORMAL t t t
LINHA Vazia
LINHA Comandos
GRUPO Comandos
TECLA TECLA_NORMAL Apagar apagar [Limpar-Area-Trabalho]
TECLA TECLA_NORMAL Outro outro outro.tec
TECLA TECLA_NORMAL <Nenhum> maiúscula Shift
"""
ONLY_KEY = """LINHA Perfil
GRUPO Perfil
TECLA TECLA_NORMAL Perfil perfil [Alterar-Perfil-Utilizador;;;regular]
"""
LIT = (0x1B, 0x2A, 0x41)  # COR_LETRAS of the profile, the background of lit keys
PAD_6 = 85  # the key itself: for its symbol xdotool would press and release modifiers too


def prepare(desktop):
    prepare_data(desktop)
    (desktop.data / 'Manipulos.tec').write_text(KEYBOARD, 'cp1252')
    (desktop.data / 'outro.tec').write_text(ONLY_KEY, 'cp1252')
    use_words(desktop, 'olaria 4\n')
    for key, value in {'NOME_TECLADO': 'Manipulos', 'METODO_VARRIMENTO': 'Passo-a-Passo', 'TECLA_MANIPULO1': 'F9',
                       'TECLA_MANIPULO2': 'Num6', 'VELOCIDADE_VARRIMENTO': 2000,
                       'NUMERO_MAXIMO_CICLOS_VARRIMENTO': 5}.items():
        set_option(desktop, key, value)
    for file in desktop.data.glob('generico.*'):
        shutil.copy(file, desktop.data / ('regular' + file.suffix))
    set_option(desktop, 'METODO_VARRIMENTO', 'Regular', 'regular')
    with (desktop.data / 'utils').open('a') as profiles:
        profiles.write('regular\n')


def story(desktop, program):
    prepare(desktop)
    ondrilo = Program(desktop, program)

    def is_lit(name):
        extents = ondrilo.key(name).get_extents(ondrilo.atspi.CoordType.SCREEN)
        pixel = subprocess.run(['import', '-window', 'root', '-crop',
                                '1x1+%d+%d' % (extents.x + 4, extents.y + extents.height - 5), '-depth', '8', 'rgb:-'],
                               check=True, capture_output=True).stdout
        return tuple(pixel) == LIT

    def wait_lit(lit, dark):
        wait_for(lambda: is_lit(lit) and not is_lit(dark), '"%s" lit and "%s" dark' % (lit, dark))

    def switch(key):
        desktop.xdotool('keydown', key)
        time.sleep(0.4)  # longer than latency and ticks
        desktop.xdotool('keyup', key)

    desktop.press('Num_Lock')
    step, pick = (lambda: switch('F9')), (lambda: switch(PAD_6))

    step()
    step()
    wait_lit('o', 'apagar')
    pick()
    wait_lit('o', 'l')
    pick()
    wait_lit('o', 'a')
    pick()
    ondrilo.expect_text('o')
    wait_for(lambda: 'olaria' in ondrilo.keys(), 'the prediction "olaria"')
    step()
    pick()
    wait_lit('olaria', 'o')
    pick()
    ondrilo.expect_text('olaria ')
    for _ in range(3):
        step()
    wait_lit('outro', 'o')
    pick()
    pick()
    ondrilo.expect_text('')
    for _ in range(3):
        step()
    pick()
    step()
    step()
    pick()
    wait_for(lambda: is_lit('maiúscula'), 'the Shift')
    step()
    step()
    for _ in range(3):
        pick()
    ondrilo.expect_text('O')
    expect(not is_lit('maiúscula'), 'the key of the Shift stayed lit')
    for _ in range(3):
        step()
    pick()
    step()
    wait_lit('outro', 'apagar')
    pick()
    wait_for(lambda: ondrilo.keys() == ['perfil'], 'the linked keyboard')
    step()  # the only key
    wait_for(lambda: 'regular (Manipulos)' in ondrilo.title(), 'the profile "regular"')
    time.sleep(0.7)  # the target is attached half a second after the session's start

    switch('F9')
    wait_lit('o', 'apagar')
    switch('F9')
    wait_lit('o', 'l')
    wait_lit('l', 'o')
    switch('F9')
    wait_lit('l', 't')
    wait_lit('t', 'l')
    switch('F9')
    ondrilo.expect_text('t')
    expect(ondrilo.quit() == 0, 'the program did not end well')


play(story)
