#!/usr/bin/python3
"""Tries for a long time to make the programs lose a file, and prints figures. Not part of ./test.

    tests/endurance/writing.py [--kills N] [--editor-kills N] [--races N] [--links] [--folder DIR] [--build DIR] [--seed N]

    --kills         kills of `gpicon remove` on a file of 30 MB, at random moments
    --editor-kills  kills of the editor during a save, at random moments; the editor runs in its own X server
    --races         times that two calls of gpicon change one file side by side
    --links         unpack and split into a folder in which another user has put links; only root can become another
    --folder        a folder on the disk to be tried, by default the one for temporary files

The exit status is 1 if a file was lost, changed outside the folder, or neither old nor new.
"""
import argparse
import collections
import os
import random
import shutil
import signal
import statistics
import subprocess
import sys
import tempfile
import time

from Xlib import X, XK
from Xlib.ext import xtest

HERE = os.path.dirname(os.path.realpath(__file__))
TOP = os.path.join(HERE, '..', '..')
sys.path.insert(0, os.path.join(HERE, '..', 'e2e'))

import icons  # noqa: E402
from links import plantLinks  # noqa: E402

LARGE_BYTES = 30_000_000
LONGEST_EDITOR_DELAY = 0.05  # seconds
SAVE_SECONDS = 60
KILL_STEP = 1.2
OWN_BUS = 'GLIMMERPANE_OWN_BUS'
TEMPORARY = '.glimmerpane-'


def read(path):
    with open(path, 'rb') as file:
        return file.read()


def write(path, content):
    with open(path, 'wb') as file:
        file.write(content)
    return path


def percentiles(values):
    values = sorted(values)
    return ', '.join(f'{name} {values[min(len(values) - 1, len(values) * part // 100)] * 1000:.0f} ms'
                     for name, part in (('median', 50), ('90 %', 90), ('longest', 100)))


class Trial:
    """A folder for one part of the run, and its failures."""

    def __init__(self, name, options):
        self.name, self.gpicon = name, os.path.abspath(os.path.join(options.build, 'gpicon'))
        self.folder = tempfile.mkdtemp(prefix='glimmerpane-endurance.', dir=options.folder)
        os.chmod(self.folder, 0o755)
        self.state = os.path.join(self.folder, 'state')
        self.problems = []
        self.started = time.monotonic()

    def __enter__(self):
        return self

    def __exit__(self, *_):
        shutil.rmtree(self.folder, ignore_errors=True)

    def path(self, name):
        return os.path.join(self.folder, name)

    def start(self, *arguments):
        return subprocess.Popen([self.gpicon, *arguments], stdout=subprocess.DEVNULL, stderr=subprocess.PIPE,
                                env=dict(os.environ, XDG_STATE_HOME=self.state))

    def run(self, *arguments):
        done = self.start(*arguments)
        _, errors = done.communicate()
        return done.returncode, errors.decode(errors='replace')

    def fail(self, problem):
        self.problems.append(problem)
        print(f'FAIL {self.name}: {problem}', flush=True)

    def report(self, figures):
        seconds = time.monotonic() - self.started
        print(f'{self.name}: {figures}; {len(self.problems)} failed; {seconds:.0f} s on {self.folder}', flush=True)
        return not self.problems


# Kills ---------------------------------------------------------------------------------------------------------------

def leftBeside(folder):
    """Removes the files that a killed program has left in a folder, and returns their number."""
    names = [name for name in os.listdir(folder) if name.startswith(TEMPORARY)]
    for name in names:
        os.remove(os.path.join(folder, name))
    return len(names)


def largeFile():
    entries = [icons.entryOf(icons.motif(size, bits), bits) for size, bits in ((16, 4), (32, 8), (48, 24))]
    image = entries[0].image + random.randbytes(LARGE_BYTES - len(entries[0].image))
    entries[0] = entries[0]._replace(size=len(image), image=image)
    return icons.fileOf(entries)


def usualDuration(trial, path, former):
    durations = []
    for _ in range(9):
        write(path, former)
        start = time.monotonic()
        status, errors = trial.run('remove', path, '2')
        assert status == 0, errors
        durations.append(time.monotonic() - start)
    return statistics.median(durations)


def runKills(options):
    with Trial('kills of gpicon', options) as trial:
        path, former = trial.path('large.ico'), largeFile()
        usual = usualDuration(trial, path, former)
        new = read(path)
        counts = collections.Counter()
        for _ in range(options.kills):
            if counts['new'] or read(path) != former:
                write(path, former)
            delay = random.uniform(0, usual)
            process = trial.start('remove', path, '2')
            time.sleep(delay)
            process.send_signal(signal.SIGKILL)
            process.communicate()
            counts['ended before'] += process.returncode == 0
            now = read(path)
            kind = 'former' if now == former else 'new' if now == new else 'other'
            counts[kind] += 1
            if kind == 'other':
                trial.fail(f'{len(now)} bytes after {delay * 1000:.1f} ms')
            counts['left beside'] += leftBeside(trial.folder)
        return trial.report(f'{options.kills} of remove on {len(former)} bytes, usually {usual * 1000:.0f} ms: '
                            f'{counts["former"]} former, {counts["new"]} new, {counts["other"]} other, '
                            f'{counts["ended before"]} ended before the kill, {counts["left beside"]} files left beside')


# Kills of the editor -------------------------------------------------------------------------------------------------

class Editor:
    """An editor with a changed icon, in a session of the end-to-end tests."""

    POINT = None  # of a pixel on the screen, which is the same after each start

    def __init__(self, session, path):
        from forms import Desk
        self.session, self.path = session, path
        self.desk = Desk(session, path)
        self.desk.waitForIcon(32, path)
        program = self.desk.program
        if not Editor.POINT:
            Editor.POINT = program.pixelPoint(5, 7, 32)
        former = session.colorAt(Editor.POINT)
        program.press('Paint')
        session.click(Editor.POINT)
        program.wait(lambda: session.colorAt(Editor.POINT) != former, 'the painted pixel')
        self.process = program.process

    def save(self):
        """Presses the keys without waiting for the program to take them."""
        screen = self.session.screen.display
        keys = [screen.keysym_to_keycode(XK.string_to_keysym(name)) for name in ('Control_L', 's')]
        for event, key in [(X.KeyPress, keys[0]), (X.KeyPress, keys[1]), (X.KeyRelease, keys[1]), (X.KeyRelease, keys[0])]:
            xtest.fake_input(screen, event, key)
        screen.flush()

    def kill(self):
        self.process.send_signal(signal.SIGKILL)
        self.process.wait()


def editorReference(session, path, former):
    """The file that the editor saves, and the seconds from the keys to the file."""
    write(path, former)
    editor = Editor(session, path)
    start = time.monotonic()
    editor.save()
    while read(path) == former:
        if time.monotonic() - start > SAVE_SECONDS:
            raise RuntimeError('the editor does not save')
        time.sleep(0.0005)
    seconds = time.monotonic() - start
    new = read(path)
    editor.kill()
    return new, seconds


def runEditorKills(options):
    from session import Session
    with Trial('kills of the editor', options) as trial:
        tempfile.tempdir = trial.folder
        with Session(os.path.abspath(os.path.join(options.build, 'glimmerpane'))) as session:
            former = icons.icons((32, 4))
            path = write(session.path('single.ico'), former)
            references = [editorReference(session, path, former) for _ in range(5)]
            new, seconds = references[0][0], statistics.median(seconds for _, seconds in references)
            counts, done, longest = collections.Counter(), 0, min(seconds, LONGEST_EDITOR_DELAY)
            for _ in range(options.editor_kills):
                write(path, former)
                editor = Editor(session, path)
                delay = random.uniform(0, longest)
                editor.save()
                time.sleep(delay)
                editor.kill()
                done += 1
                now = read(path)
                kind = 'former' if now == former else 'new' if now == new else 'other'
                counts[kind] += 1
                # Half of the kills shall come before the end of the save, however busy the machine is.
                longest = min(longest * (1 / KILL_STEP if kind == 'new' else KILL_STEP), LONGEST_EDITOR_DELAY)
                if kind == 'other':
                    trial.fail(f'{len(now)} bytes after {delay * 1000:.1f} ms')
                counts['left beside'] += leftBeside(session.path())
                if time.monotonic() - trial.started > options.editor_seconds:
                    break
            return trial.report(f'{done} of a save, which usually takes {seconds * 1000:.1f} ms: '
                                f'{counts["former"]} former, {counts["new"]} new, {counts["other"]} other, '
                                f'{counts["left beside"]} files left beside')


# Races ---------------------------------------------------------------------------------------------------------------

def imagesOf(path):
    return sorted(entry.image for entry in icons.readEntries(path))


class Race:
    """Two calls that change one file. `effects` are the images after none, the first, the second or both of them."""

    def __init__(self, trial, first, second):
        self.trial, self.calls = trial, (first, second)
        self.path = trial.path('raced.ico')
        self.former = icons.icons((16, 4), (32, 8), (48, 24))
        self.effects = {done: self.oneAfterTheOther(done) for done in
                        ((False, False), (True, False), (False, True), (True, True))}
        assert len({tuple(images) for images in self.effects.values()}) == 4

    def arguments(self, call):
        return [self.path if argument == '@' else argument for argument in call]

    def oneAfterTheOther(self, done):
        write(self.path, self.former)
        for call, isDone in zip(self.calls, done):
            if isDone:
                status, errors = self.trial.run(*self.arguments(call))
                assert status == 0, errors
        return imagesOf(self.path)

    def run(self):
        """(which calls were done, seconds)"""
        write(self.path, self.former)
        start = time.monotonic()
        processes = [self.trial.start(*self.arguments(call)) for call in random.sample(self.calls, 2)]
        order = {tuple(process.args[1:]): process for process in processes}
        for process in processes:
            process.communicate()
        seconds = time.monotonic() - start
        statuses = [order[tuple(self.arguments(call))].returncode for call in self.calls]
        done = tuple(status == 0 for status in statuses)
        if any(status not in (0, 1) for status in statuses):
            self.trial.fail(f'{self.calls} ended with {statuses}')
        if imagesOf(self.path) != self.effects[done]:
            self.trial.fail(f'{self.calls} ended with {statuses}, and the file has other images')
        return done, seconds


def runRaces(options):
    with Trial('races', options) as trial:
        first = write(trial.path('first.ico'), icons.icons((24, 4)))
        second = write(trial.path('second.ico'), icons.icons((24, 8)))
        races = {'remove beside add': Race(trial, ('remove', '@', '0'), ('add', '@', first)),
                 'add beside add': Race(trial, ('add', '@', first), ('add', '@', second))}
        figures = []
        for name, race in races.items():
            outcomes = [race.run() for _ in range(options.races)]
            refused = sum(not all(done) for done, _ in outcomes)
            figures.append(f'{options.races} of {name}: {options.races - refused} both done, {refused} with one refused, '
                           + percentiles([seconds for _, seconds in outcomes]))
        return trial.report('; '.join(figures))


# Links ---------------------------------------------------------------------------------------------------------------

def runLinks(options):
    with Trial('links', options) as trial:
        tried, owner = plantLinks(trial)
        return trial.report(f'{tried} names that belong to {owner}')


# ---------------------------------------------------------------------------------------------------------------------

def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument('--kills', type=int, default=0)
    parser.add_argument('--editor-kills', type=int, default=0)
    parser.add_argument('--editor-seconds', type=float, default=3600, help='after which no other editor is started')
    parser.add_argument('--races', type=int, default=0, help='of each kind')
    parser.add_argument('--links', action='store_true')
    parser.add_argument('--folder', default=tempfile.gettempdir())
    parser.add_argument('--build', default=os.path.join(TOP, 'build'))
    parser.add_argument('--seed', type=int, default=random.SystemRandom().getrandbits(32))
    options = parser.parse_args()
    if options.editor_kills and OWN_BUS not in os.environ:
        os.execvpe('dbus-run-session', ['dbus-run-session', '--', sys.executable, *sys.argv], dict(os.environ, **{OWN_BUS: '1'}))
    random.seed(options.seed)
    print(f'seed {options.seed}', flush=True)
    parts = [(options.kills, runKills), (options.races, runRaces), (options.links, runLinks),
             (options.editor_kills, runEditorKills)]
    outcomes = [run(options) for isWanted, run in parts if isWanted]
    return 0 if all(outcomes) else 1


if __name__ == '__main__':
    sys.exit(main())
