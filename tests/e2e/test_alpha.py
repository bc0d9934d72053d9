"""The alpha screen, by mouse and keyboard: an icon of 24 bits gets a soft edge, is saved, read by other programs,
flipped and converted back. The expected values are computed here."""
import icons
import readers
from forms import ALPHA_REMINDER, read
from panels import PanelDesk

EDIT, CONVERT = 'View/Edit/Create Alpha Channel', 'Convert 32 to 24 BPP (& Retain Alpha Effects)'
AREA = 'Alpha values of the icon'
NO_CHANNEL = 'Current Icon has no Alpha Channel.  Proceed still?'
HARDWARE = 'Not all hardware peripherals are always capable of supporting True Color.  Proceed?'
HELD_BY_1 = 'Container 1 holds an icon of this file. Proceed?'
SAVE_QUESTION, EXIT_QUESTION = 'Proceed to save to ', 'Exit without saving?'
TO_24_QUESTION, PALETTE_QUESTION = 'Change the current icon to 24 BPP?', 'The actual color depth of image is of 256-color only.'
TO_32, TO_24 = 'Change current icon to 32 BPP True Color', 'Convert to 24 BPP retaining alphaed colors'
SIZE, FIRST, LAST = 16, 2, 13
FIRST_VALUE, STEP = 128, 17
GROUND = 192


def square():
    """A square of many colours within a transparent edge."""
    def pixel(x, y):
        return (x * 15, y * 15, 40) if FIRST <= x <= LAST and FIRST <= y <= LAST else None
    return [[pixel(x, y) for x in range(SIZE)] for y in range(SIZE)]


def withAlpha(picture, values):
    """The picture with an alpha value for each pixel: that of `values` at (x, y), otherwise 255."""
    return [[pixel and pixel + (values.get((x, y), 255),) for x, pixel in enumerate(row)] for y, row in enumerate(picture)]


def converted(picture):
    """What 24 bits keep of a picture with alpha."""
    def baked(pixel):
        percent = pixel[3] * 100 // 255
        return tuple(((100 - percent) * GROUND + percent * channel) // 100 for channel in pixel[:3]) if percent else None
    return [[pixel and baked(pixel) for pixel in row] for row in picture]


def expectFile(path, picture, bits, what):
    """Pillow and ImageMagick read that picture, and the directory states the depth."""
    for name, pictures in (('Pillow', readers.picturesByPillow(path)), ('ImageMagick', readers.picturesByImageMagick(path))):
        assert len(pictures) == 1, (what, name, len(pictures))
        wrong = [(x, y, a, b) for y, (row, like) in enumerate(zip(pictures[0], readers.quads(picture)))
                 for x, (a, b) in enumerate(zip(row, like)) if a != b]
        assert not wrong, f'{what}: {name} reads {len(wrong)} other pixels (x, y, read, wanted): {wrong[:8]}'
    assert [entry.bits for entry in icons.readEntries(path)] == [bits], what


class AlphaDesk(PanelDesk):
    def pixel(self, x, y, size=SIZE):
        """The screen position of a pixel on the alpha screen."""
        left, top, width, _ = self.program.box(self.program.need(AREA))
        cell = width // size
        return left + x * cell + cell // 2, top + y * cell + cell // 2

    def shiftClick(self, point):
        self.session.xdotool('keydown', 'shift')
        self.session.click(point)
        self.session.xdotool('keyup', 'shift')

    def openScreen(self, title):
        form = self.waitForForm(title)
        nameless = self.program.nameless(form)
        assert not nameless, f'without a name: {nameless}'

    def waitForReadout(self, name, text):
        self.program.wait(lambda: ' '.join(self.program.value(name).split()) == text, f'"{text}" as {name}')


def test_a_24_bit_icon_gets_a_soft_edge_and_is_converted_back(session):
    desk = AlphaDesk(session)
    desk.openContent('square.ico', icons.fileOf([icons.entryOf(square(), 24)]), SIZE)
    program = desk.program
    program.menu('Alpha', EDIT)
    program.answerBox(NO_CHANNEL, 'alt+y')
    desk.openScreen(EDIT)
    assert not program.find('Value', role='combo box'), 'there are no values to edit yet'
    program.press(TO_32)
    program.answerBox(HARDWARE, 'alt+y')

    # The upper edge by mouse.
    for _ in range(4):
        program.press('Step alpha value down')
    upper = FIRST_VALUE - 4 * STEP
    program.wait(lambda: desk.held('Value') == str(upper), f'{upper} in the list')
    session.click(desk.pixel(FIRST, FIRST))
    desk.shiftClick(desk.pixel(LAST, FIRST))
    desk.waitForReadout('Alpha value of pixel', f'Alpha = {upper}')
    # The lower edge by keyboard.
    program.goTo('Alpha value', role='slider')
    session.keys('Home', *['Page_Up'] * 6)
    lower = 6 * STEP
    program.wait(lambda: desk.held('Value') == str(lower), f'{lower} in the list')
    program.goTo(AREA)
    session.keys('ctrl+Down', 'Down', 'Down', 'Down', 'space')
    session.keys('ctrl+Left', 'Left', 'Left', 'Left', 'shift+space')
    desk.waitForReadout('Position', f'X= {FIRST} Y= {LAST}')
    desk.waitForReadout('Alpha value of pixel', f'Alpha = {lower}')

    values = {(x, FIRST): upper for x in range(FIRST, LAST + 1)}
    values.update({(x, LAST): lower for x in range(FIRST, LAST + 1)})
    soft = withAlpha(square(), values)
    path = session.path('soft.ico')
    program.press('Save session and exit')
    program.chooseFile(path)
    program.answerBox(SAVE_QUESTION + path, 'alt+y')
    desk.waitForNoForm(EDIT)
    desk.waitForIcon(SIZE, path)
    expectFile(path, soft, 32, 'the icon with a soft edge')

    program.menu('Rotate', 'Flip Verical')
    desk.save(path)
    expectFile(path, soft[::-1], 32, 'the icon turned over')

    # Opened again, and converted.
    other = desk.openContent('other.ico', icons.fileOf([icons.entryOf(square(), 24)]), SIZE)
    program.command('ctrl+o')
    program.chooseFile(path)
    program.answerBox(ALPHA_REMINDER)
    desk.waitForIcon(SIZE, path)
    program.menu('Alpha', 'Convert 32 to 24 BPP')
    desk.openScreen(CONVERT)
    assert not program.find('Value', role='combo box'), 'this mode only converts'
    session.move(desk.pixel(FIRST, FIRST))
    desk.waitForReadout('Alpha value of pixel', f'Alpha = {lower}')
    program.press(TO_24)
    program.answerBox(TO_24_QUESTION, 'alt+y')
    plain = session.path('plain.ico')
    program.chooseFile(plain)
    program.answerBox(PALETTE_QUESTION, 'alt+n')
    desk.waitForIcon(SIZE, plain)
    expectFile(plain, converted(soft[::-1]), 24, 'the converted icon')
    expectFile(path, soft[::-1], 32, 'the icon that was converted')
    assert read(other) == icons.fileOf([icons.entryOf(square(), 24)])


def test_the_alpha_screen_loses_nothing_by_accident(session):
    desk = AlphaDesk(session)
    content = icons.fileOf([icons.entryOf(withAlpha(square(), {}), 32)])
    path = desk.openContent('soft.ico', content, SIZE)
    program = desk.program
    program.answerBox(ALPHA_REMINDER)
    program.menuByKeys('alt+a', 'Return')
    desk.openScreen(EDIT)
    session.keys('ctrl+Right', 'ctrl+Down', 'space', 'Return')
    desk.waitForReadout('Alpha value of pixel', f'Alpha = {FIRST_VALUE}')
    for answer in 'alt+n', 'alt+y':
        assert desk.form(EDIT), 'Enter does not close the screen'
        program.keys('Escape')
        program.answerBox(EXIT_QUESTION, answer)
    desk.waitForNoForm(EDIT)
    program.menuByKeys('alt+a', 'Return')
    desk.openScreen(EDIT)
    session.move(desk.pixel(8, 8))
    desk.waitForReadout('Alpha value of pixel', 'Alpha = 255')
    session.click(desk.pixel(8, 8))
    program.press('Abort session and exit')
    desk.waitForNoForm(EDIT)
    assert read(path) == content
    program.wait(lambda: not program.dialogs(), 'no question')


def test_values_that_could_not_be_saved_come_back(session):
    desk = AlphaDesk(session)
    content = icons.fileOf([icons.entryOf(square(), 24)])
    held = desk.openContent('held.ico', content, SIZE)
    program = desk.program
    program.press('Container 2')
    desk.openContent('square.ico', content, SIZE)
    program.menu('Alpha', EDIT)
    program.answerBox(NO_CHANNEL, 'alt+y')
    desk.openScreen(EDIT)
    program.press(TO_32)
    program.answerBox(HARDWARE, 'alt+y')
    session.click(desk.pixel(5, 6))
    program.press('Save session and exit')
    program.chooseFile(held, replace=True)
    program.answerBox(SAVE_QUESTION + held, 'alt+y')
    program.answerBox(HELD_BY_1, 'alt+n')
    desk.openScreen(EDIT)
    session.move(desk.pixel(5, 6))
    desk.waitForReadout('Alpha value of pixel', f'Alpha = {FIRST_VALUE}')
    assert read(held) == content
    path = session.path('free.ico')
    program.press('Save session and exit')
    program.chooseFile(path)
    program.answerBox(SAVE_QUESTION + path, 'alt+y')
    desk.waitForNoForm(EDIT)
    desk.waitForIcon(SIZE, path)
    expectFile(path, withAlpha(square(), {(5, 6): FIRST_VALUE}), 32, 'the icon that found another file')


def test_alpha_goes_with_a_copy_from_container_to_container(session):
    desk = AlphaDesk(session)
    values = {(x, y): 20 + 8 * x + y for x in range(SIZE) for y in range(SIZE)}
    soft = withAlpha(square(), values)
    desk.openContent('soft.ico', icons.fileOf([icons.entryOf(soft, 32)]), SIZE)
    program = desk.program
    program.answerBox(ALPHA_REMINDER)
    program.command('ctrl+c')
    program.press('Container 2')
    bare = [[None] * SIZE for _ in range(SIZE - 1)] + [[(9, 9, 9, 99)] * SIZE]
    path = desk.openContent('bare.ico', icons.fileOf([icons.entryOf(bare, 32)]), SIZE)
    program.answerBox(ALPHA_REMINDER)
    program.command('ctrl+v')
    program.menu('Rotate', 'Flip Horizontal')  # of the floating region
    desk.save(path)
    wanted = [list(reversed(row)) for row in soft]
    wanted[-1] = bare[-1]
    expectFile(path, wanted, 32, 'the pasted and flipped copy on the other icon')
