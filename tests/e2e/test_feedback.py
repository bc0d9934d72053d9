"""Feedback away from the pointer: title, tooltips, notices and the status row."""
import os

import icons
from forms import write

HOVER_SECONDS = 30


def title(program):
    return program.mainForm().name


def test_the_title_names_the_icon_and_marks_unsaved_work(session):
    path = write(session, 'first.ico', icons.icons((16, 4)))
    program = session.start()
    program.wait(lambda: title(program) == 'Glimmerpane', 'the title of the empty form')
    program.command('ctrl+o')
    program.answerFileDialog(path)
    program.wait(lambda: title(program) == 'first.ico - Glimmerpane', 'the title of the file')
    program.press('Paint')
    session.click(program.pixelPoint(3, 3, 16))
    program.wait(lambda: title(program) == 'first.ico* - Glimmerpane', 'the mark of unsaved work')
    program.command('ctrl+s')
    program.wait(lambda: title(program) == 'first.ico - Glimmerpane', 'the mark to go')
    program.press('Container 2')
    program.wait(lambda: title(program) == 'Glimmerpane', 'the title of the empty container')
    program.command('ctrl+e')
    program.wait(lambda: title(program) == 'Untitled - Glimmerpane', 'the title of a new icon')


def test_a_second_copy_finds_the_first_one_whatever_its_title_is(session):
    path = write(session, 'Glimmerpane By Zorvex Lattice', icons.icons((16, 4)))
    os.rename(path, path + '.ico')
    program = session.start(path + '.ico')
    program.wait(lambda: title(program) == 'Glimmerpane By Zorvex Lattice.ico - Glimmerpane', 'the file')
    second = session.start(window=False)
    box = second.wait(second.messageBox, 'the box of the second copy')
    assert 'Program is already running.' in second.dialogText(box)
    session.keys('Return')
    assert second.waitForEnd() == 0
    assert title(program).startswith('Glimmerpane By'), 'the first copy goes on'


def test_a_notice_is_shown_in_the_status_bar_and_goes(session):
    program = session.start()
    program.command('ctrl+e')
    notice = program.need('New icon 16 x 16', role='notification')
    x, y, width, height = program.box(notice)
    left, top, wide, high = program.box(program.need('Status', role='status bar'))
    assert left <= x and x + width <= left + wide and top <= y and y + height <= top + high
    program.wait(lambda: not program.find('New icon 16 x 16'), 'the notice to go')


def toolTip(session, program):
    """The window of the tooltip that is shown, or None."""
    return next((window for window in program.windows() if window.getRoleName() == 'tool tip'), None)


def test_tooltips_of_the_toolbar_and_tools_carry_the_key(session):
    program = session.start(write(session, 'a.ico', icons.icons((16, 4))))
    for name, key in (('Save to icon file', 'Ctrl+S'), ('Paint', 'F4')):
        session.move((5, 5))
        session.move(program.centre(program.need(name)))
        tip = program.wait(lambda: toolTip(session, program), f'the tooltip of "{name}"', HOVER_SECONDS)
        assert key in tip.name and name in tip.name, tip.name
        control = program.need(name)
        assert '<' not in control.name + control.description
        assert key not in control.name + control.description
        session.move((5, 5))
        program.wait(lambda: not toolTip(session, program), 'the tooltip to go', HOVER_SECONDS)


def test_history_entries_show_the_whole_path(session):
    path = write(session, 'in history.ico', icons.icons((16, 4)))
    program = session.start()
    program.command('ctrl+o')
    program.answerFileDialog(path)
    program.wait(lambda: program.value('File') == path, 'the file')
    menu = program.openMenu('File')
    session.move(program.centre(program.need('Exit', under=menu)))
    session.move(program.centre(program.need('1 ', under=menu, startsWith=True, role='menu item')))
    tip = program.wait(lambda: toolTip(session, program), 'the tooltip', HOVER_SECONDS)
    assert tip.name == path


def useFont(session, points):
    """Sets the size of the desktop's font for programs that start from now on."""
    os.environ.update(QT_QPA_PLATFORMTHEME='kde', KDE_SESSION_VERSION='5', XDG_CURRENT_DESKTOP='KDE')
    folder = os.environ['XDG_CONFIG_HOME']
    os.makedirs(folder, exist_ok=True)
    with open(os.path.join(folder, 'kdeglobals'), 'w', encoding='utf-8') as file:
        for key in ('font', 'menuFont', 'toolBarFont'):
            file.write('[General]\n' * (key == 'font') + f'{key}=DejaVu Sans,{points},-1,5,50,0,0,0,0,0\n')


def test_the_status_row_is_whole_with_large_fonts(session):
    path = write(session, 'a.ico', icons.icons((48, 4)))
    for points in (9, 12, 14):
        useFont(session, points)
        program = session.start(path)
        program.wait(lambda: program.value('Icon size') == '48 x 48', 'the icon')
        _, top, _, height = program.box(program.need('Status', role='status bar'))
        _, formTop, _, formHeight = program.box(program.mainForm())
        assert top + height <= formTop + formHeight, 'the row is inside the form'
        for name in ('File', 'Headers', 'Several icons', 'Icon size', 'Alpha'):
            _, y, _, high = program.box(program.need(name, role='label'))
            assert top <= y and y + high <= top + height, (points, name)
            assert high >= points * 4 // 3, (points, name, high)
        if 'GP_LOOK' in os.environ:
            session.picture().save(f"{os.environ['GP_LOOK']}/row{points}.png")
        program.command('alt+f', 'x')
        assert program.waitForEnd() == 0
