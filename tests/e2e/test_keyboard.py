"""The first use case with the keyboard only: a new icon, a typed colour, painting, erasing and saving."""
import os

from PIL import Image

import icons
from forms import Desk, write
from session import waitUntil

RED = (255, 0, 0, 255)
CLEAR = 0
ROUNDS = 6


def pixels(path):
    with Image.open(path) as image:
        return image.convert('RGBA')


def test_an_icon_is_drawn_and_saved_without_the_mouse(session):
    program = session.start()
    program.command('ctrl+e')
    program.wait(lambda: program.value('Icon size') == '16 x 16', 'the new icon')
    program.menuByKeys('alt+p', 'd')
    program.typeInto('Color value', 'ff', becomes='FF')
    session.keys('Return')
    program.command('F2', 'F4')
    program.goTo('Editing Area')
    session.keys('Home', 'Page_Up', 'space', 'Right', 'Right', 'space', 'End', 'Page_Down', 'space')
    session.keys('F5', 'Home', 'Page_Up', 'space')
    saved = session.path('by keyboard.ico')
    program.command('ctrl+t')
    program.answerFileDialog(saved)
    program.wait(lambda: os.path.isfile(saved), 'the saved file')
    image = pixels(saved)
    assert image.getpixel((0, 0))[3] == CLEAR
    assert image.getpixel((2, 0)) == RED
    assert image.getpixel((15, 15)) == RED
    assert sum(1 for pixel in image.getdata() if pixel[3]) == 2


def test_keys_of_commands_that_need_an_icon_tell_that_there_is_none(session):
    program = session.start()
    program.command('ctrl+s')
    dialog = program.waitForDialog()
    assert program.dialogText(dialog) == 'No icon in Editing Area yet'
    program.keys('Return')
    program.waitForNoDialog()


def test_the_keys_come_back_every_time_a_file_was_replaced(session):
    path = write(session, 'again.ico', icons.icons((32, 4)))
    desk = Desk(session, path)
    desk.waitForIcon(32, path)
    for _ in range(ROUNDS):
        desk.program.command('ctrl+t')
        desk.program.chooseFile(path, replace=True)  # the question and the dialog under it close at once
        desk.program.waitForNoDialog()


def test_the_menu_bar_shows_where_the_keys_are_and_lets_commands_through(session):
    program = session.start()
    bar = program.box(program.need('File', role='menu item'))
    middle = (bar[0] + 2, bar[1] + bar[3] // 2)
    plain = session.colorAt(middle)
    for keys in (['F10'], ['alt+f', 'Escape']):
        session.keys(*keys)
        waitUntil(lambda: session.colorAt(middle) != plain, 'the mark on the entry')
        session.keys('Escape')
        waitUntil(lambda: session.colorAt(middle) == plain, 'the menu bar without the keys')
    session.keys('F10', 'F10')
    waitUntil(lambda: session.colorAt(middle) == plain, 'the menu bar without the keys')
    session.keys('F10', 'ctrl+e')
    program.wait(lambda: program.value('Icon size') == '16 x 16', 'the new icon')
    assert session.colorAt(middle) == plain
