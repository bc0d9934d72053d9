"""Each tool by keyboard alone and by mouse: the saved files are the same, byte for byte."""
import os

from forms import read
from test_drawing import Artist

LONG_STEP = 8  # of an arrow key with Ctrl
KEYS = {'Clear Tools': 'F2', 'Color Picker': 'F3', 'Paint': 'F4', 'Erase': 'F5', 'Fill': 'F6',
        'Replace painted color': 'F7', 'Restore/copy pixel of icon in panel': 'F8', 'Line': 'shift+F2',
        'Rectangle': 'shift+F3', 'Filled Rectangle': 'shift+F4', 'Oval': 'shift+F5', 'Filled Oval': 'shift+F6',
        'Region': 'shift+F7'}
POINTS = {'red': 'ff', 'green': '8000', 'navy': '800000'}  # colours as they are typed


class Hand:
    """What the test needs of a person, by mouse or by keyboard."""

    def __init__(self, session):
        self.artist = Artist(session)
        self.session, self.program = session, self.artist.program

    def newIcon(self):
        self.program.command('ctrl+n')
        self.artist.findEditingArea()
        self.program.command('F2')

    def choose(self, tool):
        self.program.command('F2', KEYS[tool])

    def typeColor(self, name):
        """Chooses a colour by keyboard."""
        self.program.menuByKeys('alt+p', 'd')
        text = POINTS[name]
        self.program.typeInto('Color value', text, becomes=text.upper())
        self.session.keys('Return')

    def expect(self, name, text):
        """Waits for the text of a readout."""
        self.program.wait(lambda: self.program.value(name, role='label') == text, f'{text!r} in {name}')

    def save(self, name):
        path = self.session.path(name)
        self.program.command('ctrl+t')
        self.program.answerFileDialog(path)
        self.program.wait(lambda: os.path.isfile(path), 'the saved file')
        return read(path)


class Mouse(Hand):
    def choose(self, tool):
        self.artist.press('Clear all tools', tool)

    def dot(self, x, y, held=None):
        self.artist.click(x, y, held)

    def shape(self, x1, y1, x2, y2, held=None):
        self.artist.dragPixels(x1, y1, x2, y2, held)

    def mark(self, x1, y1, x2, y2):
        self.artist.mark(x1, y1, x2, y2)

    def moveRegion(self, x, y, dx, dy):
        self.artist.moveRegion(x, y, dx, dy)

    def widen(self, right, middle, by):
        """Drags the right side of the region, seen from behind its last column."""
        self.artist.dragCorners(right, middle, right + by, middle)

    def mergeAt(self, x, y):
        self.session.click(self.artist.corner(x, y))

    def shiftRight(self):
        self.artist.press('Set/unset shift image', 'Shift right', 'Set/unset shift image')


class Keyboard(Hand):
    def __init__(self, session):
        super().__init__(session)
        self.at = None

    def newIcon(self):
        super().newIcon()
        self.at = None

    def goTo(self, x, y, *held):
        """Moves the pixel cursor, by long steps where they are shorter."""
        if self.at is None:
            self.program.goTo('Editing Area')
            self.session.keys('Home', 'Page_Up')
            self.at = (0, 0)
        keys = []
        for distance, backward, forward in ((x - self.at[0], 'Left', 'Right'), (y - self.at[1], 'Up', 'Down')):
            key = backward if distance < 0 else forward
            long, short = divmod(abs(distance), LONG_STEP)
            keys += ['+'.join([*held, 'ctrl', key])] * long + ['+'.join([*held, key])] * short
        if keys:
            self.session.keys(*keys)
        self.at = (x, y)

    def choose(self, tool):
        super().choose(tool)
        self.at = None

    def dot(self, x, y, held=None):
        self.goTo(x, y)
        self.session.keys('shift+space' if held else 'space')

    def shape(self, x1, y1, x2, y2, held=None):
        self.goTo(x1, y1)
        self.session.keys('space')
        self.goTo(x2, y2, *[held] if held else [])
        self.session.keys('Return' if held else 'space')

    def mark(self, x1, y1, x2, y2):
        self.shape(x1, y1, x2, y2)

    def moveRegion(self, x, y, dx, dy):
        self.shape(x, y, x + dx, y + dy)

    def widen(self, right, middle, by):
        self.session.keys(*['shift+Right'] * by)

    def mergeAt(self, x, y):
        self.goTo(x, y)
        self.session.keys('space')

    def shiftRight(self):
        self.program.command('shift+F8')
        self.program.goTo('Shift up left')
        self.session.keys('Right', 'Right', 'Down', 'space')
        self.program.command('shift+F8')


def drawEverything(hand):
    """A picture in which each tool leaves pixels that no other tool changes again."""
    hand.newIcon()
    hand.typeColor('red')
    hand.choose('Paint')
    for x in range(1, 6):
        hand.dot(x, 1)
    hand.choose('Erase')
    hand.dot(3, 1)
    hand.choose('Restore/copy pixel of icon in panel')
    hand.dot(5, 1)
    hand.choose('Line')
    hand.shape(1, 3, 6, 5)
    hand.shape(8, 1, 13, 3, held='shift')
    hand.typeColor('green')
    hand.choose('Rectangle')
    hand.shape(9, 12, 1, 7)
    hand.choose('Filled Rectangle')
    hand.shape(16, 1, 22, 4)
    hand.shape(24, 1, 27, 3, held='shift')
    hand.choose('Oval')
    hand.shape(12, 8, 20, 14)
    hand.choose('Filled Oval')
    hand.shape(30, 15, 22, 7, held='shift')
    hand.typeColor('navy')
    hand.choose('Fill')
    hand.dot(4, 9)
    hand.choose('Replace painted color')
    hand.dot(18, 2)
    hand.choose('Fill')
    hand.dot(25, 2, held='shift')
    hand.choose('Region')
    hand.mark(1, 7, 5, 10)
    hand.widen(6, 9, 2)
    hand.moveRegion(3, 9, 2, 12)
    hand.moveRegion(5, 21, 9, 1)
    hand.mergeAt(0, 30)
    hand.mark(12, 8, 20, 12)
    hand.program.command('ctrl+c')
    hand.program.wait(lambda: hand.program.isEnabled(hand.program.need('Paste')), 'Paste to be possible')
    hand.program.command('ctrl+v')
    hand.moveRegion(2, 2, 20, 20)
    hand.mergeAt(0, 30)
    hand.shiftRight()


def test_each_tool_draws_by_keyboard_what_it_draws_by_mouse(session):
    mouse = Mouse(session)
    drawEverything(mouse)
    drawn = mouse.save('by mouse.ico')
    mouse.program.process.terminate()
    mouse.program.waitForEnd()
    keyboard = Keyboard(session)
    session.move((1, 1))
    drawEverything(keyboard)
    assert keyboard.save('by keyboard.ico') == drawn


def test_esc_and_the_loss_of_the_focus_give_up_what_is_held(session):
    hand = Keyboard(session)
    hand.newIcon()
    hand.typeColor('red')
    hand.choose('Filled Rectangle')
    hand.shape(2, 2, 5, 4)
    hand.program.wait(lambda: hand.program.isEnabled(hand.program.need('Undo')), 'the rectangle')
    drawn = hand.save('drawn.ico')
    ends = ['Escape', 'Tab', 'alt+f']
    for tool in ('Line', 'Rectangle', 'Oval', 'Filled Oval', 'Region'):
        for end in ends:
            hand.choose(tool)
            hand.goTo(1, 1)
            session.keys('space')
            hand.goTo(12, 14)
            session.keys(end)
            if end == 'alt+f':
                session.keys('Escape', 'Escape')
                hand.program.waitForNoMenu()
    hand.choose('Region')
    hand.mark(2, 2, 4, 4)
    hand.goTo(3, 3)
    session.keys('space')
    hand.goTo(20, 20)
    session.keys('Escape')
    hand.expect('Region', 'Region: Start [3, 3]   W=3 H=3')
    session.keys('Escape')
    hand.expect('Region', '')
    assert hand.save('again.ico') == drawn


def test_the_readout_has_the_size_of_what_is_drawn(session):
    hand = Keyboard(session)
    hand.newIcon()
    for tool in ('Line', 'Rectangle', 'Filled Rectangle', 'Oval', 'Filled Oval', 'Region'):
        hand.choose(tool)
        hand.goTo(4, 6)
        session.keys('space')
        hand.goTo(15, 7)
        hand.expect('Size', '12 x 2')
        hand.expect('Position', 'X=16  Y=8')
        session.keys('Return')
        hand.expect('Size', '')
    hand.expect('Region', 'Region: Start [5, 7]   W=12 H=2')
    session.keys('shift+Down', 'shift+Left', 'shift+Left')
    hand.expect('Region', 'Region: Start [5, 7]   W=10 H=3')
