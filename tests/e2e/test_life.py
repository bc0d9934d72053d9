"""Start, second start, close and start again."""
import os

import icons

TELLS_SO = 'Program is already running.'


def test_a_second_start_is_refused_and_the_first_goes_on(session):
    first = session.start()
    second = session.start(window=False)
    dialog = second.waitForDialog()
    assert second.dialogText(dialog).startswith(TELLS_SO), second.dialogText(dialog)
    second.keys('Return')
    assert second.waitForEnd() == 0
    assert first.mainForm()


def test_closing_with_unsaved_work_asks_and_no_stays(session):
    program = session.start()
    program.command('ctrl+n')
    program.wait(lambda: program.value('Icon size') == '32 x 32', 'the new icon')
    session.click(program.pixelPoint(3, 3, 32))
    program.command('alt+F4')
    dialog = program.waitForDialog()
    assert program.dialogText(dialog).startswith('The following is not saved yet:'), program.dialogText(dialog)
    program.keys('alt+n')
    program.waitForNoDialog()
    assert program.mainForm()
    program.command('alt+F4')
    program.waitForDialog()
    program.keys('alt+y')
    assert program.waitForEnd() == 0


def test_settings_survive_and_what_is_foreign_in_the_file_stays(session):
    settings = session.settingsPath()
    os.makedirs(os.path.dirname(settings), exist_ok=True)
    with open(settings, 'w', encoding='utf-8') as file:
        file.write('; kept by hand\n[Elsewhere]\nKey=Value\n')
    program = session.start()
    program.menu('Options', 'Prompt To Save On Icons Panel Switching')
    program.command('alt+F4')
    program.waitForEnd()
    with open(settings, encoding='utf-8') as file:
        text = file.read()
    assert 'PromptToSave=-1' in text, text
    assert '; kept by hand' in text and '[Elsewhere]\nKey=Value' in text, text


def test_an_opened_file_stands_in_the_history_of_the_next_start(session):
    path = session.path('kept.ico')
    with open(path, 'wb') as file:
        file.write(icons.icon16([[(0, 0, 255)] * 24 for _ in range(24)]))
    program = session.start(path)
    program.wait(lambda: program.value('Icon size') == '24 x 24', 'the icon')
    program.command('alt+F4')
    program.waitForEnd()
    program = session.start()
    program.menuByKeys('alt+f', '1')
    program.wait(lambda: program.value('File') == path, 'the file of the history')
