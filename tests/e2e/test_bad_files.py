"""Files that are not icons, and unusual names: each gives its message, and the program continues."""
import os

import icons

INVALID = 'Invalid icon file or icon not a size of 16x16, 24x24, 32x32 or 48x48.'
GIGABYTE = 1 << 30
MOST_BYTES = 64 << 20
NAMES = ['with blanks and  two.ico', "quote's \"double\".ico", 'Grüße 漢字.ico', 'x' * 246 + '.ico', b'not\xffutf8\xfe.ico']


def plainIcon(size=16):
    return icons.icon16([[(0, 128, 0)] * size for _ in range(size)])


def processNumber(process, file, key):
    with open(f'/proc/{process.pid}/{file}', encoding='utf-8') as lines:
        return next(int(line.split()[1]) for line in lines if line.startswith(key))


def peakBytes(process):
    return processNumber(process, 'status', 'VmHWM:') * 1024


def bytesRead(process):
    return processNumber(process, 'io', 'rchar:')


def openAndReadBox(program, path):
    program.command('ctrl+o')
    program.chooseFile(path)
    text = program.dialogText(program.wait(program.messageBox, 'the box'))
    program.keys('Return')
    program.waitForNoDialog()
    return text


def test_files_that_are_no_icons_end_in_the_text_and_the_program_goes_on(session):
    with open(session.path('good.ico'), 'wb') as file:
        file.write(plainIcon())
    program = session.start(session.path('good.ico'))
    program.wait(lambda: program.value('Icon size') == '16 x 16', 'the icon')
    bad = {'empty.ico': b'', 'short.ico': b'\0\0\1\0\1\0', 'text.ico': b'hello world' * 10, 'zero size.ico': b'\0\0\1\0\1\0' + bytes(16)}
    for name, content in bad.items():
        with open(session.path(name), 'wb') as file:
            file.write(content)
        assert INVALID in openAndReadBox(program, session.path(name)), name
    assert program.value('File') == session.path('good.ico')


def test_of_a_huge_file_little_is_read(session):
    with open(session.path('huge.ico'), 'wb') as file:
        file.write(b'\0\0\1\0\1\0' + b'\x10\x10\x10\0\1\0\4\0' + (1000).to_bytes(4, 'little') + (GIGABYTE - 2000).to_bytes(4, 'little'))
        file.truncate(GIGABYTE)
    program = session.start()
    memory, read = peakBytes(program.process), bytesRead(program.process)
    program.command('ctrl+o')
    program.chooseFile(session.path('huge.ico'))
    program.wait(lambda: program.dialogs() or program.value('Icon size'), 'an icon or a box')
    # Data that is not read takes no time on any machine. The dialog takes some.
    assert bytesRead(program.process) - read < MOST_BYTES
    assert peakBytes(program.process) - memory < MOST_BYTES


def test_a_pipe_named_on_the_command_line_does_not_hang(session):
    os.mkfifo(session.path('pipe.ico'))
    program = session.start(session.path('pipe.ico'), window=False)
    box = program.waitForDialog()
    assert 'File not found.' in program.dialogText(box)
    program.keys('Return')
    program.waitForNoDialog()
    assert program.mainForm()


def test_unusual_names_open_from_the_command_line(session):
    for name in NAMES:
        raw = name if isinstance(name, bytes) else name.encode()
        path = os.path.join(session.path().encode(), raw)
        with open(path, 'wb') as file:
            file.write(plainIcon(24))
        program = session.start(path)
        program.wait(lambda: program.value('Icon size') == '24 x 24', f'the icon {name!r}')
        program.command('alt+F4')
        assert program.waitForEnd() == 0


def test_saving_to_a_read_only_file_tells_so_and_keeps_the_change(session):
    path = session.path('locked.ico')
    with open(path, 'wb') as file:
        file.write(plainIcon(32))
    os.chmod(path, 0o444)
    program = session.start(path)
    program.wait(lambda: program.value('Icon size') == '32 x 32', 'the icon')
    program.press('Erase')
    session.click(program.pixelPoint(3, 3, 32))
    program.command('ctrl+s')
    box = program.waitForDialog()
    assert program.dialogText(box).startswith('File is read-only'), program.dialogText(box)
    program.keys('Return')
    program.waitForNoDialog()
    with open(path, 'rb') as file:
        assert file.read() == plainIcon(32)
    program.command('alt+F4')
    assert 'not saved yet' in program.dialogText(program.waitForDialog())
