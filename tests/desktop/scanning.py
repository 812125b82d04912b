#!/usr/bin/python3
"""A person writes, completes, follows a link and changes the profile with two switches, and then writes with one.

The switches are real keys. What is lit is looked up on the screen.
"""

import time

from desktop import Program, wait_for
from story import copy_profile, expect, play, prepare_data, set_option, set_options, use_words

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
PAD_6 = 85  # the key itself: for its symbol xdotool would press and release modifiers too


def prepare(desktop):
    prepare_data(desktop)
    (desktop.data / 'Manipulos.tec').write_text(KEYBOARD, 'cp1252')
    (desktop.data / 'outro.tec').write_text(ONLY_KEY, 'cp1252')
    use_words(desktop, 'olaria 4\n')
    set_options(desktop, {'NOME_TECLADO': 'Manipulos', 'METODO_VARRIMENTO': 'Passo-a-Passo', 'TECLA_MANIPULO1': 'F9',
                          'TECLA_MANIPULO2': 'Num6', 'VELOCIDADE_VARRIMENTO': 2000,
                          'NUMERO_MAXIMO_CICLOS_VARRIMENTO': 5})
    copy_profile(desktop, 'regular')
    set_option(desktop, 'METODO_VARRIMENTO', 'Regular', 'regular')


def story(desktop, program):
    prepare(desktop)
    ondrilo = Program(desktop, program)

    def wait_lit(lit, dark):
        wait_for(lambda: ondrilo.is_lit(lit) and not ondrilo.is_lit(dark), '"%s" lit and "%s" dark' % (lit, dark))

    def step(times=1):
        for _ in range(times):
            desktop.hold('F9')

    def pick(times=1):
        for _ in range(times):
            desktop.hold(PAD_6)

    desktop.press('Num_Lock')
    step(2)
    wait_lit('o', 'apagar')
    pick()
    wait_lit('o', 'l')
    pick()
    wait_lit('o', 'a')
    pick()
    ondrilo.expect_text('o')
    ondrilo.key('olaria')
    step()
    pick()
    wait_lit('olaria', 'o')
    pick()
    ondrilo.expect_text('olaria ')
    step(3)
    wait_lit('outro', 'o')
    pick(2)
    ondrilo.expect_text('')
    step(3)
    pick()
    step(2)
    pick()
    wait_for(lambda: ondrilo.is_lit('maiúscula'), 'the Shift')
    step(2)
    pick(3)
    ondrilo.expect_text('O')
    expect(not ondrilo.is_lit('maiúscula'), 'the key of the Shift stayed lit')
    step(3)
    pick()
    step()
    wait_lit('outro', 'apagar')
    pick()
    wait_for(lambda: ondrilo.keys() == ['perfil'], 'the linked keyboard')
    step()  # the only key
    wait_for(lambda: 'regular (Manipulos)' in ondrilo.title(), 'the profile "regular"')
    time.sleep(0.7)  # the target is attached half a second after the session's start

    step()
    wait_lit('o', 'apagar')
    step()
    wait_lit('o', 'l')
    wait_lit('l', 'o')
    step()
    wait_lit('l', 't')
    wait_lit('t', 'l')
    step()
    ondrilo.expect_text('t')
    expect(ondrilo.quit() == 0, 'the program did not end well')


play(story)
