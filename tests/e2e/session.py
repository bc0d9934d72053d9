"""A desktop for one test: its own X server, window manager and accessibility bus, an empty home, and a folder for
files. The program runs from a copy in that folder, so that a test can put a settings file beside it."""
import os
import shutil
import subprocess
import tempfile
import time

from PIL import ImageGrab

from screen import Screen

SCREEN_SIZE = '1280x1024x24'
KEY_DELAY_MS = 12
START_SECONDS = 60
POLL_SECONDS = 0.1
WINDOW_MANAGER_SETTINGS = os.path.join(os.path.dirname(os.path.realpath(__file__)), 'openbox.xml')
ACCESSIBILITY_BUS = '/usr/libexec/at-spi-bus-launcher'


def waitUntil(question, what, poll=POLL_SECONDS):
    end = time.monotonic() + START_SECONDS
    while not question():
        if time.monotonic() > end:
            raise RuntimeError(f'waited in vain for {what}')
        time.sleep(poll)


class Session:
    def __init__(self, executable):
        self.executable = executable
        self.processes = []

    def __enter__(self):
        self.folder = tempfile.mkdtemp(prefix='glimmerpane.')
        for name in ('home', 'program', 'files', 'tmp'):
            os.mkdir(os.path.join(self.folder, name))
        os.mkdir(os.path.join(self.folder, 'run'), 0o700)
        shutil.copy2(self.executable, os.path.join(self.folder, 'program'))
        self.log = open(os.path.join(self.folder, 'log'), 'wb')
        try:
            self.setEnvironment()
        except BaseException:
            self.__exit__()
            raise
        return self

    def setEnvironment(self):
        os.environ['DISPLAY'] = ':' + self.startServer()
        home = os.path.join(self.folder, 'home')
        for name in [n for n in os.environ if n.startswith(('XDG_', 'QT_'))]:
            del os.environ[name]
        os.environ.update(HOME=home, XDG_CONFIG_HOME=os.path.join(home, '.config'), LANG='C.UTF-8',
                          TMPDIR=os.path.join(self.folder, 'tmp'),
                          XDG_RUNTIME_DIR=os.path.join(self.folder, 'run'), QT_QPA_PLATFORM='xcb',
                          QT_LINUX_ACCESSIBILITY_ALWAYS_ON='1')
        self.screen = Screen()
        self.run('openbox', '--config-file', WINDOW_MANAGER_SETTINGS)
        # It names itself first, and loses windows that ask for the screen before it lists its clients.
        waitUntil(lambda: 'window id' in self.rootProperty('_NET_CLIENT_LIST'), 'the window manager')
        # Started before the first use: if a caller starts it, it may answer the program too late, which then registers
        # nothing.
        self.run(ACCESSIBILITY_BUS, '--launch-immediately')
        waitUntil(lambda: 'STRING' in self.rootProperty('AT_SPI_BUS'), 'the accessibility bus')

    def rootProperty(self, name):
        return subprocess.run(['xprop', '-root', name], capture_output=True, text=True).stdout

    def startServer(self):
        """Starts an X server and returns the number that it chose."""
        reading, writing = os.pipe()
        # No auto-repeat (-r): on a busy machine a key is released late and would count as held down. No reset when the
        # last client leaves: the first request to the window manager would stop the server while the manager starts.
        server = subprocess.Popen(['Xvfb', '-r', '-noreset', '-displayfd', str(writing), '-screen', '0', SCREEN_SIZE,
                                   '-nolisten', 'tcp'],
                                  pass_fds=[writing], stdout=self.log, stderr=self.log)
        self.processes.append(server)
        os.close(writing)
        with os.fdopen(reading) as pipe:
            number = pipe.readline().strip()
        if not number:
            raise RuntimeError('Xvfb did not start')
        return number

    def __exit__(self, *_):
        for process in reversed(self.processes):
            process.terminate()
            try:
                process.wait(5)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
        self.log.close()
        shutil.rmtree(self.folder, ignore_errors=True)

    def run(self, *command, cwd=None):
        process = subprocess.Popen(command, cwd=cwd or self.path(), stdin=subprocess.DEVNULL, stdout=self.log, stderr=self.log)
        self.processes.append(process)
        return process

    def path(self, name=''):
        """The path of a file in the folder of the test; without a name, the folder itself."""
        return os.path.join(self.folder, 'files', name)

    def settingsPath(self):
        return os.path.join(self.folder, 'program', 'Glimmerpane.ini')

    def start(self, *arguments, window=True, within=()):
        """Starts the program and waits for its main form, or returns at once if no form is expected. `within` is a
        command that runs the command after it."""
        from program import Program  # not before the accessibility bus runs, because importing it would start one
        program = os.path.join(self.folder, 'program', os.path.basename(self.executable))
        started = Program(self, self.run(*within, program, *arguments))
        if window:
            started.waitForMainForm()
        return started

    def output(self):
        """The output of the programs on this desktop."""
        with open(self.log.name, encoding='utf-8', errors='replace') as file:
            return file.read()

    # Mouse and keyboard ----------------------------------------------------------------------------------------------

    def xdotool(self, *arguments):
        subprocess.run(['xdotool', *map(str, arguments)], check=True, stdout=subprocess.DEVNULL)

    def move(self, point):
        self.xdotool('mousemove', *map(int, point))
        self.screen.settle()

    def click(self, point, button=1):
        self.xdotool('mousemove', *map(int, point), 'click', button)
        self.screen.settle()

    def drag(self, points, button=1):
        """Presses on the first point, moves over the others and releases on the last one."""
        self.move(points[0])
        self.xdotool('mousedown', button)
        for point in points[1:]:
            self.move(point)
        self.xdotool('mouseup', button)
        self.screen.settle()

    def keys(self, *names):
        """Presses keys, whichever window gets them, with the names of xdotool: "ctrl+s", "Return"."""
        self.xdotool('key', '--delay', KEY_DELAY_MS, *names)
        self.screen.settle()

    def type(self, text):
        self.xdotool('type', '--delay', KEY_DELAY_MS, '--', text)
        self.screen.settle()

    # Eyes ------------------------------------------------------------------------------------------------------------

    def picture(self):
        """A picture of the screen."""
        return ImageGrab.grab(xdisplay=os.environ['DISPLAY'])

    def colorAt(self, point):
        """(red, green, blue) of a point on the screen."""
        return self.screen.colorAt(point)
