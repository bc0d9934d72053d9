"""The first road again, with the keyboard alone: a new icon, a colour typed, pixels painted and erased, saved."""
import os

from PIL import Image

RED = (255, 0, 0, 255)
CLEAR = 0


def pixels(path):
    with Image.open(path) as image:
        return image.convert('RGBA')


def test_an_icon_is_drawn_and_saved_without_the_mouse(session):
    program = session.start()
    session.keys('ctrl+e')
    program.wait(lambda: program.value('Status 3') == '16 x 16', 'the new icon')
    session.keys('alt+p', 'd')
    program.wait(lambda: program.find('Color value'), 'the colour value')
    session.type('ff')
    session.keys('Return')
    session.keys('F2', 'F4')
    focusEditingArea(program, session)
    session.keys('Home', 'Page_Up', 'space', 'Right', 'Right', 'space', 'End', 'Page_Down', 'space')
    session.keys('F5', 'Home', 'Page_Up', 'space')
    saved = session.path('by keyboard.ico')
    session.keys('ctrl+t')
    program.answerFileDialog(saved)
    program.wait(lambda: os.path.isfile(saved), 'the saved file')
    image = pixels(saved)
    assert image.getpixel((0, 0))[3] == CLEAR
    assert image.getpixel((2, 0)) == RED
    assert image.getpixel((15, 15)) == RED
    assert sum(1 for pixel in image.getdata() if pixel[3]) == 2


def focusEditingArea(program, session):
    """Tab until the Editing Area has the focus; every stop on the way must have a name."""
    area = program.need('Editing Area')
    for _ in range(40):
        if program.isFocused(area):
            return
        session.keys('Tab')
    raise AssertionError('Tab does not reach the Editing Area')


def test_keys_of_commands_that_need_an_icon_tell_that_there_is_none(session):
    program = session.start()
    session.keys('ctrl+s')
    dialog = program.waitForDialog()
    assert program.dialogText(dialog) == 'No icon in Editing Area yet'
    session.keys('Return')
    program.waitForNoDialog()
