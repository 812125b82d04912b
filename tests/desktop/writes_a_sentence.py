#!/usr/bin/python3
"""A person writes "Olá. Tudo bem" with clicks and keys, and chooses predicted words by click and hot key."""

from desktop import Program
from story import expect, play, prepare_data, set_option, use_words


def story(desktop, program):
    prepare_data(desktop)
    # A vocabulary in which each beginning has one continuation only.
    use_words(desktop, 'bem 4\ntudo 5\n', 'tudo bem 3\n')
    set_option(desktop, 'TEMPO_DE_PREDICAO', 200)

    ondrilo = Program(desktop, program)
    expect(ondrilo.title().startswith('Ondrilo V3.0: generico (QwertySimples) (Logging Desligado)'),
           'the title is ' + ondrilo.title())

    ondrilo.click('Maiúscula')
    ondrilo.click('o')
    ondrilo.click('l')
    ondrilo.expect_text('Ol')
    ondrilo.click('Letras com acentos')
    ondrilo.click('a com acento agudo')
    ondrilo.click('Ponto final')
    ondrilo.expect_text('Olá.')
    ondrilo.click('Letras')
    desktop.press('space', 'shift+t', 'u')
    ondrilo.expect_text('Olá. Tu')

    # By click: the key's name is the predicted word itself.
    ondrilo.click('tudo')
    ondrilo.expect_text('Olá. Tudo ')
    # By hot key: "bem" is the only successor of "tudo", so it stands on the first key.
    ondrilo.key('bem')
    desktop.press('F1')
    ondrilo.expect_text('Olá. Tudo bem ')
    desktop.press('BackSpace')
    ondrilo.expect_text('Olá. Tudo bem')

    # Whatever the speed, nothing is lost or reordered.
    desktop.press('Return')
    desktop.xdotool('type', '--delay', '1', 'a raposa salta sobre o muro')
    ondrilo.expect_text('Olá. Tudo bem\na raposa salta sobre o muro')

    expect(ondrilo.quit() == 0, 'the program did not end well')
    learned = (desktop.data / 'generico.pal').read_text('cp1252').split('\n')
    for word in ('tudo', 'olá', 'raposa', 'salta', 'sobre'):
        expect(word + ' 1' in learned, '"%s" was not learned once, in %r' % (word, learned))
    expect('tudo bem 1' in (desktop.data / 'generico.par').read_text('cp1252'), 'the pair was not learned')


play(story)
