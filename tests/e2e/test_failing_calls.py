"""The built programs while the system refuses their calls, or while they are killed in a call. At every moment the file
has its whole former or its whole new content, or a backup has the former one."""
import os
import re
import shutil
import signal
import subprocess
import unittest

import icons
from forms import Desk, read, write

# Those that change files. The programs make them one by one, so that each is counted on its own.
CALLS = ['pwritev', 'pwrite64', 'write', 'fsync', 'ftruncate', 'linkat', 'renameat', 'renameat2', 'unlinkat', 'fchmod']
FAILURES = ['error=ENOSPC', 'error=EIO', 'error=EDQUOT', 'signal=KILL']
INJECTED = re.compile(r'INJECTED|killed by SIGKILL')
MOST_CALLS = 50
RED, RED_CELL = (255, 0, 0), (3, 0)


def requireTracing():
    try:
        works = subprocess.run(['strace', '-o', '/dev/null', 'true'], capture_output=True).returncode == 0
    except FileNotFoundError:
        works = False
    if not works:
        raise unittest.SkipTest('no program can be traced here: no call was made to fail')


# gpicon --------------------------------------------------------------------------------------------------------------

class Files:
    """The file that gpicon changes, with a second name or without, and the state folder."""

    def __init__(self, session, command, hasOtherName):
        self.session, self.command, self.hasOtherName = session, command, hasOtherName
        self.gpicon = os.path.join(os.path.dirname(session.executable), 'gpicon')
        self.state = os.path.join(session.folder, 'state')
        self.former = icons.icons((16, 4), (32, 8), (48, 24))
        self.make()
        subprocess.run([self.gpicon, *command], cwd=session.path(), env=self.environment(), check=True)
        self.new = read(session.path('a.ico'))
        assert self.new != self.former

    def environment(self):
        return dict(os.environ, XDG_STATE_HOME=self.state)

    def make(self):
        for folder in (self.session.path(), self.state):
            shutil.rmtree(folder, ignore_errors=True)
            os.mkdir(folder)
        write(self.session, 'a.ico', self.former)
        write(self.session, 'extra.ico', icons.icons((24, 4)))
        if self.hasOtherName:
            os.link(self.session.path('a.ico'), os.path.join(self.state, 'link'))

    def runWith(self, call, failure, number):
        """Runs gpicon so that the call of that number fails. (whether there was one, exit status, errors)"""
        self.make()
        log = os.path.join(self.session.folder, 'strace')
        tracer = ['strace', '-f', '-o', log, '-e', f'trace={call}', '-e', f'inject={call}:{failure}:when={number}']
        done = subprocess.run([*tracer, self.gpicon, *self.command], cwd=self.session.path(), env=self.environment(),
                              capture_output=True, text=True)
        return INJECTED.search(read(log).decode()), done.returncode, done.stderr

    def backups(self):
        """The contents of the backups: each begins with the path of its file and a zero byte."""
        folder = os.path.join(self.state, 'Glimmerpane')
        names = os.listdir(folder) if os.path.isdir(folder) else []
        return [read(os.path.join(folder, name)).partition(b'\0')[2] for name in names if name.endswith('.backup')]

    def check(self, isKill, status):
        now = read(self.session.path('a.ico'))
        assert now in (self.former, self.new) or (self.hasOtherName and self.former in self.backups()), 'a part of the file'
        if isKill:
            return
        assert status in (0, 1), status
        assert status == 1 or now == self.new, 'a failure was not reported'
        assert sorted(os.listdir(self.session.path())) == ['a.ico', 'extra.ico'], os.listdir(self.session.path())


def failEveryCall(files, call, failure):
    """Returns the number of calls, each of which has failed once."""
    for number in range(1, MOST_CALLS):
        wasHit, status, errors = files.runWith(call, failure, number)
        try:
            files.check('KILL' in failure, status)
        except AssertionError as problem:
            raise AssertionError(f'{files.command} with {call} {number} and {failure}: {problem}; {errors}') from problem
        if not wasHit:
            assert status == 0, (call, failure, number, status, errors)
            return number - 1
    raise AssertionError(f'{call} never ends')


def failCommand(session, *command):
    requireTracing()
    for hasOtherName in (False, True):
        files = Files(session, command, hasOtherName)
        counts = {call: [failEveryCall(files, call, failure) for failure in FAILURES] for call in CALLS}
        for call in ('pwritev', 'fsync', 'ftruncate' if hasOtherName else 'renameat'):
            assert min(counts[call]) > 0, counts


def test_gpicon_remove_keeps_the_file_whole_whichever_call_fails(session):
    failCommand(session, 'remove', 'a.ico', '1')


def test_gpicon_resave_keeps_the_file_whole_whichever_call_fails(session):
    failCommand(session, 'resave', 'a.ico', '1', 'a.ico')


def test_gpicon_add_keeps_the_file_whole_whichever_call_fails(session):
    failCommand(session, 'add', 'a.ico', 'extra.ico')


# The editor ----------------------------------------------------------------------------------------------------------

class Tracer:
    """Makes a call of the running editor fail."""

    def __init__(self, session, pid, call, failure, number):
        self.log = os.path.join(session.folder, 'strace')
        self.process = subprocess.Popen(
            ['strace', '-f', '-o', self.log, '-p', str(pid), '-e', f'trace={call}', '-e',
             f'inject={call}:{failure}:when={number}'], stderr=subprocess.PIPE, text=True)
        line = self.process.stderr.readline()
        if 'attached' not in line:
            self.process.wait()
            raise unittest.SkipTest(f'the editor cannot be traced here: {line}')

    def __enter__(self):
        return self

    def __exit__(self, *_):
        self.process.send_signal(signal.SIGINT)
        self.process.communicate()


def paintedDesk(session, path):
    desk = Desk(session, path)
    desk.waitForIcon(32, path)
    desk.paint([(5, 7)], RED_CELL, RED, 32)
    return desk


def test_a_save_of_the_editor_keeps_the_file_whole_whichever_call_fails(session):
    requireTracing()
    former = icons.icons((32, 4))
    path = write(session, 'single.ico', former)
    desk = paintedDesk(session, path)
    for call, failure in (('pwritev', 'error=ENOSPC'), ('fsync', 'error=EIO'), ('linkat', 'error=EDQUOT'),
                          ('renameat', 'error=ENOSPC')):
        with Tracer(session, desk.program.process.pid, call, failure, 1):
            desk.program.command('ctrl+s')
            desk.program.answerBox('Failed to save this icon')
        assert read(path) == former, call
        assert os.listdir(session.path()) == ['single.ico'], os.listdir(session.path())
    desk.program.command('ctrl+s')
    desk.program.wait(lambda: read(path) != former, 'the saved icon')
    new = read(path)
    desk.program.command('alt+F4')
    assert desk.program.waitForEnd() == 0, 'without a question, because the icon is saved'

    for call in ('pwritev', 'renameat'):
        write(session, 'single.ico', former)
        desk = paintedDesk(session, path)
        with Tracer(session, desk.program.process.pid, call, 'signal=KILL', 1):
            desk.program.command('ctrl+s')
            desk.program.waitForEnd()
        assert read(path) in (former, new), call
