#!/usr/bin/python3
"""What keys do beyond writing: commands, links, key sequences and programs, in the editor and in another program.

The other program is a terminal that writes every byte it gets into a file. It reports a loss of its focus as
bytes too, so that a click on a key that takes the focus away for a moment shows in the file.
"""

import os
import signal
import time

from desktop import Program, wait_for
from other_programs import Xterm
from story import copy_profile, expect, play, prepare_data, set_options, use_words

KEYBOARD = """LINHA Palavras
GRUPO Palavras
TECLA TECLA_PREDICAO
TECLA TECLA_PREDICAO
LINHA Texto
GRUPO Texto
TECLA TECLA_NORMAL a a a
TECLA TECLA_NORMAL p p p
TECLA TECLA_NORMAL <Nenhum> maiúscula Shift
TECLA TECLA_NORMAL nada inactiva n 0
GRUPO Comandos
TECLA TECLA_NORMAL Palavra palavra [Apagar-Palavra;;;de;;;vez]
TECLA TECLA_NORMAL Frase frase [Apagar-Frase]
TECLA TECLA_NORMAL Limpar limpar [Limpar-Area-Trabalho]
TECLA TECLA_NORMAL Mais mais [Mostrar-Predições-Seguintes]
LINHA Outros
GRUPO Comandos
TECLA TECLA_NORMAL Registo registo [Trocar-Modo-Logging]
TECLA TECLA_NORMAL Ana ana [Alterar-Perfil-Utilizador;;;ana]
TECLA TECLA_NORMAL Sair sair [Sair-Aplicação]
TECLA TECLA_NORMAL Outro outro outro.TEC
LINHA Teclas
GRUPO Sequencias
TECLA TECLA_NORMAL Duas duplicar {Ctrl+a;;;Ctrl+c;;;Direita;;;Ctrl+v}
TECLA TECLA_NORMAL Teclas sequência {Ctrl+a;;;Ctrl+c;;;Enter;;;a;;;Shift+b;;;Tab;;;Esquerda}
TECLA TECLA_NORMAL Mal mal {Ctrl+Shift+;;;+Alt;;;{}}
GRUPO Programas
TECLA TECLA_NORMAL Guiao guião FOLDER/faz;;;isto.sh
"""
BACK = 'LINHA Volta\nGRUPO Volta\nTECLA TECLA_NORMAL Volta volta Comandos.tec\n'


def prepare(desktop):
    prepare_data(desktop)
    (desktop.folder / 'faz isto.sh').write_text('echo guião >>%s\n' % (desktop.folder / 'prova'))
    (desktop.data / 'Comandos.tec').write_text(KEYBOARD.replace('FOLDER', str(desktop.folder)), 'cp1252')
    (desktop.data / 'outro.tec').write_text(BACK, 'cp1252')
    use_words(desktop, 'pato 9\npêra 8\nporta 7\nprato 6\n')
    # "Tab" is to be written.
    set_options(desktop, {'NOME_TECLADO': 'Comandos', 'TECLA_EXPANSAO_ABREVIATURAS': 'Num9'})
    copy_profile(desktop, 'ana')


def commands(desktop, ondrilo):
    desktop.xdotool('type', 'ola mundo. bom dia')
    ondrilo.expect_text('ola mundo. bom dia')
    ondrilo.click('palavra')
    ondrilo.expect_text('ola mundo. bom ')
    ondrilo.click('frase')
    ondrilo.expect_text('ola mundo. ')
    ondrilo.click('limpar')
    ondrilo.expect_text('')

    ondrilo.click('p')
    wait_for(lambda: ondrilo.keys()[:2] == ['pato', 'pêra'], 'the first predictions')
    ondrilo.click('mais')
    wait_for(lambda: ondrilo.keys()[:2] == ['porta', 'prato'], 'the next predictions')
    ondrilo.click('outro')
    wait_for(lambda: ondrilo.keys() == ['volta'] and '(outro)' in ondrilo.title(), 'the linked keyboard')
    ondrilo.click('volta')
    wait_for(lambda: '(Comandos)' in ondrilo.title(), 'the way back')
    ondrilo.expect_text('p')

    ondrilo.click('duplicar')
    ondrilo.expect_text('pp')
    ondrilo.click('limpar')
    for key in ('maiúscula', 'a', 'a', 'maiúscula', 'maiúscula', 'a'):
        ondrilo.click(key)
    ondrilo.expect_text('Aaa')
    expect(not ondrilo.is_lit('maiúscula'), 'the key of the Shift stayed lit')

    ondrilo.click('registo')
    wait_for(lambda: '(Logging Ligado)' in ondrilo.title() and ondrilo.is_lit('registo'), 'logging switched on')
    ondrilo.click('ana')
    wait_for(lambda: 'ana (Comandos) (Logging Desligado)' in ondrilo.title(), 'the profile "ana"')
    expect('REGISTAR_EVENTOS 1\n' in (desktop.data / 'generico.cfg').read_text('cp1252'), 'the option was not saved')


def beside_another_program(desktop, ondrilo):
    time.sleep(0.7)  # the target is attached half a second after the session's start
    for key in ('a', 'p', 'a'):
        ondrilo.click(key)
    ondrilo.expect_text('apa')
    terminal = Xterm(desktop, setting=Xterm.REPORTS_FOCUS)

    def click(name, button=1):
        ondrilo.click(name, button)
        expect(terminal.is_active(), 'a click on "%s" took the focus' % name)

    for button in (1, 2, 3):
        click('inactiva', button)
    for button in (2, 3):
        click('sequência', button)
    click('mal')
    click('limpar')
    click('sequência')
    terminal.expect_bytes(b'\x01\x03\raB\t\x1b[D')
    click('guião')
    proof = desktop.folder / 'prova'
    wait_for(lambda: proof.exists() and proof.read_text() == 'guião\n', 'the script')
    terminal.expect_bytes(b'\x01\x03\raB\t\x1b[D')
    ondrilo.expect_text('apa')
    click('ana')
    click('mal')
    return terminal


def story(desktop, program):
    prepare(desktop)
    ondrilo = Program(desktop, program)
    commands(desktop, ondrilo)
    terminal = beside_another_program(desktop, ondrilo)

    for number in (signal.SIGINT, signal.SIGTERM, signal.SIGKILL):
        ondrilo.click_element(ondrilo.editor())
        time.sleep(0.7)  # as above
        ondrilo.click('maiúscula')
        wait_for(lambda: ondrilo.is_lit('maiúscula'), 'the Shift')
        os.kill(ondrilo.process.pid, number)
        code = ondrilo.process.wait(10)
        expect(code == (-number if number == signal.SIGKILL else 0), 'the program ended with %d' % code)
        terminal.focus()
        terminal.wait_until_it_writes()
        ondrilo = Program(desktop, program)

    ondrilo.click('sair')
    expect(ondrilo.process.wait(10) == 0, 'the program did not end well')


play(story)
