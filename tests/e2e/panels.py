"""The side panels that change an icon, as a user works with them. Their samples are read from the screen, one colour
for each pixel of the icon. A picture is as in icons.py: rows of (red, green, blue), None where it is transparent."""
from forms import CHART, Desk, read, write

BLACK, GREY, WHITE = (0, 0, 0), (128, 128, 128), (255, 255, 255)
GROUND = (192, 192, 192)  # visible through transparent pixels
CHART_SHAPE = (8, 2)
SAMPLE_FRAME = 1
WHEEL_DOWN, MOST_WHEEL_TURNS = 5, 20

SHADES, BUTTONIZE = 'Effects - shades', 'Buttonize'
DISABLED, REDUCE = 'Image for disabled button', 'Reduce number of colors'


def look(picture):
    """A picture as it looks on the ground."""
    return [[pixel or GROUND for pixel in row] for row in picture]


def imageOf(picture):
    """A picture with black for its transparent pixels."""
    return [[pixel or BLACK for pixel in row] for row in picture]


def maskOf(picture):
    return [[BLACK if pixel else WHITE for pixel in row] for row in picture]


def colorsOf(picture):
    return {pixel for row in picture for pixel in row}


class PanelDesk(Desk):
    """A program, started with the first icon of the test, if there is one."""

    def __init__(self, session):
        self.session, self.program = session, None

    # Icons -----------------------------------------------------------------------------------------------------------

    def start(self, *arguments):
        self.program = self.session.start(*arguments)

    def openContent(self, name, content, size):
        """Writes an icon file, opens it, and returns its path."""
        path = write(self.session, name, content)
        if self.program:
            self.openFile(path)
        else:
            self.start(path)
        self.waitForIcon(size, path)
        return path

    def save(self, path):
        """Saves the icon over its file."""
        before = read(path)
        self.program.command('ctrl+s')
        self.program.wait(lambda: read(path) != before, f'{path} to be saved')
        self.program.wait(lambda: not self.program.value('Headers'), 'the icon to count as unchanged')

    def isPossible(self, button):
        return self.program.isEnabled(self.program.need(button, role='push button'))

    def takeColor(self, cell, color):
        """Selects a colour of the 16-color palette."""
        self.program.menu('Palette', CHART)
        self.session.click(self.program.chartPoint(CHART, *cell, *CHART_SHAPE))
        swatch = self.program.centre(self.program.need('Color to use'))
        self.program.wait(lambda: self.session.colorAt(swatch) == color, f'{color} to be the current colour')

    # What is shown ---------------------------------------------------------------------------------------------------

    def grid(self, left, top, cell, size):
        """The colours at the centres of size x size cells."""
        pixels = self.session.picture().convert('RGB').load()
        places = [cell * index + cell // 2 for index in range(size)]
        return [[pixels[left + x, top + y] for x in places] for y in places]

    def shown(self, size):
        """The colours on the Editing Area."""
        left, top, width, _ = self.program.box(self.program.need('Editing Area'))
        return self.grid(left, top, width // size, size)

    def sample(self, name, size):
        """The colours of a sample, which is in the upper left corner of its space, as large as fits."""
        left, top, width, height = self.program.box(self.program.need(name, role='image'))
        factor = (min(width, height) - 2 * SAMPLE_FRAME) // size
        assert factor > 0, f'{width} x {height} is too small for a sample of {size}'
        return self.grid(left + SAMPLE_FRAME, top + SAMPLE_FRAME, factor, size)

    def expectIcon(self, picture, what):
        self.expect(lambda: self.shown(len(picture)), look(picture), what)

    def expectSample(self, picture, what, name='Sample'):
        self.expect(lambda: self.sample(name, len(picture)), look(picture), 'the sample of ' + what)

    def undoAndRedo(self, before, after, what):
        """Undoes and redoes by keys; then the icon is as after the effect."""
        self.expectIcon(after, what)
        assert after != before
        self.program.command('ctrl+z')
        self.expectIcon(before, f'the icon after {what} was undone')
        assert not self.isPossible('Undo'), f'{what} takes more than one step'
        self.program.command('ctrl+r')
        self.expectIcon(after, f'{what} done again')

    def expect(self, see, wanted, what):
        last = []

        def isThere():
            last[:] = see()
            return last == wanted

        try:
            self.program.wait(isThere, what)
        except AssertionError as problem:
            wrong = [(x, y, a, b) for y, (row, like) in enumerate(zip(last, wanted))
                     for x, (a, b) in enumerate(zip(row, like)) if a != b]
            raise AssertionError(f'{problem}; {len(wrong)} pixels differ (x, y, shown, wanted): {wrong[:8]}') from None

    # Panels ----------------------------------------------------------------------------------------------------------

    def isUp(self, title):
        return self.program.find(title, role='panel')

    def effect(self, title, *captions):
        """Opens a panel by the Effects menu."""
        self.program.menu('Effects', *captions)
        self.waitForPanel(title)

    def waitForPanel(self, title):
        panel = self.program.wait(lambda: self.isUp(title), f'the panel "{title}"')
        nameless = self.program.nameless(panel)
        assert not nameless, f'without a name: {nameless}'

    def waitForNoPanel(self, title):
        self.program.wait(lambda: not self.isUp(title), f'the panel "{title}" to close')

    def proceed(self, title, *keys):
        """Proceeds by keys if there are any, otherwise by mouse."""
        self.end(title, 'Proceed', keys)

    def close(self, title, *keys):
        self.end(title, 'Close', keys)

    def end(self, title, button, keys):
        if keys:
            self.program.command(*keys)
        else:
            self.program.press(button)
        self.waitForNoPanel(title)

    def entryPoint(self, entry):
        """The position of an entry of the open drop-down list."""
        left, top, _, height = self.program.box(self.program.need(entry, role='list item'))
        return left + height, top + height // 2

    def pickEntry(self, name, entry):
        """Selects an entry of a drop-down list by mouse, scrolling if necessary."""
        self.openList(name)
        for _ in range(MOST_WHEEL_TURNS):
            if self.program.find(entry, role='list item'):
                break
            self.session.click(self.program.centre(self.dropDown(name)), button=WHEEL_DOWN)
        self.program.wait(lambda: self.closesAt(name, entry), f'the list of "{name}" to close')
        self.program.wait(lambda: self.held(name) == entry, f'"{entry}" to be picked')

    def closesAt(self, name, entry):
        """Clicks on an entry; whether the list has taken it. At first it does not: the click may be the second one of a
        double click on the closed list."""
        self.session.click(self.entryPoint(entry))
        return not self.dropDown(name)

    def clickAtOnce(self, *points):
        """Clicks on one point after another, possibly faster than the program can follow."""
        self.session.xdotool(*[word for x, y in points for word in ('mousemove', x, y, 'click', 1)])

    def isFocusedOn(self, name, role):
        return self.program.isFocused(self.program.need(name, role=role))

    def tabTo(self, *buttons):
        """Checks that Tab reaches these buttons one after the other."""
        for button in buttons:
            self.program.command('Tab')
            self.program.wait(lambda: self.isFocusedOn(button, 'push button'), f'Tab to come to "{button}"')
