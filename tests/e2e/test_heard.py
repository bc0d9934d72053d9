"""What is heard on the accessibility bus: roles, names and values, and what the live region announces."""
import icons
import pyatspi
from forms import Desk, write
from hearing import DESCRIBED, Hearing


def everything(program, top):
    """Every control below `top`, hidden ones too, each with the one that holds it."""
    waiting = [(top, None)]
    while waiting:
        control, holder = waiting.pop()
        if not control:
            continue
        yield control, holder
        waiting += [(child, control) for child in program.children(control)]


def state(control, which):
    return control.getState().contains(which)


def roleOf(program, name, role):
    return program.need(name, role=role)


def test_what_is_announced_on_a_road_of_thirty_actions(session):
    path = write(session, 'road.ico', icons.icons((32, 4)))
    program = session.start()
    expected = []

    def act(action, *notices):
        expected.extend(notices)
        action()
        hearing.waitForNotices(len(expected))
        assert hearing.notices() == expected, f'{hearing.notices()} is not {expected}'

    def keys(*names):
        return lambda: program.command(*names)

    def click(x, y):
        return lambda: session.click(program.pixelPoint(x, y, 32))

    def drag(*pixels):
        return lambda: session.drag([program.pixelPoint(x, y, 32) for x, y in pixels])

    def openRoad():
        program.command('ctrl+o')
        program.answerFileDialog(path)

    def saveAs(name):
        def save():
            program.command('ctrl+t')
            program.answerFileDialog(session.path(name))
        return save

    with Hearing(session, program) as hearing:
        act(openRoad, 'Opened road.ico')
        act(keys('F4'), 'Paint')
        act(click(3, 3))
        act(keys('ctrl+z'), 'Undone')
        act(keys('ctrl+z'), 'Nothing to undo')
        act(keys('ctrl+r'), 'Redone')
        act(keys('ctrl+r'), 'Nothing to redo')
        act(keys('ctrl+s'), 'Saved')
        act(keys('F5'), 'Erase')
        act(keys('F5'), 'No tool')
        act(keys('shift+F7'), 'Region')
        act(drag((2, 2), (5, 5), (14, 10)), 'Region 12 x 8')
        act(keys('ctrl+c'), 'Copied')
        act(keys('ctrl+x'), 'Cut and copied')
        act(keys('ctrl+x'), 'No region')
        act(keys('ctrl+v'), 'Pasted')
        act(keys('ctrl+u'), 'Erased')
        act(keys('F2'), 'No tool')
        act(keys('F4'), 'Paint')
        act(click(20, 20))
        act(keys('ctrl+y'), 'All undone')
        act(keys('F3'), 'Only with the 256-color palette')
        act(saveAs('other.ico'), 'Saved')
        act(lambda: program.press('Container 3'), 'Container 3, empty')
        act(keys('ctrl+e'), 'New icon 16 x 16')
        act(lambda: program.press('Container 1'), 'Container 1, other.ico')
        act(keys('ctrl+m'), 'Icon is not from a multi-icon file')
        act(lambda: program.menu('Rotate', 'Rotate At Any Selected Angle'), 'Rotate image (-359 to +359)')
        act(lambda: program.command('Escape'))
        act(lambda: program.menu('Effects', 'Buttonize'), 'Buttonize')
        act(lambda: program.press('Proceed'), 'Applied')
        act(lambda: program.press('Undo'), 'Undone')
        act(lambda: program.menu('Edit', 'Clear Clipboard'), 'Clipboard cleared')
        act(keys('shift+F2'), 'Line')


def test_a_refusal_with_a_box_and_a_command_given_up_announce_nothing(session):
    program = session.start()
    with Hearing(session, program) as hearing:
        program.command('ctrl+s')
        program.answerBox('No icon in Editing Area yet')
        program.command('ctrl+e')
        hearing.waitForNotices(1)
        program.command('ctrl+t')
        program.giveUpFile()
        program.waitForNoDialog()
        program.command('F4')  # Paint is chosen already, with the new icon
        hearing.waitForNotices(2)
        assert hearing.notices() == ['New icon 16 x 16', 'No tool'], hearing.notices()


def test_a_value_is_reported_once_and_only_when_it_changes(session):
    program = session.start()
    with Hearing(session, program, DESCRIBED) as hearing:
        def colors():
            return [name for _, _, name, _ in hearing.events() if name == 'Color to use']

        program.command('ctrl+n')
        program.wait(lambda: program.value('Icon size') == '32 x 32', 'the new icon')
        program.command('ctrl+w')
        assert colors() == []
        session.click(program.chartPoint('16-Color Palette', 1, 1, 8, 2))
        hearing.waitFor(lambda _: colors(), 'the colour')
        program.menu('Edit', 'Clear Container')
        program.answerBox('Clear current icon from container.', 'alt+y')
        program.wait(lambda: program.value('Icon size') == '', 'the empty container')
        assert len(colors()) <= 2, 'once for the choice, at most once for the chart of the empty container'


def test_containers_and_tools_are_radio_buttons_with_the_current_one_checked(session):
    path = write(session, 'first.ico', icons.icons((32, 4)))
    program = session.start(path)
    program.wait(lambda: program.value('Icon size') == '32 x 32', 'the icon')
    containers = [roleOf(program, f'Container {number}', 'radio button') for number in range(1, 7)]
    assert [container.description for container in containers] == ['first.ico'] + ['empty'] * 5
    assert [state(container, pyatspi.STATE_CHECKED) for container in containers] == [True] + [False] * 5
    program.press('Container 4')
    program.wait(lambda: state(containers[3], pyatspi.STATE_CHECKED), 'container 4 to be checked')
    assert not state(containers[0], pyatspi.STATE_CHECKED)
    program.press('Container 1')
    program.wait(lambda: program.value('Icon size') == '32 x 32', 'the icon')
    program.menu('Palette', '256-Color Palette')
    for name in ('Paint', 'Erase', 'Region', 'Color Picker', 'Set/unset shift image'):
        tool = roleOf(program, name, 'radio button')
        program.press(name)
        program.wait(lambda: state(tool, pyatspi.STATE_CHECKED), f'"{name}" to be checked')
    checked = [control.name for control in program.walk(program.mainForm())
               if control.getRoleName() == 'radio button' and state(control, pyatspi.STATE_CHECKED)]
    assert checked == ['Container 1', 'Set/unset shift image']


def test_groups_have_names(session):
    program = session.start(write(session, 'a.ico', icons.icons((32, 4))))
    roleOf(program, 'Toolbar', 'tool bar')
    roleOf(program, 'Status', 'status bar')
    for name in ('Containers', 'Tools', 'Shift image', 'Readouts', 'Color panel', 'Color', 'Brush', 'Palette'):
        roleOf(program, name, 'panel')
    program.menu('Palette', '256-Color Palette')
    roleOf(program, 'Color Mixer', 'panel')
    program.menu('Rotate', 'Rotate At Any Selected Angle')
    roleOf(program, 'Rotate image (-359 to +359)', 'panel')


def test_nothing_is_described_by_its_name_or_read_twice(session):
    program = session.start(write(session, 'a.ico', icons.icons((32, 4))))
    program.menu('Palette', '256-Color Palette')
    program.need('Color Mixer', role='panel')
    for control, _ in everything(program, program.mainForm()):
        assert not control.name or control.description != control.name, f'{control.getRoleName()} {control.name!r}'
    for name in ('File', 'Icon size'):
        field = roleOf(program, name, 'label')
        assert field.description == ''
        assert field.queryText().getText(0, -1) != name
    spoken = [control.name for control in program.walk(program.need('Status', role='status bar')) if control.getRoleName() == 'label']
    assert spoken == ['File', 'Headers', 'Several icons', 'Icon size', 'Alpha']
    numbers = [control for control in program.walk(program.need('Containers', role='panel')) if control.getRoleName() == 'label']
    assert not numbers, 'the containers say their numbers themselves'


def test_a_transparent_pixel_is_spoken_as_transparent(session):
    program = session.start()
    program.command('ctrl+e')
    program.wait(lambda: program.value('Icon size') == '16 x 16', 'the new icon')
    program.goTo('Editing Area')
    session.keys('Right')
    program.wait(lambda: program.value('Editing Area').endswith('X=2  Y=1  transparent'), 'the pixel')
    program.menu('Options', 'Display Pixel RGB')
    session.move(program.pixelPoint(3, 3, 16))
    program.wait(lambda: program.value('Color of pixel') == 'transparent', 'the readout')


def test_hidden_faces_are_not_showing(session):
    """Neither the hidden frames of the colour panel and side panels, nor the lists of the browser's hidden faces. Qt's
    drop-down lists are left out: their entries claim to be visible in every program."""
    path = write(session, 'several.ico', icons.icons((16, 4), (32, 4)))
    desk = Desk(session)
    desk.openIcons(path)
    for window in desk.program.windows():
        hidden = set()
        for control, holder in everything(desk.program, window):
            if holder and holder.getRoleName() == 'combo box':
                continue
            inHidden = holder is not None and (id(holder) in hidden or not desk.program.isShown(holder))
            if inHidden and holder.getRoleName() not in ('menu bar', 'menu item', 'popup menu', 'list', 'combo box'):
                assert not desk.program.isShown(control), f'{control.getRoleName()} {control.name!r} in {holder.name!r}'
