"""What a screen reader finds: every control has a name that a user understands."""
import icons

CONTAINERS = [f'Container {number}' for number in range(1, 7)]
TOOLS = ['Paint', 'Erase', 'Fill', 'Replace painted color', 'Restore/copy pixel of icon in panel', 'Line', 'Rectangle',
         'Filled Rectangle', 'Oval', 'Filled Oval', 'Region', 'Set/unset shift image']
TOOLBAR = ['New 32x32', 'New 16x16', 'Open icon file', 'Display all icons in folder', 'Save to icon file', 'Save as',
           'Undo all', 'Undo', 'Redo', 'Cut and copy', 'Delete/erase region', 'Copy', 'Paste', 'Paste opaque',
           'Flip icon/region horizontally', 'Flip icon/region vertically', 'Rotate icon/region left 90-degree',
           'Rotate icon/region right 90-degree', 'Add text', 'Auto-draw sphere', 'Buttonize icon',
           'Gradient background (unpainted areas)', 'Adjust brightness of colors', 'General properties',
           'Capture image from desktop', 'Create/edit animated cursor', 'View/edit/create Alpha (32 BPP icon)']
STATUS = ['File', 'Headers', 'Several icons', 'Icon size', 'Alpha']


def writeIcon(session, name, size=16):
    path = session.path(name)
    with open(path, 'wb') as file:
        file.write(icons.icon16([[(255, 0, 0)] * size for _ in range(size)]))
    return path


def test_every_control_has_its_name(session):
    program = session.start(writeIcon(session, 'a.ico'))
    program.wait(lambda: program.value('Icon size') == '16 x 16', 'the icon')
    for name in CONTAINERS + TOOLS + TOOLBAR + STATUS + ['Editing Area', '16-Color Palette', 'Color to use']:
        program.need(name)
    program.menu('Palette', 'Direct Entry Of Color Value')
    program.need('Color value')
    program.menu('Palette', '256-Color Palette')
    program.need('256-Color Palette', role='color chooser')


def test_nothing_shown_is_without_a_name(session):
    program = session.start(writeIcon(session, 'a.ico'))
    program.wait(lambda: program.value('Icon size') == '16 x 16', 'the icon')
    for window in program.windows():
        for control in program.walk(window):
            if control.getRoleName() in ('push button', 'check box', 'text', 'combo box', 'canvas', 'color chooser'):
                assert control.name or control.description, f'{control.getRoleName()} {program.box(control)} has no name'


def test_the_status_bar_tells_path_and_size(session):
    path = writeIcon(session, 'a.ico')
    program = session.start(path)
    program.wait(lambda: program.value('File') == path, 'the path')
    assert program.value('Icon size') == '16 x 16'
    assert program.value('Headers') == ''
