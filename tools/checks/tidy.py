"""clang-tidy over the sources. What was found good is remembered, so that a second run looks only at what changed.

Sources are checked many at a time, one after the other in one text: most of the time goes into the headers of the
libraries, which are so read and searched once for all of them. Sources in which names of unnamed namespaces clash come
into different texts."""
import bisect
import os
import re
import subprocess
import tempfile

from tree import Cache, inParallel, isUi

TOOL = 'clang-tidy-14'
PARSER = ['clang++-14', '-fsyntax-only', '-w', '-ferror-limit=0']
FLAGS = ['-std=c++20', '-Wreserved-identifier']
PLACE = re.compile(r'^(?P<at>(?P<file>.*?):\d+:\d+): (?:fatal )?(?P<kind>error|warning|note): (?P<text>.*)', re.M)
NOT_COMPILED = '[clang-diagnostic-error'
# The tool takes one of these for used where another source after it repeats and uses it.
USING = re.compile(r'^\s*using (?:\w+::)+\w+;', re.M)


class Batch:
    """Sources that are checked as one text."""

    def __init__(self, tree, names, flags):
        self.tree, self.names, self.flags = tree, names, flags

    def run(self, command, *flags):
        """(succeeded, output) of a tool over the text. The output names lines of the sources, relative to the tree."""
        text, starts = '', []
        for name in self.names:
            starts.append(text.count('\n') + 1)
            text += self.tree.text(name).rstrip('\n') + '\n'
        with tempfile.TemporaryDirectory(prefix='glimmerpane.') as folder:
            path = os.path.join(folder, 'batch.cpp')
            with open(path, 'w', encoding='utf-8') as file:
                file.write(text)
            done = subprocess.run([*command, path, *flags, *self.flags], capture_output=True, text=True)

        def source(match):
            index = bisect.bisect(starts, int(match[1])) - 1
            return f'{self.names[index]}:{int(match[1]) - starts[index] + 1}:'

        output = re.sub(re.escape(path) + r':(\d+):', source, done.stdout + done.stderr)
        return done.returncode == 0, output.replace(self.tree.root + '/', '')

    def clashes(self):
        """Sets of sources that define the same thing, and the sources that fail in this text because of anything else."""
        sameThing, failed, last = {}, set(), None
        _, output = self.run(PARSER)
        for place in PLACE.finditer(output):
            if place['kind'] == 'error':
                last = place['file']
            elif last in self.names and place['text'].startswith('previous'):
                sameThing.setdefault(place['at'], {place['file']}).add(last)
            elif last not in self.names:  # a header fails, and a note tells who asks for that
                last = place['file']
            failed.add(last)
        for name in self.names:
            for using in USING.findall(self.tree.text(name)):
                sameThing.setdefault(using.strip(), set()).add(name)
        clashes = [clash for clash in sameThing.values() if len(clash) > 1]
        return clashes, failed.difference(*clashes).intersection(self.names)

    def parted(self):
        """Batches with these sources that compile, if each source does."""
        if len(self.names) == 1:
            return [self]
        clashes, alone = self.clashes()
        parts = []
        # Those with most to avoid are placed first, each where it finds most room.
        for name in sorted(set(self.names) - alone, key=lambda name: (-sum(name in clash for clash in clashes), name)):
            banned = set().union(*(clash for clash in clashes if name in clash)) - {name}
            free = [part for part in parts if not banned.intersection(part)]
            if free:
                min(free, key=len).append(name)
            else:
                parts.append([name])
        return self.split(parts + [[name] for name in sorted(alone)])

    def split(self, parts):
        return [Batch(self.tree, part, self.flags) for part in parts]

    def findings(self):
        """Lines that name a place and what is wrong there."""
        settings = '--config-file=' + self.tree.path('.clang-tidy')
        good, output = self.run([TOOL, '--quiet', '--warnings-as-errors=*', settings], '--')
        if good:
            return []
        if NOT_COMPILED in output and len(self.names) > 1:
            parts = self.parted()
            if len(parts) == 1:  # none of its sources is to blame
                parts = self.split([name] for name in self.names)
            return [line for batch in parts for line in batch.findings()]
        found = [place.group() for place in PLACE.finditer(output) if place['kind'] != 'note']
        return found or [f'{self.names[0]}: {output.strip()[:200]}']


def flagsOf(tree, name):
    """The compiler's arguments. The core's are known without a build; None where the build must be asked and is missing."""
    if name.startswith('src/') and not isUi(name):
        return (*FLAGS, '-I', tree.path('src'))
    kept = tree.compilerFlags(name)
    return None if kept is None else (*FLAGS, *kept)


def batches(tree, names):
    """Batches with all of these sources, the longest first, so that all processors end together."""
    byFlags = {}
    for name in names:
        byFlags.setdefault(flagsOf(tree, name), []).append(name)
    groups = [Batch(tree, group, flags) for flags, group in byFlags.items()]
    parts = [part for parts in inParallel(Batch.parted, groups) for part in parts]
    return sorted(parts, key=lambda batch: -len(batch.names))


def checkSources(tree, sources):
    cache = Cache(tree, 'tidy')
    settings = tree.text('.clang-tidy') if tree.has('.clang-tidy') else ''
    strangers = [name for name in sources if flagsOf(tree, name) is None]
    if strangers:
        return [f'build first: the flags for {strangers[0]} come from the build']
    marks = {name: tree.fingerprint(name, settings, *flagsOf(tree, name)) for name in sources}

    def findings(batch):
        found = batch.findings()
        places = {line.split(':')[0] for line in found}
        # A finding in a header may come from any source of the batch.
        for name in batch.names if places.issubset(batch.names) else []:
            if name not in places:
                cache.add(marks[name])
        return found

    changed = batches(tree, [name for name in sources if not cache.has(marks[name])])
    # A finding in a header comes once for each batch that reaches it.
    return list(dict.fromkeys(line for found in inParallel(findings, changed) for line in found))


def check(tree):
    """The core and the command line."""
    return checkSources(tree, [name for name in tree.sources('src', endings=('.cpp',)) if not isUi(name)])


def checkAll(tree):
    """The ui zone and the tests too."""
    built = tree.commands()
    tests = [name for name in tree.sources('tests', endings=('.cpp',)) if name in built]
    return checkSources(tree, tree.sources('src', endings=('.cpp',)) + tests)
