#!/usr/bin/python3
"""A therapist sets the program up for Rita without touching a file, tries it, and locks it."""

from desktop import Program, wait_for
from dialogs import Dialog, choose
from story import expect, play, prepare_data, use_words

ORANGE = '#ffcc66'
PASSWORD = '$Kalvimo7R$'
LOCKED = 'As alterações ao sistema estão bloqueadas! Este bloqueio pode ser retirado em Opções Gerais.'
LOCK = 'Permitir Alterações às Configurações do Sistema:'
PREDICTION_COLOUR = 'Cor de Fundo 1  (Teclas de Predição)'


def prepare(desktop):
    prepare_data(desktop)
    use_words(desktop, 'beber 3\nbola 5\nbom 4\n')


def choose_options(ondrilo):
    choose(ondrilo, 'Perfil', 'Opções do Perfil...')
    options = Dialog(ondrilo, 'Opções do Perfil de Utilizador')
    options.click('Teclado de Ecrã')
    options.pick('LetrasAcentos', instead_of='QwertySimples')
    options.click('Cores e Tipo de Letra')
    options.click(PREDICTION_COLOUR)
    colours = Dialog(ondrilo, PREDICTION_COLOUR)
    colours.write('HTML:', ORANGE)
    colours.close()
    options.click('Predição')
    options.write('Máximo de Predições de Palavras', '2')
    options.close()
    wait_for(lambda: 'rita (LetrasAcentos)' in ondrilo.title(), 'the keyboard that was chosen')


def add_words(ondrilo):
    choose(ondrilo, 'Perfil', 'Dicionário do Perfil', 'Palavras e Pictogramas...')
    words = Dialog(ondrilo, 'Palavras e Pictogramas')
    words.enter('Xilofone')
    words.control('xilofone : 1')
    words.close()
    choose(ondrilo, 'Perfil', 'Dicionário do Perfil', 'Abreviaturas...')
    abbreviations = Dialog(ondrilo, 'Abreviaturas')
    abbreviations.enter('bd')
    abbreviations.enter('bom dia')
    abbreviations.control('bd : bom dia')
    abbreviations.close()


def write(desktop, ondrilo):
    ondrilo.click('b')
    wait_for(lambda: ondrilo.keys()[:2] == ['bola', 'bom'], 'two predictions')
    expect('beber' not in ondrilo.keys(), 'a third word was predicted')
    wait_for(lambda: ondrilo.colour('bola') == ORANGE, 'the colour of the prediction keys')
    ondrilo.click('d')
    desktop.press('Tab')
    ondrilo.expect_text('bom dia ')
    ondrilo.click('x')
    ondrilo.click('xilofone')
    ondrilo.expect_text('bom dia xilofone ')


def turn_lock(ondrilo, options):
    options.click(LOCK)
    Dialog(ondrilo, 'Bloquear Alterações ao Sistema').enter(PASSWORD)


def lock_and_unlock(ondrilo):
    choose(ondrilo, 'Ficheiro', 'Opções Gerais...')
    options = Dialog(ondrilo, 'Opções Gerais')
    turn_lock(ondrilo, options)
    options.close()

    for path in (('Opções do Perfil...',), ('Dicionário do Perfil', 'Palavras e Pictogramas...')):
        choose(ondrilo, 'Perfil', *path)
        Dialog(ondrilo, LOCKED).close()

    choose(ondrilo, 'Ficheiro', 'Opções Gerais...')
    password = Dialog(ondrilo, 'Bloquear Alterações ao Sistema')
    password.enter('kalvimo')
    Dialog(ondrilo, 'Senha incorrecta!').close()
    password.wait_for_end()

    choose(ondrilo, 'Ficheiro', 'Opções Gerais...')
    Dialog(ondrilo, 'Bloquear Alterações ao Sistema').enter(PASSWORD)
    Dialog(ondrilo, 'Opções Gerais').close()
    choose(ondrilo, 'Perfil', 'Dicionário do Perfil', 'Palavras e Pictogramas...')
    Dialog(ondrilo, 'Palavras e Pictogramas').close('Cancelar')


def story(desktop, program):
    prepare(desktop)
    ondrilo = Program(desktop, program)
    choose(ondrilo, 'Perfil', 'Novo Perfil...')
    Dialog(ondrilo, 'Novo Perfil de Utilizador').enter('rita')
    wait_for(lambda: 'rita (QwertySimples)' in ondrilo.title(), 'the new profile')

    choose_options(ondrilo)
    add_words(ondrilo)
    write(desktop, ondrilo)
    lock_and_unlock(ondrilo)

    expect(ondrilo.quit() == 0, 'the program did not end well')
    kept = {name: (desktop.data / name).read_text('cp1252') for name in ('rita.cfg', 'rita.pal', 'rita.abr')}
    expect('NOME_TECLADO LetrasAcentos\n' in kept['rita.cfg'], 'the keyboard was not kept')
    expect('xilofone 2\n' in kept['rita.pal'], 'the word was not kept and learned: %r' % kept['rita.pal'])
    expect(kept['rita.abr'] == 'bd bom dia\n', 'the abbreviation was not kept')


play(story)
