"""The icon on three screen colours, by Mask and with its alpha values: opened by keys, menu and pop-up menu, the colours
changed in the colour dialog, and the pixels read from the screen."""
import icons
from forms import ALPHA_REMINDER, write
from panels import PanelDesk

PREVIEW, ALPHA = 'Preview - different screen colors', 'Current icon with alpha effects'
ALPHA_SCREEN = 'View/Edit/Create Alpha Channel'
PREVIEW_MENU = 'Preview With Different Screen Colors'
EDIT_ALPHA, REMARKS = 'Edit Alpha Channel ....', '(Remarks: Alpha values are blended with each screen color)'
RED, GREEN = (255, 0, 0), (10, 200, 90)
SCREENS = [(255, 255, 255), (192, 192, 192), (32, 32, 32)]
RIGHT_BUTTON = 3


def square(size):
    """A red square on transparent ground."""
    return [[RED if x < size // 2 and y < size // 2 else None for x in range(size)] for y in range(size)]


def fading(size):
    """Columns of falling alpha values; the first rows are transparent."""
    return [[GREEN + (255 - 240 * x // size,) if y > 3 else None for x in range(size)] for y in range(size)]


def blended(pixel, screen):
    """A pixel on a screen colour, by whole percent."""
    if not pixel:
        return screen
    percent = int(pixel[3] / 255 * 100)
    return tuple(((100 - percent) * ground + percent * channel) // 100 for channel, ground in zip(pixel, screen))


def on(screen, picture):
    """A picture as it looks on a screen colour."""
    return [[blended(pixel + (255,) * (4 - len(pixel)) if pixel else None, screen) for pixel in row] for row in picture]


def opaque(picture):
    return [[pixel and pixel[:3] for pixel in row] for row in picture]


def pictureBox(desk, number):
    return desk.program.box(desk.program.need(f'Icon on screen color {number}', role='image'))


def shown(desk, number, size):
    """The icon on a screen colour, numbered from 1: it is in the middle of its picture, one pixel for each of its own."""
    left, top, width, height = pictureBox(desk, number)
    return desk.grid(left + (width - size) // 2, top + (height - size) // 2, 1, size)


def expectShown(desk, picture, screens, what):
    for number, screen in enumerate(screens, 1):
        desk.expect(lambda: shown(desk, number, len(picture)), on(screen, picture), f'{what} on screen color {number}')


def openAlphaIcon(desk, picture):
    path = write(desk.session, 'alpha.ico', icons.fileOf([icons.entryOf(picture, 32)]))
    desk.start()
    desk.program.command('ctrl+o')
    desk.program.chooseFile(path)
    desk.program.answerBox(ALPHA_REMINDER)
    desk.waitForIcon(len(picture), path)


def answerColorDialog(desk, html):
    """Takes a colour, written in hexadecimal, in the colour dialog."""
    desk.program.waitForDialog()
    desk.program.goTo('HTML:', role='text')
    desk.program.typeInto('HTML:', html, role='text')
    desk.session.keys('Return')
    desk.program.waitForNoDialog()


def test_an_icon_is_previewed_on_colors_that_are_chosen_by_mouse_and_keys(session):
    desk = PanelDesk(session)
    picture = square(32)
    desk.openContent('a.ico', icons.fileOf([icons.entryOf(picture, 24)]), 32)
    desk.program.command('ctrl+p')
    desk.waitForPanel(PREVIEW)
    expectShown(desk, picture, SCREENS, 'the icon')
    assert not desk.program.find(EDIT_ALPHA) and not desk.program.find(REMARKS) and not desk.program.find('Proceed')

    desk.program.press('Screen color 2', role='push button')
    answerColorDialog(desk, '#000080')
    expectShown(desk, picture, [SCREENS[0], (0, 0, 128), SCREENS[2]], 'the icon')
    desk.program.need('Screen color 2 RGB: 0, 0, 128', role='label')
    desk.program.command('alt+3')
    answerColorDialog(desk, '#ffff00')
    expectShown(desk, picture, [SCREENS[0], (0, 0, 128), (255, 255, 0)], 'the icon')
    # A cancelled dialog keeps the colour.
    desk.program.goTo('Screen color 1', role='push button')
    desk.program.command('Return')
    desk.program.waitForDialog()
    session.keys('Escape')
    desk.program.waitForNoDialog()
    expectShown(desk, picture, [SCREENS[0]], 'the icon')

    # A command that changes the icon closes the panel; the colours last for the session.
    desk.program.menu('Rotate', 'Flip Horizontal')
    desk.waitForNoPanel(PREVIEW)
    picture = [list(reversed(row)) for row in picture]
    desk.program.menu('Inquiry', PREVIEW_MENU)
    desk.waitForPanel(PREVIEW)
    expectShown(desk, picture, [SCREENS[0], (0, 0, 128), (255, 255, 0)], 'the flipped icon')
    desk.close(PREVIEW, 'Escape')
    desk.expectIcon(picture, 'the flipped icon')


def test_alpha_is_blended_with_each_screen_color(session):
    desk = PanelDesk(session)
    picture = fading(32)
    openAlphaIcon(desk, picture)
    desk.program.command('ctrl+a')
    desk.waitForPanel(ALPHA)
    expectShown(desk, picture, SCREENS, 'the alpha effects')
    desk.program.need(EDIT_ALPHA, role='push button')
    desk.program.need(REMARKS, role='label')
    desk.program.press('Screen color 1', role='push button')
    answerColorDialog(desk, '#0080ff')
    expectShown(desk, picture, [(0, 128, 255), *SCREENS[1:]], 'the alpha effects')

    # The other form shows the same icon without them, on the same colours.
    desk.program.menu('Inquiry', PREVIEW_MENU)
    desk.waitForPanel(PREVIEW)
    expectShown(desk, opaque(picture), [(0, 128, 255), *SCREENS[1:]], 'the opaque icon')
    desk.close(PREVIEW)

    session.click(desk.program.pixelPoint(5, 20, 32), button=RIGHT_BUTTON)
    session.keys('v')
    desk.waitForPanel(ALPHA)
    expectShown(desk, picture, [(0, 128, 255), *SCREENS[1:]], 'the alpha effects')
    # The panel closes with the container, and for the alpha screen.
    desk.program.press('Container 2')
    desk.waitForNoPanel(ALPHA)
    desk.program.press('Container 1')
    desk.waitForIcon(32, session.path('alpha.ico'))
    desk.program.command('ctrl+a')
    desk.waitForPanel(ALPHA)
    desk.program.press(EDIT_ALPHA)
    desk.waitForForm(ALPHA_SCREEN)
    session.keys('Escape')
    desk.waitForNoForm(ALPHA_SCREEN)
    desk.waitForNoPanel(ALPHA)


def test_on_a_screen_of_twice_the_scale_each_pixel_is_two_by_two_device_pixels(session):
    picture = square(16)
    path = write(session, 'a.ico', icons.fileOf([icons.entryOf(picture, 24)]))
    desk = PanelDesk(session)
    desk.program = session.start(path, within=('env', 'QT_SCALE_FACTOR=2'))
    desk.waitForIcon(16, path)
    desk.program.command('ctrl+p')
    desk.waitForPanel(PREVIEW)
    doubled = [[pixel for pixel in row for _ in range(2)] for row in picture for _ in range(2)]
    for number, screen in enumerate(SCREENS, 1):
        # In pixels of the program, which the window manager may have placed at half of one.
        left, top, width, height = [2 * value for value in pictureBox(desk, number)]
        corner = left + width // 2 - 16, top + height // 2 - 16
        places = [(corner[0] - dx, corner[1] - dy) for dx in (0, 1) for dy in (0, 1)]
        desk.program.wait(lambda: any(desk.grid(x, y, 1, 32) == on(screen, doubled) for x, y in places),
                          f'the icon of twice the size on screen color {number}')
