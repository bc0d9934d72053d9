"""The source tree as the rules see it: its files, what they include, and their zone."""
import concurrent.futures
import hashlib
import json
import os
import re
import shlex
import subprocess

INCLUDE = re.compile(r'^\s*#\s*include\s*(["<])([^">]+)[">]')
KEPT_FLAGS = ('-I', '-D', '-f')
SKIPPED_FOLDERS = ('.git', '.cache', '__pycache__')


class Tree:
    def __init__(self, root, build=None):
        self.root = os.path.abspath(root)
        self.build = os.path.abspath(build) if build else os.path.join(self.root, 'build')
        self._closures = {}
        self._includes = {}
        self._commands = None

    def path(self, relative):
        return os.path.join(self.root, relative)

    def text(self, relative):
        with open(self.path(relative), encoding='utf-8', errors='replace') as file:
            return file.read()

    def has(self, relative):
        return os.path.isfile(self.path(relative))

    def git(self, *arguments):
        """Output of git on this tree, whoever owns it; None without a repository or git."""
        try:
            done = subprocess.run(['git', '-c', 'safe.directory=*', '-C', self.root, *arguments], capture_output=True)
        except FileNotFoundError:
            return None
        return done.stdout.decode('utf-8', 'replace') if done.returncode == 0 else None

    def allFiles(self):
        """Every file of the project, sorted; in a repository, without the ignored ones."""
        listed = None
        if os.path.exists(self.path('.git')):
            listed = self.git('ls-files', '-z', '--cached', '--others', '--exclude-standard')
        if listed is not None:
            return sorted(name for name in listed.split('\0') if name and self.has(name))
        found = []
        for folder, folders, names in os.walk(self.root):
            folders[:] = [f for f in folders if f not in SKIPPED_FOLDERS and not f.startswith('build')]
            found += [os.path.relpath(os.path.join(folder, name), self.root) for name in names]
        return sorted(found)

    def sources(self, *tops, endings=('.cpp', '.h')):
        return [name for name in self.allFiles() if name.split('/')[0] in tops and name.endswith(endings)]

    def includes(self, relative):
        """(line number, '"' or '<', path) of each include line."""
        if relative not in self._includes:
            lines = self.text(relative).splitlines()
            matches = ((number, INCLUDE.match(line)) for number, line in enumerate(lines, 1))
            self._includes[relative] = [(number, m.group(1), m.group(2)) for number, m in matches if m]
        return self._includes[relative]

    def header(self, relative, target):
        """The header of the project that `relative` includes as `target`, or None."""
        places = ('src/' + target, 'tests/' + target, os.path.normpath(os.path.join(os.path.dirname(relative), target)))
        return next((place for place in places if self.has(place)), None)

    def closure(self, relative):
        """The file and every project header that it includes, directly or indirectly."""
        if relative in self._closures:
            return self._closures[relative]
        seen, waiting = {relative}, [relative]
        while waiting:
            name = waiting.pop()
            for _, kind, target in self.includes(name):
                header = self.header(name, target) if kind == '"' else None
                if header and header not in seen:
                    seen.add(header)
                    waiting.append(header)
        self._closures[relative] = sorted(seen)
        return self._closures[relative]

    def fingerprint(self, relative, *more):
        """Changes when the file, a header that it reaches, or one of `more` changes."""
        return self.mark(self.closure(relative), *more)

    def mark(self, names, *more):
        """Changes when one of these files or of `more` changes."""
        digest = hashlib.sha256('\0'.join(more).encode())
        for name in names:
            digest.update(name.encode() + b'\0' + self.text(name).encode())
        return digest.hexdigest()

    def commands(self):
        """Compiler arguments per source, from compile_commands.json of the build; empty before the first build."""
        if self._commands is None:
            self._commands = self.readCommands()
        return self._commands

    def readCommands(self):
        path = os.path.join(self.build, 'compile_commands.json')
        if not os.path.isfile(path):
            return {}
        with open(path, encoding='utf-8') as file:
            entries = json.load(file)
        return {os.path.relpath(entry['file'], self.root): shlex.split(entry['command']) for entry in entries}

    def compilerFlags(self, relative):
        """The include paths and definitions with which the build compiles a source; None if it does not compile it."""
        command = self.commands().get(relative)
        if command is None:
            return None
        kept = []
        for flag, following in zip(command, command[1:] + ['']):
            if flag == '-isystem':
                kept += [flag, following]
            elif flag.startswith(KEPT_FLAGS):
                kept.append(flag)
        return kept


def isUi(relative):
    """True for the zone that may use Qt: every ui/ folder, platform/qt and app."""
    parts = relative.split('/')
    return parts[1:2] == ['app'] or parts[1:3] == ['platform', 'qt'] or 'ui' in parts[2:-1]


class Cache:
    """Remembers the fingerprints that passed, as one empty file each, in the build folder."""

    def __init__(self, tree, name):
        self.folder = os.path.join(tree.build, 'check-cache', name)
        os.makedirs(self.folder, exist_ok=True)

    def has(self, fingerprint):
        return os.path.exists(os.path.join(self.folder, fingerprint))

    def add(self, fingerprint):
        open(os.path.join(self.folder, fingerprint), 'w').close()


def processors():
    return os.cpu_count() or 1


def inParallel(function, items):
    """Calls the function for each item, on all processors; returns the results in order."""
    with concurrent.futures.ThreadPoolExecutor(processors()) as pool:
        return list(pool.map(function, items))
