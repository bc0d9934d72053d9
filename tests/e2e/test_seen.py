"""What a user sees: chosen tools, the keyboard focus, large fonts, the order of the side panels, the marks of the colour
charts, and the empty Editing Area. Contrast is measured on the picture of the screen."""
import os

import icons
from dropping import drop
from forms import CHART, write
from panels import CHART_SHAPE, REDUCE, SHADES, PanelDesk, look
from program import plain

LEAST_CONTRAST = 3
RING = 2  # pixels
RED, RED_CELL = (255, 0, 0), (3, 0)
TEAL, TEAL_CELL = (0, 128, 128), (6, 1)
CHART_FRAME = 2
GROUND = (192, 192, 192)
BLACK, WHITE = (0, 0, 0), (255, 255, 255)
TICK, SWATCH = 'Use currently selected color (otherwise black)', 'Currently selected color'
FONT_LINE, LARGE_LINE = 'font=DejaVu Sans,14,-1,5,50,0,0,0,0,0', 22  # pixels
SMALLEST_WIDTH = 793
ACCESS_KEYS = {'Shadowed': 'w', 'Embossed': 'o'}
PLACED_ROLES = ('push button', 'check box', 'toggle button', 'image', 'combo box', 'label')
STOPS = ('New 32x32', 'Container 1', 'Paint', 'Shift up left', 'Color to use', CHART)


def luminance(color):
    linear = [v / 12.92 if v <= 0.03928 else ((v + 0.055) / 1.055) ** 2.4 for v in (c / 255 for c in color)]
    return 0.2126 * linear[0] + 0.7152 * linear[1] + 0.0722 * linear[2]


def contrast(a, b):
    darker, lighter = sorted((luminance(a), luminance(b)))
    return (lighter + 0.05) / (darker + 0.05)


class Eyes:
    """Looks at controls on the screen."""

    def __init__(self, desk):
        self.desk = desk

    def picture(self, name, **how):
        x, y, width, height = self.desk.program.box(self.desk.program.need(name, **how))
        return self.desk.session.picture().convert('RGB').crop((x, y, x + width, y + height))

    def window(self):
        """The colour of the main form, at the right end of the toolbar."""
        x, y, width, height = self.desk.program.box(self.desk.program.need('View/edit/create Alpha (32 BPP icon)'))
        return self.desk.session.colorAt((x + width + 1, y + height // 2))


def ringOf(before, after):
    """The rectangle in which two pictures of a control differ, and the colour of its edge if it has only one."""
    different = [(x, y) for y in range(before.height) for x in range(before.width)
                 if before.getpixel((x, y)) != after.getpixel((x, y))]
    assert different, 'nothing shows the focus'
    left, top = min(x for x, _ in different), min(y for _, y in different)
    right, bottom = max(x for x, _ in different), max(y for _, y in different)
    edge = {after.getpixel((x, y)) for x in range(left, right + 1) for y in range(top, bottom + 1)
            if min(x - left, right - x, y - top, bottom - y) < RING}
    return (left, top, right, bottom), edge


def test_the_selected_tool_and_the_focus_are_seen(session):
    desk = PanelDesk(session)
    path = desk.openContent('a.ico', icons.icons((32, 4)), 32)
    assert os.path.isfile(path)
    eyes = Eyes(desk)
    window = eyes.window()
    for tool in ('Paint', 'Line', 'Region', 'Set/unset shift image'):
        desk.program.press('Clear all tools')
        plainLook = eyes.picture(tool)
        desk.program.press(tool)
        session.move((2, 2))
        desk.program.wait(lambda: eyes.picture(tool) != plainLook, f'{tool} to look chosen')
        chosen = eyes.picture(tool)
        fill = max(chosen.getcolors(10000))[1]
        assert contrast(fill, window) >= LEAST_CONTRAST, f'{tool}: {fill} on {window}'
        middle = chosen.width // 2
        for edge in ((middle, 0), (0, middle), (middle, chosen.height - 1), (chosen.width - 1, middle)):
            assert contrast(chosen.getpixel(edge), window) >= LEAST_CONTRAST, f'the edge of {tool}'
    desk.program.press('Clear all tools')

    before = {name: eyes.picture(name) for name in STOPS}
    rings = set()
    for name in STOPS:
        desk.program.goTo(name)
        desk.program.wait(lambda: eyes.picture(name) != before[name], f'the focus on {name}')
        _, edge = ringOf(before[name], eyes.picture(name))
        assert len(edge) == 1, f'{name}: the ring has the colours {edge}'
        rings |= edge
    assert len(rings) == 1, f'not the same mark everywhere: {rings}'
    assert contrast(rings.pop(), window) >= LEAST_CONTRAST


def setLargeFont(session):
    """Makes the desktop one whose settings the program reads, with a large font."""
    folder = os.path.join(session.folder, 'home', '.config')
    os.makedirs(folder, exist_ok=True)
    with open(os.path.join(folder, 'kdeglobals'), 'w', encoding='utf-8') as file:
        file.write(f'[General]\n{FONT_LINE}\nmenuFont={FONT_LINE.removeprefix("font=")}\n')
    os.environ.update(XDG_CURRENT_DESKTOP='KDE', KDE_SESSION_VERSION='5')


def test_with_a_large_font_everything_is_inside_the_window(session):
    setLargeFont(session)
    desk = PanelDesk(session)
    desk.openContent('a.ico', icons.icons((32, 4)), 32)
    for kind in ('Shadowed', 'Embossed'):
        desk.program.command('alt+c')
        desk.program.wait(desk.program.openedMenus, 'the menu of effects')
        session.keys(ACCESS_KEYS[kind])
        desk.waitForPanel(SHADES)
        if kind == 'Shadowed':
            desk.program.wait(lambda: desk.program.box(desk.program.need(TICK))[3] >= 2 * LARGE_LINE, 'a second line of text')
        form = desk.program.mainForm()
        left, top, width, height = desk.program.box(form)
        assert width > SMALLEST_WIDTH, 'the form does not grow with the font'
        for control in desk.program.walk(form):
            x, y, w, h = desk.program.box(control)
            if control.getRoleName() in PLACED_ROLES:
                assert left <= x and top <= y and x + w <= left + width and y + h <= top + height, control.name
        desk.close(SHADES, 'Escape')


def test_a_panel_has_its_title_its_settings_and_its_sample_in_this_order(session):
    desk = PanelDesk(session)
    desk.openContent('a.ico', icons.icons((32, 4)), 32)
    desk.takeColor(TEAL_CELL, TEAL)
    desk.effect(SHADES, 'Shadowed')
    top = lambda name, **how: desk.program.box(desk.program.need(name, **how))[1]
    titles = [control for control in desk.program.walk(desk.isUp(SHADES)) if plain(control.name) == 'Shadowed']
    assert desk.program.box(titles[0])[1] < top(TICK) < top('Sample', role='image')
    sample, tick = desk.program.box(desk.program.need('Sample', role='image')), desk.program.box(desk.program.need(TICK))
    assert sample[1] - (tick[1] + tick[3]) < 50, 'the sample is not directly below the settings'
    assert min(sample[2:]) - 2 >= 8 * 32, f'{sample}: the sample could be larger'
    assert session.colorAt(desk.program.centre(desk.program.need(SWATCH))) == TEAL
    desk.close(SHADES, 'Escape')

    picture = [[((x * 8) % 256, (y * 8) % 256, (x * y) % 256) for x in range(32)] for y in range(32)]
    desk.openContent('many.ico', icons.fileOf([icons.entryOf(picture, 24)]), 32)
    desk.effect(REDUCE, 'Reduce Colors Used', 'Confine Colors To 16')
    desk.pickEntry('Confine to', 'Standard VGA')
    result, image = (desk.program.box(desk.program.need(name, role='image')) for name in ('Result', 'Image'))
    assert result[0] < image[0] and result[1] <= image[1] and min(result[2:]) > 3 * min(image[2:])
    desk.program.wait(lambda: desk.sample('Result', 32) == look(desk.sample('Image', 32)), 'the composed result')
    desk.close(REDUCE, 'Escape')


def ringedCell(desk, cell):
    """The colours of the two outer lines of a cell of the 16-color chart, at its middle."""
    x, y, width, height = desk.program.box(desk.program.need(CHART))
    across, down = (width - 2 * CHART_FRAME) // CHART_SHAPE[0], (height - 2 * CHART_FRAME) // CHART_SHAPE[1]
    left, middle = x + CHART_FRAME + cell[0] * across, y + CHART_FRAME + cell[1] * down + down // 2
    return desk.session.colorAt((left, middle)), desk.session.colorAt((left + 1, middle))


def test_the_chart_rings_the_current_colour_and_its_keys_start_there(session):
    desk = PanelDesk(session)
    desk.openContent('a.ico', icons.icons((32, 4)), 32)
    for cell, color in ((RED_CELL, RED), (TEAL_CELL, TEAL)):
        desk.takeColor(cell, color)
        session.move((2, 2))
        desk.program.wait(lambda: ringedCell(desk, cell) == (BLACK, WHITE), f'the ring of {color}')
    assert ringedCell(desk, RED_CELL)[1] == RED, 'only the current colour has a ring'
    desk.program.goTo(CHART)
    session.keys('Right', 'space')
    swatch = desk.program.centre(desk.program.need('Color to use'))
    desk.program.wait(lambda: session.colorAt(swatch) == (0, 0, 128), 'Navy, right of Teal')
    desk.program.menu('Palette', '256-Color Palette')
    for letter in 'RGB':
        assert desk.program.need(letter, role='label')


def darkPixels(eyes):
    return sum(1 for color in eyes.picture('Editing Area').getdata() if contrast(color, GROUND) >= 4.5)


def test_the_empty_area_tells_what_to_do_and_takes_a_dropped_icon(session):
    desk = PanelDesk(session)
    desk.start()
    eyes = Eyes(desk)
    desk.program.wait(lambda: darkPixels(eyes) > 200, 'the text')
    assert eyes.picture('Editing Area').getpixel((3, 3)) == GROUND
    path = write(session, 'dropped.ico', icons.icons((32, 4)))
    assert drop([path], desk.program.centre(desk.program.need('Editing Area')))
    desk.waitForIcon(32, path)
    desk.paint([(5, 7)], RED_CELL, RED, 32)
    other = write(session, 'other.ico', icons.icons((16, 4)))
    assert drop([other], desk.program.centre(desk.program.need('Editing Area')))
    desk.program.answerBox('Save current icon to file?', 'Escape')
    desk.waitForIcon(32, path)
    desk.waitForPixel(5, 7, 32, RED)
