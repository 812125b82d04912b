#!/usr/bin/python3
"""What is written in shares the desktop with our program undisturbed: through hundreds of presses, when our program is
killed, when the other program dies or is slow, and when the person changes quickly between programs.

The third word of the command line is the number of presses.
"""

import signal
import sys
import time

from desktop import Program, wait_for
from other_programs import Mousepad, Xterm, attached, changes, click_keys
from story import expect, letters, play, prepare_data, set_options, use_words

KEYBOARD = """LINHA Palavras
GRUPO Palavras
TECLA TECLA_PREDICAO
LINHA Texto
GRUPO Texto
""" + letters('abc') + """TECLA TECLA_NORMAL espaço espaço Space
TECLA TECLA_NORMAL <Nenhum> maiúscula Shift
TECLA TECLA_NORMAL Longa longa %s
TECLA TECLA_NORMAL Outro outro Outro.tec
"""
OTHER = """LINHA Outro
GRUPO Outro
TECLA TECLA_NORMAL Letras letras Letras.tec
"""
LONG = 'a história é longa e não acaba; ' * 20
OPTIONS = {'NOME_TECLADO': 'Letras', 'TEMPO_DE_PREDICAO': 200, 'POSICAO_INICIAL_JANELA_Y': 460, 'REGISTAR_EVENTOS': 1,
           'NOME_SINTETIZADOR_FALA': 'Nenhum'}


def prepare(desktop):
    prepare_data(desktop)
    (desktop.data / 'Letras.tec').write_text(KEYBOARD % LONG.replace(' ', ';;;'), 'cp1252')
    (desktop.data / 'Outro.tec').write_text(OTHER, 'cp1252')
    use_words(desktop, 'tudo 5\n')
    set_options(desktop, OPTIONS)


def through_many_presses(desktop, ondrilo, presses):
    with attached(desktop, 'Terminal'):
        terminal = Xterm(desktop, setting=Xterm.REPORTS_FOCUS)
    terminal.clear()
    centres = {letter: ondrilo.centre(ondrilo.key(letter if letter != ' ' else 'espaço')) for letter in 'abc '}
    written = ('abcacb ' * presses)[:presses]
    for number, letter in enumerate(written):
        # The next one only when this one has come: a slow window manager sends clicks to where the pointer went.
        desktop.click(*centres[letter])
        wait_for(lambda: len(terminal.bytes()) > number, 'the letter %d' % number)
        if number % 100 == 99:
            terminal.expect_text(written[:number + 1])
    terminal.expect_bytes(written.encode())
    with attached(desktop, 'INTERNAL_WORD_PROCESSOR'):
        terminal.close()


def rest(terminal):
    """Until no key comes any more, also not by a repeat of one that is held."""
    def rests():
        before = terminal.bytes()
        time.sleep(0.7)
        return terminal.bytes() == before
    wait_for(rests, 'the end of all keys')
    terminal.clear()


def killed_in_the_middle(desktop, program, ondrilo):
    with attached(desktop, 'Terminal'):
        terminal = Xterm(desktop)
    ondrilo.click('maiúscula')
    wait_for(lambda: ondrilo.is_lit('maiúscula'), 'the Shift')
    ondrilo.click('longa')
    wait_for(terminal.bytes, 'the beginning of the long text')
    ondrilo.process.kill()
    ondrilo.process.wait(10)
    terminal.focus()
    rest(terminal)
    desktop.press('F5', 'a')
    terminal.expect_bytes(b'\x1b[15~a')
    terminal.clear()

    ondrilo = Program(desktop, program)
    with attached(desktop, terminal.name):
        terminal.click()
    ondrilo.click('a')
    desktop.press('F5', 'b')
    ondrilo.click('c')
    terminal.expect_text('abc')
    terminal.clear()
    return ondrilo, terminal


def left_in_the_middle(desktop, ondrilo, terminal):
    """The rest of the long text goes wherever the focus goes when the other program dies."""
    with attached(desktop, 'Breve'):
        short_lived = Xterm(desktop, 'Breve')
    ondrilo.click('longa')
    wait_for(short_lived.bytes, 'the beginning of the long text')
    with attached(desktop, terminal.name):
        short_lived.close()
        terminal.focus()
    rest(terminal)
    ondrilo.click('a')
    terminal.expect_text('a')


def slow(desktop, ondrilo):
    with attached(desktop, 'Mousepad'):
        editor = Mousepad(desktop)
    editor.process.send_signal(signal.SIGSTOP)
    stopped = time.monotonic()
    click_keys(ondrilo, 'a', 'b', 'outro')
    ondrilo.key('letras', 1)
    click_keys(ondrilo, 'letras', 'c')
    time.sleep(max(0, 2 - (time.monotonic() - stopped)))
    editor.process.send_signal(signal.SIGCONT)
    editor.expect_text('abc')
    return editor


def changes_fast(desktop, ondrilo, terminal, editor):
    def passes_by():
        """Whether the terminal had the focus for less than the time in which a window settles."""
        with attached(desktop, 'INTERNAL_WORD_PROCESSOR'):
            ondrilo.click_element(ondrilo.editor())
        before[:] = changes(desktop)
        terminal.focus()
        came = time.monotonic()
        editor.focus()
        return time.monotonic() - came < 0.3
    before = []
    wait_for(passes_by, 'a quick change of windows', 60)
    wait_for(lambda: len(changes(desktop)) > len(before), 'the settled window as target')
    time.sleep(1.2)  # time for a second one, if there were any
    names = changes(desktop)[len(before):]
    expect(len(names) == 1 and 'Mousepad' in names[0], 'the targets were %r' % names)
    ondrilo.click('a')
    editor.expect_text('abca')


def story(desktop, program):
    prepare(desktop)
    ondrilo = Program(desktop, program)
    through_many_presses(desktop, ondrilo, int(sys.argv[3]))
    ondrilo, terminal = killed_in_the_middle(desktop, program, ondrilo)
    left_in_the_middle(desktop, ondrilo, terminal)
    editor = slow(desktop, ondrilo)
    changes_fast(desktop, ondrilo, terminal, editor)
    expect(ondrilo.quit() == 0, 'the program did not end well')


play(story)
