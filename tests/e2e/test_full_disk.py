"""A full disk: the command reports that it failed, and the file is unchanged."""
import os
import subprocess
import unittest

import icons
from forms import ADD_FACE, Desk, read, write

# A disk that only the program sees, with copies of some files, filled up to the last block.
DISK = 'mount -t tmpfs -o size=32k tmpfs "$1" && cp "$2"/* "$1" && { cat /dev/zero > "$1/filler" 2> /dev/null; shift 2; exec "$@"; }'
NAMESPACE = ['unshare', '--mount'] if os.getuid() == 0 else ['unshare', '--user', '--mount', '--map-current-user', '--keep-caps']

# With the icon of the other file, the first one needs one more block.
TARGET, SINGLE = icons.icons((16, 4), (48, 8)), icons.icons((32, 4))


def onFullDisk(session):
    """The command that runs a program with the folder `files` on such a disk."""
    seeds = os.path.join(session.folder, 'seeds')
    os.mkdir(seeds)
    write(session, '../seeds/target.ico', TARGET)
    write(session, '../seeds/single.ico', SINGLE)
    command = [*NAMESPACE, 'sh', '-c', DISK, 'sh', session.path(), seeds]
    if subprocess.run([*command, 'true'], cwd='/').returncode != 0:
        raise unittest.SkipTest('no disk can be mounted here: a full one was not tried')
    return command


def test_a_full_disk_costs_no_file(session):
    desk = Desk(session, session.path('single.ico'), within=onFullDisk(session))
    seen = lambda name: f'/proc/{desk.program.process.pid}/root{session.path(name)}'
    desk.waitForIcon(32, session.path('single.ico'))
    assert not os.path.exists(session.path('single.ico')), 'the disk is the program\'s alone'
    assert os.statvfs(seen('')).f_bavail == 0

    desk.addTo(session.path('target.ico'))
    desk.addAtPosition(3)
    desk.program.answerBox('Append to position ref 3.', 'alt+y')
    desk.program.answerBox('Failed to save current icon - writing')
    desk.waitForNoForm(ADD_FACE)
    assert read(seen('target.ico')) == TARGET

    desk.program.menu('File', 'Save As Cursor')
    desk.program.press('Proceed')
    desk.program.chooseFile(session.path('new.cur'))
    desk.program.answerBox('Failed to save curosr')
    assert read(seen('single.ico')) == SINGLE
