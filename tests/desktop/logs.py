#!/usr/bin/python3
"""A person whose writing is logged writes by key, hot key, click and switch; the log tells it line by line, follows
in its window, and its metrics hold against its events."""

import re
import subprocess
from pathlib import Path

from desktop import Program, wait_for
from dialogs import choose
from story import expect, play, prepare_data, set_options, use_words

OPTIONS = {'REGISTAR_EVENTOS': 1, 'TEMPO_DE_PREDICAO': 200, 'METODO_VARRIMENTO': 'Inverso', 'TECLA_MANIPULO1': 'F9',
           'LATENCIA_INTERRUPTORES_VARRIMENTO': 0, 'VELOCIDADE_VARRIMENTO': 10000, 'NOME_SINTETIZADOR_FALA': 'Nenhum'}
LINE = re.compile(r'\d\d:\d\d:\d\d\.\d{3} (.*)')


def events(path):
    """The events since the start of the log, without their times."""
    body = path.read_text('cp1252').split('$$$ End Header\n\n')[1].split('$$$ End Body')[0]
    return [LINE.fullmatch(line).group(1) for line in body.splitlines()]


def story(desktop, program):
    prepare_data(desktop)
    use_words(desktop, 'bem 4\ntudo 5\n', 'tudo bem 3\n')
    set_options(desktop, OPTIONS)
    ondrilo = Program(desktop, program)
    expect('(Logging Ligado)' in ondrilo.title(), 'the title does not tell of the log: ' + ondrilo.title())
    log = next(iter(desktop.data.glob('generico *.log')))

    desktop.press('t')
    ondrilo.expect_text('t')
    ondrilo.click('u')
    ondrilo.key('tudo')
    desktop.press('F1')
    ondrilo.expect_text('tudo ')
    ondrilo.click('bem')
    ondrilo.expect_text('tudo bem ')
    told = events(log)
    wanted = [
        '"" SYSTEM_INFO START_LOGGING - - - "-"',
        '"" WORD_PROCESSOR_CHANGE INTERNAL_WORD_PROCESSOR  -  - QwertySimples ""',
        '"" KEY_DOWN_T KEY  -  - QwertySimples ""',
        '"t" CHAR_t CHAR  -  - QwertySimples ""',
    ]
    expect(told[:4] == wanted, 'the log begins with %r' % told[:4])
    expect([line.split(' ')[1:3] for line in told if 'AUTO_KEY' in line] == [
        ['KEY_DOWN_' + key, 'AUTO_KEY'] for key in ('U', 'D', 'O', 'SPACE', 'B', 'E', 'M', 'SPACE')],
        "the system's own keys are %r" % told)

    # The viewer shows what happens from now on.
    choose(ondrilo, 'Ferramentas', 'Registo de Eventos do Sistema', 'Visualizar Registo de Eventos...')
    wait_for(lambda: desktop.windows('Visualizador de Eventos do Sistema'), 'the viewer of the log')
    desktop.xdotool('keydown', 'F9')
    wait_for(lambda: 'START_SCANNING_LINES' in log.read_text('cp1252'), 'the first line of the scan')
    desktop.xdotool('keyup', 'F9')
    wait_for(lambda: ondrilo.all(lambda e: 'START_SCANNING_LINES' in (e.get_name() or ''),
                                 ondrilo.window.get_parent()), 'the line in the viewer')
    wait_for(lambda: 'LINE_SELECTION 0  -' in log.read_text('cp1252'), 'the choice of that line')

    expect(ondrilo.quit() == 0, 'the program did not end well')
    end = log.read_text('cp1252').split('$$$ End Body\n\n')[1].splitlines()
    for line in ('Numero_Teclas_Ecra_Pressionadas 2', 'Numero_Palavras_Completadas 2', 'Numero_Palavras_Escritas 2',
                 'Numero_Activacoes_Manipulos 1', 'Linha_Texto_Final tudo bem '):
        expect(line in end, '"%s" is not in %r' % (line, end))
    tool = Path(program).with_name('ondrilo-tool')
    checked = subprocess.run([tool, 'log', '--file', log, '--replay'], capture_output=True, text=True)
    expect(checked.returncode == 0, 'the metrics do not hold against the events:\n' + checked.stdout)


play(story)
