"""Opening an icon, selecting a colour, painting, saving under a new name, opening that file: by mouse and keyboard."""
import os

import icons

SIZE = 32
CHART = '16-Color Palette'
CHART_COLUMNS, CHART_ROWS = 8, 2
RED, RED_CELL = (255, 0, 0), (3, 0)
NAVY, NAVY_CELL = (0, 0, 128), (7, 1)
GREEN, GREEN_PIXEL = (0, 128, 0), (8, 4)
BORDER = 4  # transparent pixels around the picture
GROUND = (192, 192, 192)  # visible through transparent pixels


def checkerboard():
    """Green and white squares inside a transparent border."""
    def pixel(x, y):
        if min(x, y) < BORDER or max(x, y) >= SIZE - BORDER:
            return None
        return GREEN if (x // 4 + y // 4) % 2 else (255, 255, 255)
    return [[pixel(x, y) for x in range(SIZE)] for y in range(SIZE)]


def writeIcon(session, name, picture):
    path = session.path(name)
    with open(path, 'wb') as file:
        file.write(icons.icon16(picture))
    return path


def waitForPixel(program, x, y, color):
    """Waits until the Editing Area shows that colour."""
    seen = lambda: program.session.colorAt(program.pixelPoint(x, y, SIZE)) == color
    program.wait(seen, f'pixel {x}, {y} in {color}')


def pick(program, cell, color):
    program.session.click(program.chartPoint(CHART, *cell, CHART_COLUMNS, CHART_ROWS))
    shown = lambda: program.session.colorAt(program.centre(program.need('Color to use'))) == color
    program.wait(shown, f'the colour {color} to be the current one')


def paint(program, picture, cell, color, pixels):
    """Selects a colour and clicks on pixels; `picture` is changed in the same way."""
    pick(program, cell, color)
    for x, y in pixels:
        program.session.click(program.pixelPoint(x, y, SIZE))
        waitForPixel(program, x, y, color)
        picture[y][x] = color


def assertReadersSee(path, picture):
    for name, read in icons.READERS.items():
        assert read(path) == picture, f'{name} reads other pixels in {path}'


def test_the_test_icons_are_read_as_built(session):
    assertReadersSee(writeIcon(session, 'built.ico', checkerboard()), checkerboard())


def test_painted_icon_saved_under_a_new_name_has_the_same_pixels_everywhere(session):
    picture = checkerboard()
    program = session.start(writeIcon(session, 'before.ico', picture))
    waitForPixel(program, *GREEN_PIXEL, GREEN)
    program.press('Paint')
    paint(program, picture, RED_CELL, RED, [(0, 0), (10, 12), (31, 31)])
    paint(program, picture, NAVY_CELL, NAVY, [(16, 3), (0, 31), (17, 20)])

    saved = session.path('painted again.ico')
    program.menu('File', 'Save As (Single-Icon File)')
    program.answerFileDialog(saved)
    program.wait(lambda: os.path.isfile(saved), 'the saved file')
    assertReadersSee(saved, picture)
    assertReadersSee(session.path('before.ico'), checkerboard())

    program.command('ctrl+n')
    program.command('ctrl+o')
    program.answerFileDialog(saved)
    waitForPixel(program, 10, 12, RED)
    waitForPixel(program, 17, 20, NAVY)
    waitForPixel(program, 1, 1, GROUND)
