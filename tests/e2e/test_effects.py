"""Relief, button frames and disabled images: previewed in their panels, cancelled, applied and undone. The expected
results are computed here, pixel by pixel."""
import icons
import readers
from forms import ALPHA_REMINDER, write
from panels import BLACK, BUTTONIZE, DISABLED, GREY, SHADES, WHITE, PanelDesk

RED, RED_CELL = (255, 0, 0), (3, 0)
PALE, DIM = (0xE0,) * 3, (0x88,) * 3
DARK_BELOW = 153
TICK = 'Use currently selected color (otherwise black)'
STYLE = 'Style'
ROUNDS = 4
STYLES = '1', '2', '3'  # the first one is selected at the start
TOOLBAR_BUTTON = 'Buttonize icon'
DISABLED_MENU = 'Image For Disabled'
# Colours of the edge to the top left and to the bottom right.
RELIEFS = {'Embossed': (WHITE, GREY), 'Engraved': (GREY, WHITE), 'Raised': (WHITE, BLACK), 'Shadowed': (None, BLACK)}
REFUSAL = 'Current icon is with alpha, please run Convert 32 To 24 BPP to convert it to 24-BPP first.'
NO_ICON = 'No icon in Editing Area yet'
REDUCE_MENU = 'Reduce Colors Used'
REDUCTIONS = 'Confine Colors To 256', 'Confine Colors To 16', 'Confine To Mono'


# What effects make ---------------------------------------------------------------------------------------------------

def blank(size):
    return [[None] * size for _ in range(size)]


def islands(size):
    """Shapes and single pixels in many colours, up to all four edges, with gaps between them."""
    def pixel(x, y):
        isPainted = (x // 4 + y // 3) % 3 == 0 or x * y % 13 == 5
        return icons.COLORS_16[(x * x + 3 * y + x * y // 4) % 16] if isPainted else None
    return [[pixel(x, y) for x in range(size)] for y in range(size)]


def stamp(target, shape, step, color):
    """Paints where the shape is painted, `step` pixels right and down; `color` may be the pixel's own."""
    size = len(shape)
    for y, row in enumerate(shape):
        for x, pixel in enumerate(row):
            if pixel and 0 <= x + step < size and 0 <= y + step < size:
                target[y + step][x + step] = color(pixel)


def relief(picture, light, dark):
    result = blank(len(picture))
    stamp(result, picture, 1, lambda _: dark)
    if light:
        stamp(result, picture, -1, lambda _: light)
    stamp(result, picture, 0, lambda pixel: pixel)
    return result


def disabled(picture):
    shape = [[pixel if pixel and max(pixel) < DARK_BELOW else None for pixel in row] for row in picture]
    result = blank(len(picture))
    stamp(result, shape, 1, lambda _: WHITE)
    stamp(result, shape, 0, lambda _: GREY)
    return result


def line(picture, x1, y1, x2, y2, color):
    """Draws a line to the right or down, which ends one pixel before its second point."""
    if y1 == y2:
        picture[y1][x1:x2] = [color] * (x2 - x1)
    else:
        for y in range(y1, y2):
            picture[y][x1] = color


def box(picture, first, last, color):
    """Draws the outline of a square, both corners included."""
    for at in range(first, last + 1):
        picture[first][at] = picture[last][at] = picture[at][first] = picture[at][last] = color


def oneLine(picture, e):
    line(picture, 0, 0, e, 0, WHITE)
    line(picture, e, 0, e, e, BLACK)
    line(picture, 0, e, e, e, BLACK)
    line(picture, 0, 0, 0, e, WHITE)


def boxed(picture, e):
    box(picture, 0, e, BLACK)
    box(picture, 1, e - 1, WHITE)
    box(picture, 2, e - 2, WHITE)
    line(picture, e - 1, 1, e - 1, e - 1, GREY)
    line(picture, e - 2, 2, e - 2, e - 1, GREY)
    line(picture, 2, e - 2, e - 1, e - 2, GREY)
    line(picture, 1, e - 1, e - 1, e - 1, GREY)
    picture[e - 1][e - 1] = picture[e - 2][e - 1] = GREY


def twoTones(picture, e):
    line(picture, 0, 0, e, 0, WHITE)
    line(picture, 0, 1, e, 1, PALE)
    line(picture, e, 0, e, e, BLACK)
    line(picture, e - 1, 1, e - 1, e - 1, DIM)
    line(picture, 0, e, e, e, BLACK)
    line(picture, 1, e - 1, e - 1, e - 1, DIM)
    line(picture, 0, 0, 0, e, WHITE)
    line(picture, 1, 1, 1, e - 1, PALE)
    picture[e - 1][e - 1] = DIM


def button(picture, style):
    result, e = [list(row) for row in picture], len(picture) - 1
    {'1': oneLine, '2': boxed, '3': twoTones}[style](result, e)
    for x, y in ((0, 0), (0, e), (e, 0), (e, e)):
        result[y][x] = None
    return result


# At work -------------------------------------------------------------------------------------------------------------

def openIslands(desk, name, size):
    picture = islands(size)
    path = desk.openContent(name, icons.icon16(picture), size)
    desk.expectIcon(picture, 'the opened icon')
    return path, picture


def expectUntouched(desk, picture, what):
    desk.expectIcon(picture, f'the icon after {what} was given up')
    assert not desk.isPossible('Undo'), f'{what} was given up and can be undone'


def test_reliefs_are_looked_at_given_up_applied_undone_and_saved(session):
    desk = PanelDesk(session)
    for (kind, edges), size, key in zip(RELIEFS.items(), (32, 16, 48, 24), ([], ['Return'], ['space'], [])):
        path, picture = openIslands(desk, kind + '.ico', size)
        wanted = relief(picture, *edges)
        desk.effect(SHADES, kind)
        desk.program.need(kind, role='label')
        desk.expectSample(wanted, kind)
        assert bool(desk.program.find(TICK)) == (kind == 'Shadowed')
        desk.expectIcon(picture, 'the icon beside its sample')
        desk.close(SHADES)
        expectUntouched(desk, picture, kind)

        desk.effect(SHADES, kind)
        desk.proceed(SHADES, *key)
        desk.undoAndRedo(picture, wanted, kind)
        desk.save(path)
        readers.assertIcons(path, [(wanted, 4)])


def test_a_shadow_takes_the_selected_color_where_that_is_ticked(session):
    desk = PanelDesk(session)
    _, picture = openIslands(desk, 'a.ico', 32)
    black, red = relief(picture, None, BLACK), relief(picture, None, RED)
    desk.takeColor(RED_CELL, RED)
    desk.effect(SHADES, 'Shadowed')
    desk.expectSample(black, 'a black shadow')
    for wanted, what in ((red, 'a red shadow'), (black, 'a shadow without the tick'), (red, 'a red shadow again')):
        desk.program.press(TICK)
        desk.expectSample(wanted, what)
    desk.close(SHADES, 'Escape')
    expectUntouched(desk, picture, 'a shadow')

    desk.effect(SHADES, 'Embossed')
    desk.expectSample(relief(picture, *RELIEFS['Embossed']), 'a relief with colours of its own')
    desk.close(SHADES, 'Escape')

    desk.effect(SHADES, 'Shadowed')
    desk.expectSample(red, 'a shadow whose tick was left')
    desk.proceed(SHADES, 'Return')
    desk.undoAndRedo(picture, red, 'a red shadow')


def test_buttons_of_each_style_by_menu_key_and_toolbar(session):
    desk = PanelDesk(session)
    ways = (lambda: desk.program.menu('Effects', 'Buttonize'), lambda: desk.program.command('ctrl+F4'),
            lambda: desk.program.press(TOOLBAR_BUTTON))
    for style, start, size, bits in zip(STYLES[1:] + STYLES[:1], ways, (16, 24, 32), (4, 8, 4)):
        path, picture = openIslands(desk, f'style {style}.ico', size)
        wanted = button(picture, style)
        start()
        desk.waitForPanel(BUTTONIZE)
        desk.pickEntry(STYLE, style)
        desk.expectSample(wanted, f'style {style}')
        desk.expectIcon(picture, 'the icon beside its sample')
        desk.close(BUTTONIZE)
        expectUntouched(desk, picture, 'a button')

        start()
        desk.waitForPanel(BUTTONIZE)
        desk.expectSample(wanted, 'the style of before')
        desk.proceed(BUTTONIZE)
        desk.undoAndRedo(picture, wanted, f'style {style}')
        desk.save(path)
        readers.assertIcons(path, [(wanted, bits)])


def test_a_disabled_image_is_given_up_applied_undone_and_saved(session):
    desk = PanelDesk(session)
    path, picture = openIslands(desk, 'a.ico', 32)
    wanted = disabled(picture)
    for keys in ((), ('Escape',)):
        desk.effect(DISABLED, DISABLED_MENU)
        desk.expectSample(wanted, 'a disabled image')
        desk.close(DISABLED, *keys)
        expectUntouched(desk, picture, 'a disabled image')
    desk.effect(DISABLED, DISABLED_MENU)
    desk.proceed(DISABLED, 'Return')
    desk.undoAndRedo(picture, wanted, 'a disabled image')
    desk.save(path)
    readers.assertIcons(path, [(wanted, 4)])

    pale = [[WHITE if x > y else RED for x in range(16)] for y in range(16)]
    desk.openContent('pale.ico', icons.icon16(pale), 16)
    desk.effect(DISABLED, DISABLED_MENU)
    desk.expectSample(blank(16), 'a pale icon')
    desk.proceed(DISABLED)
    desk.undoAndRedo(pale, blank(16), 'the disabled image of a pale icon')


# Refused and interrupted ---------------------------------------------------------------------------------------------

def openAlpha(desk, name):
    picture = icons.motif(32, 32)
    path = write(desk.session, name, icons.fileOf([icons.entryOf(picture, 32)]))
    desk.program.command('ctrl+o')
    desk.program.chooseFile(path)  # the reminder follows, so the main form need not take keys in between
    desk.program.answerBox(ALPHA_REMINDER)
    desk.waitForIcon(32, path)
    return path, desk.shown(32)


def test_an_icon_with_alpha_and_a_missing_one_refuse_every_effect(session):
    desk = PanelDesk(session)
    desk.start()
    desk.program.command('ctrl+F4')
    desk.program.answerBox(NO_ICON)
    _, before = openAlpha(desk, 'alpha.ico')
    effects = *RELIEFS, BUTTONIZE, DISABLED_MENU
    for captions in [(effect,) for effect in effects] + [(REDUCE_MENU, run) for run in REDUCTIONS]:
        desk.program.menu('Effects', *captions)
        desk.program.answerBox(REFUSAL)
        assert not desk.program.find('Proceed'), f'{captions} brings its panel up'
    desk.program.press(TOOLBAR_BUTTON)
    desk.program.answerBox(REFUSAL)
    assert desk.shown(32) == before
    assert not desk.isPossible('Undo')


def test_a_panel_follows_the_icon_that_is_opened_while_it_is_up(session):
    desk = PanelDesk(session)
    openIslands(desk, 'first.ico', 32)
    desk.effect(SHADES, 'Raised')
    path, picture = openIslands(desk, 'second.ico', 16)
    wanted = relief(picture, *RELIEFS['Raised'])
    assert desk.isUp(SHADES)
    desk.expectSample(wanted, 'the other icon')
    desk.proceed(SHADES)
    desk.undoAndRedo(picture, wanted, 'a relief of the other icon')
    desk.save(path)
    readers.assertIcons(path, [(wanted, 4)])

    desk.effect(SHADES, 'Raised')
    _, before = openAlpha(desk, 'alpha.ico')
    desk.program.press('Proceed')
    desk.program.answerBox(REFUSAL)
    assert desk.shown(32) == before
    assert desk.isUp(SHADES)
    desk.program.press('Container 2')
    desk.waitForNoPanel(SHADES)


def test_clicks_in_quick_succession_change_nothing_and_a_double_click_on_proceed_applies_once(session):
    desk = PanelDesk(session)
    _, picture = openIslands(desk, 'a.ico', 32)
    # Clicks on the list must meet a control that does nothing when the panel has closed before.
    disabled = desk.program.centre(desk.program.need('Screen Color'))
    desk.program.command('ctrl+F4')
    desk.waitForPanel(BUTTONIZE)
    style = disabled[0], desk.program.centre(desk.program.need(STYLE, role='combo box'))[1]
    close = desk.program.centre(desk.program.need('Close'))
    desk.openList(STYLE)
    entries = [(disabled[0], desk.entryPoint(entry)[1]) for entry in STYLES]
    session.keys('Escape')
    for _ in range(ROUNDS):
        desk.clickAtOnce(style, entries[1], style, entries[2], close, style, entries[0], close, close)
        desk.program.command('ctrl+F4')
        desk.waitForPanel(BUTTONIZE)
    desk.close(BUTTONIZE)
    expectUntouched(desk, picture, 'a button')

    desk.effect(SHADES, 'Raised')
    proceed = desk.program.centre(desk.program.need('Proceed'))
    desk.clickAtOnce(proceed, proceed)
    desk.waitForNoPanel(SHADES)
    desk.undoAndRedo(picture, relief(picture, *RELIEFS['Raised']), 'a relief')


# By keyboard ---------------------------------------------------------------------------------------------------------

def test_a_button_is_made_by_keyboard_alone(session):
    desk = PanelDesk(session)
    _, picture = openIslands(desk, 'a.ico', 32)
    desk.program.menuByKeys('alt+c', 'b')
    desk.waitForPanel(BUTTONIZE)
    assert desk.isFocusedOn(STYLE, 'combo box'), 'the list does not have the focus'
    desk.program.command('Down', 'Down')
    desk.expectSample(button(picture, '3'), 'style 3')
    desk.tabTo('Proceed', 'Close')
    desk.close(BUTTONIZE, 'space')
    expectUntouched(desk, picture, 'a button')

    desk.program.command('ctrl+F4')
    desk.waitForPanel(BUTTONIZE)
    desk.program.command('Home', 'Down')
    desk.tabTo('Proceed')
    desk.program.command('alt+s')
    desk.program.wait(lambda: desk.isFocusedOn(STYLE, 'combo box'), 'the list by its access key')
    desk.expectSample(button(picture, '2'), 'style 2')
    desk.proceed(BUTTONIZE, 'Return')
    desk.undoAndRedo(picture, button(picture, '2'), 'style 2')

    desk.program.menuByKeys('alt+c', 'w')
    desk.waitForPanel(SHADES)
    assert desk.isFocusedOn(TICK, 'check box'), 'the tick does not have the focus'
    desk.program.command('space')
    desk.expectSample(relief(button(picture, '2'), None, WHITE), 'a shadow in the current colour')
    desk.tabTo('Proceed')
    desk.proceed(SHADES, 'space')
