"""The magnification of the Editing Area by real keys and by the wheel, and what is drawn in it."""
from Xlib import X
from Xlib.protocol.event import ClientMessage

from test_drawing import COLOR, SIZE
from test_keyboard_drawing import Keyboard

WHEEL_UP, WHEEL_DOWN = 4, 5
NORMAL, ENLARGED = 12, 15
LEAST, MOST = 4, 40


class Zoomer(Keyboard):
    """A program with an icon of 32 pixels."""

    def magnification(self):
        return self.program.box(self.program.need('Editing Area'))[2] // SIZE

    def expectMagnification(self, magnification):
        self.program.wait(lambda: self.magnification() == magnification, f'{magnification} pixels per icon pixel')

    def hasScrollBars(self):
        return any(self.program.find(f'Scroll Editing Area {way}') for way in ('horizontally', 'vertically'))

    def turn(self, point, button, times):
        self.session.move(point)
        self.session.xdotool('keydown', 'ctrl')
        for _ in range(times):
            self.session.xdotool('click', button)
        self.session.xdotool('keyup', 'ctrl')
        self.session.screen.settle()


def maximise(screen):
    """Asks the window manager to maximise the active window."""
    add, fromProgram = 1, 1
    states = [screen.display.intern_atom(f'_NET_WM_STATE_MAXIMIZED_{way}') for way in ('VERT', 'HORZ')]
    window = screen.property(screen.root, '_NET_ACTIVE_WINDOW')[0]
    message = ClientMessage(window=window, client_type=screen.display.intern_atom('_NET_WM_STATE'),
                            data=(32, [add, *states, fromProgram, 0]))
    screen.root.send_event(message, event_mask=X.SubstructureRedirectMask | X.SubstructureNotifyMask)
    screen.display.flush()


def test_keys_and_wheel_zoom_and_the_area_scrolls(session):
    hand = Zoomer(session)
    hand.newIcon()
    hand.expectMagnification(NORMAL)
    assert not hand.hasScrollBars()
    hand.program.keys('ctrl+plus', 'ctrl+equal', 'ctrl+KP_Add')
    hand.expectMagnification(NORMAL + 3)
    hand.program.keys(*['ctrl+plus'] * 20)
    hand.expectMagnification(MOST)
    assert hand.hasScrollBars()
    before = hand.program.box(hand.program.need('Editing Area'))
    session.move(hand.artist.middle(10, 10))
    session.xdotool('click', WHEEL_DOWN)
    hand.program.wait(lambda: hand.program.box(hand.program.need('Editing Area'))[1] < before[1], 'the wheel to scroll')
    hand.program.keys(*['ctrl+minus'] * 30)
    hand.expectMagnification(LEAST)
    assert not hand.hasScrollBars()
    hand.program.keys('ctrl+0')
    hand.expectMagnification(NORMAL)
    hand.turn(hand.artist.middle(10, 10), WHEEL_UP, 5)
    hand.expectMagnification(18)
    hand.turn(hand.artist.middle(10, 10), WHEEL_DOWN, 2)
    hand.expectMagnification(15)
    hand.program.menu('File', 'New Icon 16x16')
    hand.program.wait(lambda: hand.program.value('Icon size') == '16 x 16', 'the other icon')
    hand.program.wait(lambda: hand.program.box(hand.program.need('Editing Area'))[2] == 16 * 15, 'the zoom of all icons')


def test_a_maximised_window_shows_what_the_option_gives_unless_zoomed(session):
    hand = Zoomer(session)
    hand.newIcon()
    hand.program.keys('ctrl+plus')
    hand.expectMagnification(NORMAL + 1)
    maximise(session.screen)
    hand.program.wait(lambda: hand.program.box(hand.program.mainForm())[2] > 1200, 'the maximised window')
    hand.expectMagnification(NORMAL + 1)
    hand.program.keys('ctrl+0')
    hand.expectMagnification(ENLARGED)
    hand.program.command('ctrl+w')
    hand.expectMagnification(NORMAL)


def test_what_is_drawn_in_a_zoomed_and_scrolled_area_is_what_is_drawn_without(session):
    hand = Zoomer(session)
    saved = []
    for zoom in ([], ['ctrl+plus'] * 20, ['ctrl+minus'] * 20):
        hand.newIcon()
        hand.program.keys('ctrl+0', *zoom)
        hand.typeColor('red')
        hand.choose('Paint')
        for pixel in ((0, 0), (31, 0), (31, 31), (0, 31), (17, 9)):
            hand.dot(*pixel)
        hand.typeColor('green')
        hand.choose('Line')
        hand.shape(2, 3, 29, 20)
        hand.choose('Filled Oval')
        hand.shape(30, 30, 12, 22)
        hand.choose('Region')
        hand.mark(12, 20, 20, 31)
        hand.moveRegion(15, 25, 3, -20)
        hand.mergeAt(1, 30)
        saved.append(hand.save(f'{len(saved)}.ico'))
    assert saved[1] == saved[0]
    assert saved[2] == saved[0]


def test_the_mouse_draws_in_a_scrolled_area(session):
    hand = Zoomer(session)
    hand.newIcon()
    hand.typeColor('red')
    hand.choose('Paint')
    hand.goTo(31, 31)
    hand.program.keys(*['ctrl+plus'] * 20)
    hand.expectMagnification(MOST)
    left, top, _, _ = hand.program.box(hand.program.need('Editing Area'))
    session.click((left + 28 * MOST + 3, top + 30 * MOST + 38))
    hand.program.keys('ctrl+0')
    hand.expectMagnification(NORMAL)
    hand.artist.findEditingArea()
    hand.program.wait(lambda: session.colorAt(hand.artist.middle(28, 30)) == COLOR['red'], 'the pixel under the mouse')
    assert sum(color == COLOR['red'] for row in hand.artist.shown() for color in row) == 1
