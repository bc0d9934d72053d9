"""Links that another user has put under the names that gpicon is about to write."""
import itertools
import os
import shutil

import icons

OTHER_USER = 65534
KINDS = ('symbolic', 'dangling', 'hard')
PRECIOUS = b'precious'


def asOtherUser(action):
    """Runs an action in a process of another user, if this one is root. Whether the action succeeded."""
    child = os.fork()
    if child == 0:
        try:
            if os.geteuid() == 0:
                os.setgroups([])
                os.setgid(OTHER_USER)
                os.setuid(OTHER_USER)
            action()
            os._exit(0)
        except OSError:
            os._exit(1)
    return os.waitpid(child, 0)[1] == 0


class Planted:
    """A folder of another user, with a link under a name, and what the link leads to."""

    def __init__(self, trial, name, kind):
        self.trial, self.name, self.kind = trial, name, kind
        self.folder, self.outside = trial.path('planted'), trial.path('outside')
        for folder in (self.folder, self.outside):
            shutil.rmtree(folder, ignore_errors=True)
            os.mkdir(folder)
            os.chmod(folder, 0o777)
        if os.geteuid() == 0:
            os.chown(self.folder, OTHER_USER, OTHER_USER)
        self.target = os.path.join(self.outside, name)
        self.link = os.path.join(self.folder, name)
        with open(self.target, 'wb') as file:
            file.write(PRECIOUS)
        os.chmod(self.target, 0o666)  # the system lets other users link only to files that they may write
        if not asOtherUser(self.plant):
            raise RuntimeError(f'the other user cannot make {self.link}')
        self.before = self.status()

    def plant(self):
        if self.kind == 'symbolic':
            os.symlink(self.target, self.link)
        elif self.kind == 'dangling':
            os.symlink(self.target + '.absent', self.link)
        else:
            os.link(self.target, self.link)

    def status(self):
        """What must not change: the link, and everything outside."""
        contents = {}
        for name in sorted(os.listdir(self.outside)):
            with open(os.path.join(self.outside, name), 'rb') as file:
                contents[name] = file.read()
        return os.lstat(self.link).st_ino, contents

    def check(self, arguments):
        status, errors = self.trial.run(*arguments)
        if status != 1 or errors != f'gpicon: {self.link}: already there, and not replaced\n':
            self.trial.fail(f'{arguments} on {self.name} ({self.kind}): status {status}, {errors!r}')
        if self.status() != self.before:
            self.trial.fail(f'{arguments} on {self.name} ({self.kind}): {self.before} became {self.status()}')


def plantLinks(trial):
    """Tries all names with all kinds of links. Returns the number of links, and whose they were."""
    path = trial.path('tools.ico')
    with open(path, 'wb') as file:
        file.write(icons.icons((16, 4), (32, 8), (48, 32)))
    tried = 0
    for command in ('unpack', 'split'):
        clean = trial.path('clean-' + command)
        status, errors = trial.run(command, path, '-d', clean)
        assert status == 0, errors
        for name, kind, force in itertools.product(sorted(os.listdir(clean)), KINDS, ([], ['--force'])):
            planted = Planted(trial, name, kind)
            planted.check([command, path, '-d', planted.folder, *force])
            tried += 1
    return tried, 'another user' if os.geteuid() == 0 else 'the same user, because only root can become another'
