#!/usr/bin/python3
"""Every kind of key, with all its stages, by click and by hot key, as the event log tells it."""

from desktop import Program, wait_for
from story import expect, play, prepare_data, set_options

BOARD = r'''
LINHA Predições
GRUPO Predições
TECLA TECLA_PREDICAO
TECLA TECLA_PREDICAO_FRASE
TECLA TECLA_PREDICAO_FRASE
LINHA Pictogramas
GRUPO Pictogramas
TECLA TECLA_PREDICAO_IMAGEM
TECLA TECLA_PREDICAO_FRASE_IMAGENS
LINHA Teclas
GRUPO Teclas
TECLA TECLA_NORMAL ó letra;;;ó ó
TECLA TECLA_IMAGEM CAT_IMG_Casa\cama.bmp cama CAT_IMG_Casa\cama.bmp
TECLA TECLA_IMAGEM CAT_IMG_Casa\cama.bmp:CAT_IMG_Casa\casa.bmp os;;;dois CAT_IMG_Casa\cama.bmp:CAT_IMG_Casa\casa.bmp
TECLA TECLA_NORMAL abreviatura abreviatura Tab
LINHA Comandos
GRUPO Comandos
TECLA TECLA_NORMAL limpar limpar [Limpar-Area-Trabalho]
TECLA TECLA_NORMAL palavra palavra [Apagar-Palavra]
TECLA TECLA_NORMAL frase frase [Apagar-Frase]
TECLA TECLA_NORMAL mais mais [Mostrar-Predições-Seguintes]
LINHA Mais
GRUPO Mais
TECLA TECLA_NORMAL ouvir ouvir [Sintetizar-Fala-Area-Trabalho]
TECLA TECLA_NORMAL descrição descrição [Sintetizar-Descrição-Tecla]
TECLA TECLA_NORMAL sequência sequência {Ctrl+a}
TECLA TECLA_NORMAL programa programa /bin/true.com
TECLA TECLA_NORMAL outro outro Figuras.tec
'''
# Pictograms are predicted from the boards that can be reached.
PICTURES = r'''
LINHA Figuras
GRUPO Figuras
TECLA TECLA_IMAGEM CAT_IMG_Casa\agua.bmp água CAT_IMG_Casa\agua.bmp
TECLA TECLA_IMAGEM CAT_IMG_Casa\comer.bmp comer CAT_IMG_Casa\comer.bmp
TECLA TECLA_NORMAL perfil perfil [Alterar-Perfil-Utilizador;;;UmManipulo]
'''
VOCABULARY = {'geral.pal': '[comer] 1\n[água] 1\n___ 1\nolá 9\n', 'geral.par': '___ [água] 5\n___ olá 9\n',
              'geral.frs': '[água]|[comer] 1\n___ 1\nbom|dia 3\ntudo|bem? 2\n',
              'geral.paf': '___ [água]|[comer] 1\n___ bom|dia 5\n___ tudo|bem? 4\n', 'generico.abr': 'bd bom dia\n'}
OPTIONS = {'REGISTAR_EVENTOS': 1, 'TEMPO_DE_PREDICAO': 200, 'NOME_TECLADO': 'Tudo', 'OUVIR_ANTES_COMPLETAR': 1,
           'VER_ANTES_COMPLETAR': 1, 'OUVIR_DEPOIS_COMPLETAR': 1, 'TECLAS_COMPLETAR': 112,
           'TECLA_EXPANSAO_ABREVIATURAS': 'Tab', 'ADAPTACAO_UTILIZADOR': 0}
# The predicted kinds, number and address of their key, and their place and text in the log; pictograms cannot be
# shown.
PREDICTED = (('WORD', 0, '0.0.0', '0_0_olá', True), ('WORD_SEQUENCE', 1, '0.0.1', '0_0_bom_dia', True),
             ('SENTENCE', 2, '0.0.2', '0_1_tudo_bem?', True), ('IMAGE', 3, '1.0.0', '0_0_água', False),
             ('IMAGE_SENTENCE', 4, '1.0.1', '0_0_água_comer', False))
KEYS = (('TEXT_KEY', 5, '2.0.0', 'ó', True), ('IMAGE_KEY', 6, '2.0.1', 'cama', False),
        ('IMAGE_SENTENCE_KEY', 7, '2.0.2', 'os_dois', False))
COMMANDS = (('limpar', ['CLEAR_INTERNAL_WORD_PROCESSOR']), ('palavra', ['DELETE_WORD']), ('frase', ['DELETE_SENTENCE']),
            ('mais', ['NEXT_PREDICTIONS']), ('descrição', ['SPEAK_KEY_DESCRIPTION']))
EXPAND, CLEAR = 8, 9


def stages(names, place, is_shown):
    """What two presses log: heard and shown, then chosen and heard."""
    first, shown, chosen, last = names
    return [name + '_' + place for name in (first, shown if is_shown else None, chosen, last) if name]


def story(desktop, program):
    prepare_data(desktop)
    for name, board in (('Tudo', BOARD), ('Figuras', PICTURES)):
        (desktop.data / (name + '.tec')).write_text(board, 'cp1252')
    for name, text in VOCABULARY.items():
        (desktop.data / name).write_text(text, 'cp1252')
    set_options(desktop, OPTIONS)
    ondrilo = Program(desktop, program)
    log = next(iter(desktop.data.glob('generico *.log')))

    def lines(event):
        body = log.read_text('cp1252').split('$$$ End Header\n\n')[1]
        return [line.split(' ')[3:5] for line in body.splitlines() if ' "" %s ' % event in line]

    def check(event, act, wanted, key=None):
        """Acts, and compares the types, and the key, that the log then tells of that event."""
        before = len(lines(event))
        act()
        wait_for(lambda: len(lines(event)) >= before + len(wanted), '%r in the log' % wanted)
        told = lines(event)[before:]
        expect([line[0] for line in told] == wanted, 'the log tells %r, not %r' % (told, wanted))
        expect(key is None or all(line[1] == key for line in told), 'not all of %r are of key %s' % (told, key))

    def click(number):
        push_button = ondrilo.atspi.Role.PUSH_BUTTON
        ondrilo.click_element(ondrilo.all(lambda e: e.get_role() == push_button)[number])

    def start_anew():
        click(CLEAR)
        wait_for(lambda: ondrilo.keys()[:5] == ['olá', 'bom dia', 'tudo bem?', 'água', 'água comer'],
                 'the first predictions')

    wait_for(lambda: 'olá' in ondrilo.keys(), 'the first predictions')
    for kind, number, key, place, is_shown in PREDICTED:
        middle = 'PREDICTED_%s_FROM_LIST_' % kind
        wanted = stages(('SYNTHESIZE_' + middle + 'BEFORE_COMPLETATION', 'SHOW_' + middle + 'BEFORE_COMPLETATION',
                         'PREDICTED_%s_SELECTION' % kind, 'SYNTHESIZE_' + middle + 'AFTER_COMPLETATION'),
                        place, is_shown)
        check('LEFT_MOUSE_DOWN_KEY', lambda: (click(number), click(number)), wanted, key)
        start_anew()
        if is_shown:
            hot_key = 'F%d' % (number + 1)
            check('KEY_DOWN_' + hot_key, lambda: desktop.press(hot_key, hot_key), wanted, key)
            start_anew()
    for kind, number, key, text, is_shown in KEYS:
        wanted = stages(('SYNTHESIZE_%s_BEFORE_SELECTION' % kind, 'SHOW_%s_BEFORE_SELECTION' % kind,
                         '%s_SELECTION' % kind, 'SYNTHESIZE_%s_AFTER_SELECTION' % kind), text, is_shown)
        check('LEFT_MOUSE_DOWN_KEY', lambda: (click(number), click(number)), wanted, key)
        start_anew()

    desktop.press('b', 'd')
    ondrilo.expect_text('bd')
    expansion = stages(['%sABBREVIATION_%s' % name for name in (
        ('SYNTHESIZE_', 'EXPANSION_BEFORE_EXPANSION'), ('SHOW_', 'EXPANSION_BEFORE_EXPANSION'), ('', 'SELECTION'),
        ('SYNTHESIZE_', 'EXPANSION_AFTER_EXPANSION'))], 'bd_bom_dia', True)
    check('LEFT_MOUSE_DOWN_KEY', lambda: (click(EXPAND), click(EXPAND)), expansion, '2.0.3')
    ondrilo.expect_text('bom dia ')
    check('KEY_DOWN_TAB', lambda: desktop.press('Tab'), ['ABBREVIATION_NOT_FOUND_'], '')

    check('LEFT_MOUSE_DOWN_KEY', lambda: ondrilo.click('ouvir'),
          ['COMMAND_EXECUTION_SPEAK_ALL', 'COMMAND_EXECUTION_SYNTHESIZE_ALL_bom_dia'])
    for name, types in COMMANDS:
        check('LEFT_MOUSE_DOWN_KEY', lambda: ondrilo.click(name), ['COMMAND_EXECUTION_' + word for word in types])
    for name, wanted in (('sequência', 'KEY_SEQUENCE_EXECUTION_{Ctrl+a}'),
                         ('programa', 'PROGRAM_EXECUTION_/bin/true.com'),
                         ('outro', 'ON_SCREEN_KEYBOARD_CALL_Figuras'),
                         ('perfil', 'COMMAND_EXECUTION_CHANGE_USER_PROFILE')):
        check('LEFT_MOUSE_DOWN_KEY', lambda: ondrilo.click(name), [wanted])
    wait_for(lambda: '$$$ End Body' in log.read_text('cp1252'), 'the end of the log')
    expect(ondrilo.quit() == 0, 'the program did not end well')


play(story)
