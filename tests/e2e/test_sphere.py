"""Sphere and gradient: the light and the centre picked by mouse and by keys, applied and undone."""
import icons
from panels import PanelDesk

SPHERE, SPHERE_MENU, LIGHT = 'Auto-draw sphere', 'Auto-Draw Sphere', 'Click to set the light'
GRADIENT, GRADIENT_MENU, CENTER = 'Gradient unpainted area', 'Gradient Unpainted', 'Click to change center point'
QUESTION = 'Sphere creation will replace the current image on icon, if any.'
TOO_SMALL = 'Current icon is less then 32x 32.'
OFF_SPHERE = 'Please click a point on sphere'
FRAME = 1
SAMPLE = 32  # the side of the sphere's sample
BLUE, WHITE = (0, 0, 255), (255, 255, 255)


def openMotif(desk, name, size):
    """An icon with a painted square in its middle."""
    def pixel(x, y):
        return icons.COLORS_16[9] if size // 4 <= x < size // 2 and size // 4 <= y < size // 2 else None
    picture = [[pixel(x, y) for x in range(size)] for y in range(size)]
    desk.openContent(name, icons.fileOf([icons.entryOf(picture, 24)]), size)
    return picture


def pixelOf(desk, name, size, x, y):
    """The position of a pixel of a sample."""
    left, top, width, height = desk.program.box(desk.program.need(name, role='image'))
    factor = (min(width, height) - 2 * FRAME) // size
    return left + FRAME + factor * x + factor // 2, top + FRAME + factor * y + factor // 2


def test_a_sphere_is_lit_by_mouse_and_keys_applied_and_undone(session):
    desk = PanelDesk(session)
    picture = openMotif(desk, 'a.ico', 48)
    desk.effect(SPHERE, SPHERE_MENU)
    before = desk.sample(LIGHT, SAMPLE)
    session.click(pixelOf(desk, LIGHT, SAMPLE, 20, 24))
    desk.program.wait(lambda: desk.program.value(LIGHT, role='image') == '20, 24', 'the point to be spoken')
    clicked = desk.sample(LIGHT, SAMPLE)
    assert clicked != before
    desk.program.command('Left', 'Up', 'Return')
    desk.program.wait(lambda: desk.program.value(LIGHT, role='image') == '19, 23', 'the other point to be spoken')
    desk.program.wait(lambda: desk.sample(LIGHT, SAMPLE)[10][10] != clicked[10][10], 'the sample to change')
    session.click(pixelOf(desk, LIGHT, SAMPLE, 0, 0))
    desk.program.answerBox(OFF_SPHERE)
    desk.expectIcon(picture, 'the icon beside its sample')

    desk.program.press('Proceed')
    desk.program.answerBox(QUESTION, key='alt+n')
    assert desk.isUp(SPHERE)
    ball = desk.sample(LIGHT, SAMPLE)
    desk.program.press('Proceed')
    desk.program.answerBox(QUESTION, key='alt+y')
    desk.waitForNoPanel(SPHERE)
    desk.program.wait(lambda: [row[8:40] for row in desk.shown(48)[8:40]][4:] == ball[4:], 'the ball on the icon')
    desk.program.command('ctrl+z')
    desk.expectIcon(picture, 'the icon of before')


def test_a_small_icon_takes_a_small_sphere_only(session):
    desk = PanelDesk(session)
    openMotif(desk, 'a.ico', 16)
    desk.effect(SPHERE, SPHERE_MENU)
    assert desk.held('Size') == 'Tiny'
    assert not desk.program.isEnabled(desk.program.need('Color adj factor', role='combo box'))
    desk.program.goTo('Size', role='combo box')
    desk.program.command('Home')
    desk.program.answerBox(TOO_SMALL)
    assert desk.held('Size') == 'Tiny'
    desk.close(SPHERE, 'Escape')


def test_a_gradient_is_centred_by_mouse_applied_and_undone(session):
    desk = PanelDesk(session)
    picture = openMotif(desk, 'a.ico', 16)
    desk.effect(GRADIENT, GRADIENT_MENU)
    desk.program.press('Spherical', role='radio button')
    session.click(pixelOf(desk, CENTER, 16, 2, 13))
    desk.program.wait(lambda: desk.program.value(CENTER, role='image') == '2, 13', 'the point to be spoken')
    desk.program.press('Swap 1st & 2nd colors')
    shown = desk.sample('Sample', 16)
    assert shown[13][2] != shown[0][15]
    desk.proceed(GRADIENT)
    desk.program.wait(lambda: desk.shown(16) == shown, 'the gradient on the icon')
    assert [[shown[y][x] for x in range(4, 8)] for y in range(4, 8)] == [row[4:8] for row in picture[4:8]]
    desk.program.command('ctrl+z')
    desk.expectIcon(picture, 'the icon of before')
