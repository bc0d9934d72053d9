"""Icons out of folders, libraries, animated cursors, other files and the desktop: listed, paged, clicked and saved, by
mouse and by keyboard alone; and a tree of programs that is searched, stopped and searched again."""
import os
import struct

import icons
import libraries
from extracting import ANOTHER, LIST, RIGHT_BUTTON, SEARCH, ListDesk
from forms import read, write

GROUND = (192, 192, 192)
INVALID = 'This one is an invalid icon file or of a size not 16x16, 24x24, 32x32 or 48x48.'
LARGE, SMALL = 'Extract Large Icons - DLL Or Similar Resource....', 'Extract Small Icons - DLL Or Similar Resource....'
NO = 'alt+n'


def motifs(count, bits=4):
    """Icons of a large and a small image each."""
    return [[icons.entryOf(icons.motif(size, bits, seed), bits) for size in (32, 16)] for seed in range(count)]


def iconFolder(session, count, name='icons'):
    os.mkdir(session.path(name))
    for i in range(count):
        write(session, os.path.join(name, f'{i:03}.ico'), icons.fileOf([icons.entryOf(icons.motif(32, 4, i), 4)]))
    return session.path(name)


def openList(desk, path, shown, all, *menu):
    """Opens a file by a command of the Extract menu."""
    desk.program.menu('Extract', *menu)
    desk.program.answerFileDialog(path)
    desk.waitForCounts(shown, all)


def expectContainer(desk, size, name):
    desk.program.wait(lambda: desk.program.value('Icon size') == f'{size} x {size}' and desk.program.value('File') == name,
                      f'{name} of {size} in the container; it is {desk.program.value("File")}')


def expectSaved(desk, name, picture):
    path = desk.session.path(name)
    desk.saveNew(path)
    for reader, readPicture in icons.READERS.items():
        assert readPicture(path) == picture, f'{reader} sees another picture in {name}'


def test_a_folder_is_listed_paged_and_clicked(session):
    folder = iconFolder(session, 60)
    write(session, 'icons/bad.ico', b'no icon')
    write(session, 'icons/two.ico', icons.icons((32, 4), (16, 4)))
    desk = ListDesk(session)
    desk.start()
    desk.program.command('ctrl+d')
    desk.chooseFolder(folder)
    desk.waitForCounts(48, 62)
    assert desk.program.value('Source', role='label') == folder
    assert len(desk.colorsIn(0)) > 2, 'the first icon is not visible'

    desk.click(4)
    expectContainer(desk, 32, f'{folder}{os.sep}004.ico')
    assert desk.isUp(LIST)
    desk.program.press('Page 2')
    desk.click(0)
    desk.waitForMark('Icon 13 of 62, 012.ico, 32 by 32')
    expectContainer(desk, 32, f'{folder}{os.sep}012.ico')
    desk.program.press('Next panel')
    desk.waitForCounts(14, 62)
    # The second page of the second panel has two cells.
    desk.program.press('Next page')
    desk.click(0)
    desk.program.answerBox(INVALID)
    assert desk.isUp(LIST)
    desk.program.press('Next panel')
    desk.waitForCounts(48, 62)
    desk.click(2, button=RIGHT_BUTTON)
    desk.waitForNoPanel(LIST)
    expectContainer(desk, 32, f'{folder}{os.sep}002.ico')
    desk.expectIcon(icons.motif(32, 4, 2), 'the icon of the right click')


def test_icons_of_programs_and_libraries_are_saved_as_they_are(session):
    large = write(session, 'tool.exe', libraries.portableExecutable(motifs(5)))
    small = write(session, 'old.dll', libraries.newExecutable(motifs(3)))
    desk = ListDesk(session)
    desk.start()
    openList(desk, large, 5, 5, LARGE)
    desk.click(3)
    expectContainer(desk, 32, session.path('tool_4'))
    expectSaved(desk, 'large.ico', icons.motif(32, 4, 3))
    desk.close(LIST)
    openList(desk, small, 3, 3, SMALL)
    desk.click(2, button=RIGHT_BUTTON)
    desk.waitForNoPanel(LIST)
    expectContainer(desk, 16, session.path('old_3'))
    desk.expectIcon(icons.motif(16, 4, 2), 'the small icon')
    expectSaved(desk, 'small.ico', icons.motif(16, 4, 2))
    assert read(large) == libraries.portableExecutable(motifs(5)) and read(small) == libraries.newExecutable(motifs(3))


def test_alpha_of_a_library_is_kept(session):
    picture = icons.motif(32, 32)
    path = write(session, 'alpha.dll', libraries.portableExecutable([[icons.entryOf(picture, 32)]]))
    desk = ListDesk(session)
    desk.start()
    openList(desk, path, 1, 1, LARGE)
    desk.click(0, button=RIGHT_BUTTON)
    desk.waitForNoPanel(LIST)
    expectContainer(desk, 32, session.path('alpha_1'))
    assert desk.program.value('Alpha'), 'no alpha'
    saved = session.path('saved.ico')
    desk.saveNew(saved)
    (entry,) = icons.readEntries(saved)
    assert struct.unpack_from('<H', entry.image, 14) == (32,)
    assert entry.image == icons.image(picture, 32)


def test_images_of_a_scanned_file_are_listed_with_their_sizes(session):
    path = write(session, 'any.icl', b'some bytes' + icons.image(icons.motif(48, 8), 8) + b'()' + icons.image(icons.motif(16, 4), 4))
    desk = ListDesk(session)
    desk.start()
    openList(desk, path, 2, 2, 'Extract Icons From ICL File ....')
    desk.click(0)
    expectContainer(desk, 48, session.path('any_1'))
    desk.click(1, button=RIGHT_BUTTON)
    expectContainer(desk, 16, session.path('any_2'))
    desk.expectIcon(icons.motif(16, 4), 'the second image')


def test_a_file_of_any_type_has_a_large_and_a_small_icon(session):
    path = write(session, 'notes.txt', b'words')
    desk = ListDesk(session)
    desk.start()
    openList(desk, path, 2, 2, 'Extract Icons Associated With Any File Type ....')
    for cell in (0, 1):
        assert len(desk.colorsIn(cell)) > 1, f'no icon in cell {cell}'
    desk.click(1)
    expectContainer(desk, 16, session.path('notes_Extract'))
    desk.click(0, button=RIGHT_BUTTON)
    expectContainer(desk, 32, session.path('notes_Extract'))


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


def aniFile(frames):
    """An animated cursor of these pictures, each for six jiffies."""
    def chunk(tag, body):
        return struct.pack('<4sI', tag, len(body)) + body + bytes(len(body) % 2)
    header = struct.pack('<9I', 36, len(frames), len(frames), 0, 0, 0, 0, 6, 1)
    content = chunk(b'anih', header) + chunk(b'LIST', b'fram' + b''.join(chunk(b'icon', frame) for frame in frames))
    return chunk(b'RIFF', b'ACON' + content)


def test_frames_of_an_animated_cursor_are_extracted_and_saved_together(session):
    pictures = [icons.motif(32, 4, seed) for seed in range(5)]
    path = write(session, 'film.ani', aniFile([icons.cursor(picture, 4, 3, 4) for picture in pictures]))
    target = session.path('frames')
    os.mkdir(target)
    desk = ListDesk(session)
    desk.start()
    desk.program.command('ctrl+k')
    desk.program.answerFileDialog(path)
    desk.waitForCounts(5, 5)
    desk.click(2)
    expectContainer(desk, 32, session.path('film_3'))
    expectSaved(desk, 'frame.ico', pictures[2])

    desk.program.press('Save all frames as icon files (ico)')
    desk.chooseFolder(target)
    desk.program.answerBox('Frames will be saved as', 'alt+y')
    paths = [os.path.join(target, f'film_{number}.ico') for number in range(1, 6)]
    desk.program.wait(lambda: sorted(os.listdir(target)) == [os.path.basename(path) for path in paths], 'the files')
    desk.program.wait(lambda: desk.program.isEnabled(desk.program.need(ANOTHER)), 'the end of the save')
    assert [icons.readByPillow(path) for path in paths] == pictures


def test_the_list_works_by_keyboard_alone(session):
    folder = iconFolder(session, 60)
    desk = ListDesk(session)
    desk.start()
    desk.program.command('ctrl+d')
    desk.chooseFolder(folder)
    desk.waitForCounts(48, 60)
    desk.program.command('Home')
    desk.waitForMark('Icon 1 of 60, 000.ico, 32 by 32')
    desk.program.command('Down', 'Right')
    desk.waitForMark('Icon 5 of 60, 004.ico, 32 by 32')
    desk.program.command('Return')
    expectContainer(desk, 32, f'{folder}{os.sep}004.ico')
    assert desk.isUp(LIST)
    desk.program.command('Page_Down')
    desk.waitForMark('Icon 17 of 60, 016.ico, 32 by 32')
    desk.program.command('End')
    desk.waitForMark('Icon 60 of 60, 059.ico, 32 by 32')
    desk.waitForCounts(12, 60)
    desk.program.command('ctrl+Return')
    desk.waitForNoPanel(LIST)
    expectContainer(desk, 32, f'{folder}{os.sep}059.ico')


def startSearch(desk, source, target, *ticks):
    desk.program.menu('Extract', 'Search & Extract Icons From All EXE Files In Folder....')
    desk.waitForPanel(SEARCH)
    desk.program.typeInto('Search in', source, role='text')
    desk.program.typeInto('Save to', target, role='text')
    for tick in ticks:
        desk.program.press(tick, role='check box')


def expectProgress(desk, text):
    desk.program.wait(lambda: desk.program.value('Progress', role='label') == text,
                      f'"{text}"; it is "{desk.program.value("Progress", role="label")}"')


def test_a_tree_is_searched_and_its_icons_are_saved(session):
    source, target = session.path('tree'), session.path('out')
    for name in (source, target, os.path.join(source, 'sub')):
        os.mkdir(name)
    write(session, 'tree/a.exe', libraries.portableExecutable(motifs(2)))
    write(session, 'tree/none.exe', b'no program')
    write(session, 'tree/sub/b.exe', libraries.newExecutable(motifs(3)))
    desk = ListDesk(session)
    desk.start()
    startSearch(desk, source, target)
    desk.program.press('Proceed')
    expectProgress(desk, 'Total: 2 icons')
    assert sorted(os.listdir(target)) == ['a0_x.ico', 'a1_x.ico']
    assert icons.readByPillow(os.path.join(target, 'a1_x.ico')) == icons.motif(32, 4, 1)

    other = session.path('other')
    os.mkdir(other)
    desk.program.typeInto('Save to', other, role='text')
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
    program, count = libraries.portableExecutable(motifs(40)), 100
    for i in range(count):
        write(session, f'tree/{i:03}.exe', program)
    desk = ListDesk(session)
    desk.start()
    startSearch(desk, source, target)
    desk.program.typeInto('Max', str(40 * count), role='text')
    desk.program.press('Proceed')
    desk.program.wait(lambda: len(os.listdir(target)) > 40, 'the first icons')
    session.keys('Escape')
    desk.program.wait(lambda: (desk.program.value('Progress', role='label') or '').startswith('Total: '), 'the search to stop')
    written = len(os.listdir(target))
    assert 40 < written < 40 * count, f'{written} files'
    expectProgress(desk, f'Total: {written} icons')
    assert desk.isUp(SEARCH)

    # The target has icon files now.
    desk.program.typeInto('Max', '41', role='text')
    desk.program.press('Proceed')
    box = desk.program.wait(desk.program.messageBox, 'the question about the files in the target')
    assert box
    session.keys('alt+y')
    expectProgress(desk, 'Total: 41 icons')
