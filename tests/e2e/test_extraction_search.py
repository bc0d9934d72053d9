"""The icons of the desktop's shortcuts; and a tree of programs that is searched, stopped and searched again."""
import os

import icons
import libraries
from extracting import LIST, RIGHT_BUTTON, SEARCH, ListDesk
from forms import write


def test_the_shortcuts_of_the_desktop_are_listed(session):
    desktop = session.path('desktop')
    os.mkdir(desktop)
    os.environ['XDG_DESKTOP_DIR'] = desktop
    configuration = os.path.join(os.environ['XDG_CONFIG_HOME'])
    os.makedirs(configuration, exist_ok=True)
    with open(os.path.join(configuration, 'user-dirs.dirs'), 'w', encoding='utf-8') as file:
        file.write(f'XDG_DESKTOP_DIR="{desktop}"\n')
    picture = icons.motif(32, 4, 1)
    icon = write(session, 'own.ico', icons.fileOf([icons.entryOf(picture, 4)]))
    write(session, 'desktop/own.desktop', f'[Desktop Entry]\nType=Application\nName=Own\nIcon={icon}\n'.encode())
    write(session, 'desktop/words.txt', b'words')
    desk = ListDesk(session)
    desk.start()
    desk.program.menu('Extract', 'Extract Desktop Icons....')
    desk.waitForCounts(2, 2)
    desk.click(0, button=RIGHT_BUTTON)
    desk.waitForNoPanel(LIST)
    desk.expectIcon(picture, 'the icon of the shortcut')


def fill(desk, name, text):
    """Clicks on a field and types."""
    desk.program.press(name, role='text')
    desk.program.typeInto(name, text, role='text')


def startSearch(desk, source, target, *ticks):
    desk.program.menu('Extract', 'Search & Extract Icons From All EXE Files In Folder....')
    desk.waitForPanel(SEARCH)
    fill(desk, 'Search in', source)
    fill(desk, 'Save to', target)
    for tick in ticks:
        desk.program.press(tick, role='check box')


def expectProgress(desk, text):
    desk.program.wait(lambda: desk.program.value('Progress', role='label') == text,
                      f'"{text}"; it is "{desk.program.value("Progress", role="label")}"')


def test_a_tree_is_searched_and_its_icons_are_saved(session):
    source, target = session.path('tree'), session.path('out')
    for name in (source, target, os.path.join(source, 'sub')):
        os.mkdir(name)
    write(session, 'tree/a.exe', libraries.portableExecutable(libraries.motifs(2)))
    write(session, 'tree/none.exe', b'no program')
    write(session, 'tree/sub/b.exe', libraries.newExecutable(libraries.motifs(3)))
    desk = ListDesk(session)
    desk.start()
    startSearch(desk, source, target)
    desk.program.press('Proceed')
    expectProgress(desk, 'Total: 2 icons')
    assert sorted(os.listdir(target)) == ['a0_x.ico', 'a1_x.ico']
    assert icons.readByPillow(os.path.join(target, 'a1_x.ico')) == icons.motif(32, 4, 1)

    other = session.path('other')
    os.mkdir(other)
    fill(desk, 'Save to', other)
    for tick in ('Incl Subdir', 'Small icons', 'Add serial prefix to file name'):
        desk.program.press(tick, role='check box')
    desk.program.press('Proceed')
    expectProgress(desk, 'Total: 5 icons')
    # The folders within come first.
    assert sorted(os.listdir(other)) == ['0_b.ico', '1_b.ico', '2_b.ico', '3_a.ico', '4_a.ico']
    assert icons.readByPillow(os.path.join(other, '4_a.ico')) == icons.motif(16, 4, 1)
    assert desk.refs('Files with icons') == [os.path.join(source, 'sub', 'b.exe') + '  3', os.path.join(source, 'a.exe') + '  2']


def test_a_search_is_stopped_and_started_again(session):
    source, target = session.path('tree'), session.path('out')
    os.mkdir(source)
    os.mkdir(target)
    program, count = libraries.portableExecutable(libraries.motifs(40)), 100
    for i in range(count):
        write(session, f'tree/{i:03}.exe', program)
    desk = ListDesk(session)
    desk.start()
    startSearch(desk, source, target)
    fill(desk, 'Max', str(40 * count))
    desk.program.press('Proceed')
    desk.program.wait(lambda: len(os.listdir(target)) > 40, 'the first icons')
    session.keys('Escape')
    desk.program.wait(lambda: (desk.program.value('Progress', role='label') or '').startswith('Total: '), 'the search to stop')
    written = len(os.listdir(target))
    assert 40 < written < 40 * count, f'{written} files'
    expectProgress(desk, f'Total: {written} icons')
    assert desk.isUp(SEARCH)

    # The target has icon files now.
    fill(desk, 'Max', '41')
    desk.program.press('Proceed')
    box = desk.program.wait(desk.program.messageBox, 'the question about the files in the target')
    assert box
    session.keys('alt+y')
    expectProgress(desk, 'Total: 41 icons')
