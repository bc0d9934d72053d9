"""Message boxes, file dialogs and the browser as windows of the desktop."""
import os
import re
import shutil
import subprocess

import icons
from forms import EDIT_FACE, Desk, write

FILE_DIALOG = (800, 520)
RED = (255, 0, 0)
RESIZE, MINIMIZE, MAXIMIZE = 0x02, 0x08, 0x10  # bits of the hint about functions


def windowHints(title):
    """What the top window of a title asks of the window manager."""
    ids = subprocess.run(['xdotool', 'search', '--onlyvisible', '--name', f'^{re.escape(title)}$'],
                         capture_output=True, text=True).stdout.split()
    hints = [subprocess.run(['xprop', '-id', window], capture_output=True, text=True).stdout for window in ids]
    return next(text for text in hints if 'WM_TRANSIENT_FOR(WINDOW)' in text)


def numbers(hints, name):
    line = next(line for line in hints.splitlines() if name in line)
    return [int(number, 0) for number in re.findall(r'0x[0-9a-f]+|\b\d+\b', line.split(':' if ':' in line else '=')[-1])]


def test_a_message_box_is_a_dialog_of_one_size(session):
    program = session.start()
    program.command('ctrl+s')
    program.waitForDialog()
    hints = windowHints('Glimmerpane')
    assert '_NET_WM_WINDOW_TYPE(ATOM) = _NET_WM_WINDOW_TYPE_DIALOG' in hints, hints
    assert '_NET_WM_STATE_MODAL' in hints, hints
    assert numbers(hints, 'minimum size') == numbers(hints, 'maximum size'), hints
    functions = numbers(hints, '_MOTIF_WM_HINTS')[1]
    assert functions & (MINIMIZE | MAXIMIZE) == 0, hints
    program.keys('Return')
    program.waitForNoDialog()


def redIn(session, box):
    x, y, width, height = box
    picture = session.picture().crop((x, y, x + width, y + height))
    return sum(1 for pixel in picture.getdata() if pixel[:3] == RED)


def test_the_file_dialog_has_its_size_and_shows_each_file_by_its_icon(session):
    write(session, 'red.ico', icons.icon16([[RED] * 32 for _ in range(32)]))
    write(session, 'broken.ico', b'no icon')
    desk = Desk(session)
    program = desk.program
    program.command('ctrl+o')
    program.waitForFileDialog()
    program.typeInto('File name:', session.path() + os.sep, role='text')
    session.keys('Return')
    dialog = program.waitForDialog()
    assert program.box(dialog)[2:] == FILE_DIALOG, program.box(dialog)
    program.wait(lambda: redIn(session, program.box(dialog)) == 32 * 32, 'the picture of the file')
    names = [control.name for control in program.walk(dialog)]
    assert 'broken.ico' in names, names
    session.keys('Escape')
    program.waitForNoFileDialog()


def test_a_save_says_that_the_folder_is_gone_before_its_dialog_opens(session):
    folder = session.path('sub')
    os.mkdir(folder)
    path = write(session, 'sub/a.ico', icons.icons((16, 4)))
    desk = Desk(session, path)
    desk.waitForIcon(16, path)
    shutil.rmtree(folder)
    desk.program.command('ctrl+s')
    desk.program.answerBox(f'{folder}{os.sep} Folder not found.')
    saved = session.path('again.ico')
    desk.program.answerFileDialog(saved)
    desk.program.wait(lambda: os.path.isfile(saved), 'the saved file')


def test_the_browser_grows_downwards(session):
    path = write(session, 'two.ico', icons.icons((16, 4), (32, 4)))
    desk = Desk(session)
    desk.openIcons(path)
    program = desk.program
    before = program.box(desk.form(EDIT_FACE))
    program.press('Show icons of other sizes')
    program.wait(lambda: program.find('Hide icons of other sizes'), 'the list of other sizes')
    x, y, _, height = program.box(desk.form(EDIT_FACE))
    assert (x, y) == before[:2]
    assert height > before[3]
    desk.exitBrowser()


def test_a_screen_at_twice_the_scale_is_large_enough_by_its_physical_pixels(session):
    program = session.start(within=('env', 'QT_SCALE_FACTOR=2'))
    assert not program.dialogs()
    program.command('alt+F4')
    program.waitForEnd()
