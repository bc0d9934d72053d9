"""clang-tidy over the sources. What was found good is remembered, so that a second run looks only at what changed.

Most of the time goes into the headers of the libraries. So many sources are joined into one text, which reads them once.
A source that does not compile behind the others, mostly because two define helpers of the same name, goes into a later
text; one that fails even alone is reported by the tool."""
import bisect
import os
import re
import subprocess
import tempfile

from tree import Cache, inParallel, isUi, processors

TOOL = 'clang-tidy-14'
COMPILER = ['clang++-14', '-fsyntax-only', '-w', '-ferror-limit=0']
# The build defines the version; any text will do here.
FLAGS = ['-std=c++20', '-Wreserved-identifier', '-DGLIMMERPANE_VERSION=""']
PLACE = re.compile(r'^(?P<file>[^:\n]+):\d+:\d+: (?:fatal )?(?P<kind>error|warning): .*', re.M)
USING = re.compile(r'^\s*using (?:\w+::)+\w+;', re.M)


class Batch:
    """Sources that are joined into one text, and the compiler's arguments for them."""

    def __init__(self, tree, names, flags):
        self.tree, self.names, self.flags = tree, names, flags

    def run(self, command, *flags):
        """What a tool prints about the text, with places in the sources, relative to the tree; empty when it is content."""
        text, starts = '', []
        for name in self.names:
            starts.append(text.count('\n') + 1)
            text += self.tree.text(name).rstrip('\n') + '\n'
        with tempfile.TemporaryDirectory(prefix='glimmerpane.') as folder:
            path = os.path.join(folder, 'batch.cpp')
            with open(path, 'w', encoding='utf-8') as file:
                file.write(text)
            done = subprocess.run([*command, path, *flags, *self.flags], capture_output=True, text=True)

        def placed(match):
            index = bisect.bisect(starts, int(match[1])) - 1
            return f'{self.names[index]}:{int(match[1]) - starts[index] + 1}:'

        output = re.sub(re.escape(path) + r':(\d+):', placed, done.stdout + done.stderr)
        return output.replace(self.tree.root + '/', '') if done.returncode else ''

    def misfits(self):
        """The sources that must go into another text. An error in a header is left to the tool."""
        failed = {place['file'] for place in PLACE.finditer(self.run(COMPILER))}
        return [name for name in self.names if name in failed.union(self.repeatedUsings())]

    def repeatedUsings(self):
        """Sources with a using-declaration of an earlier one, whose own the tool would take for used."""
        seen, repeated = set(), set()
        for name in self.names:
            declarations = {found.strip() for found in USING.findall(self.tree.text(name))}
            if declarations & seen:
                repeated.add(name)
            seen |= declarations
        return repeated

    def without(self, names):
        return Batch(self.tree, [name for name in self.names if name not in names], self.flags)

    def findings(self):
        """Lines that name a place and what is wrong there."""
        settings = '--config-file=' + self.tree.path('.clang-tidy')
        output = self.run([TOOL, '--quiet', '--warnings-as-errors=*', settings], '--')
        found = [place.group() for place in PLACE.finditer(output)]
        return found or ([f'{self.names[0]}: {output.strip()[:200]}'] if output else [])


def batches(tree, names, flags):
    """Batches with all of these sources. A source that does not compile has a batch to itself."""
    pieces = [Batch(tree, names[first::processors()], flags) for first in range(min(processors(), len(names)))]
    done, left = [], []
    for piece, misfits in zip(pieces, inParallel(Batch.misfits, pieces)):
        if misfits == piece.names:  # none may be behind another, so the first one comes alone
            misfits = misfits[1:]
        done.append(piece.without(misfits))
        left += misfits
    return done + (batches(tree, left, flags) if left else [])


def flagsOf(tree, name):
    """The compiler's arguments. The core's are known without a build; None where the build must be asked and is missing."""
    if name.startswith('src/') and not isUi(name):
        return (*FLAGS, '-I', tree.path('src'))
    kept = tree.compilerFlags(name)
    return None if kept is None else (*FLAGS, *kept)


def checkSources(tree, sources):
    cache = Cache(tree, 'tidy')
    settings = tree.text('.clang-tidy') if tree.has('.clang-tidy') else ''
    byFlags, marks = {}, {}
    for name in sources:
        flags = flagsOf(tree, name)
        if flags is None:
            return [f'build first: the flags for {name} come from the build']
        marks[name] = tree.fingerprint(name, settings, *flags)
        if not cache.has(marks[name]):
            byFlags.setdefault(flags, []).append(name)

    def findings(batch):
        found = batch.findings()
        places = {line.split(':')[0] for line in found}
        # A finding in a header may come from any source of the batch.
        for name in batch.names if places.issubset(batch.names) else []:
            if name not in places:
                cache.add(marks[name])
        return found

    work = [batch for flags, names in byFlags.items() for batch in batches(tree, names, flags)]
    # A finding in a header comes once for each batch that reaches it.
    return list(dict.fromkeys(line for found in inParallel(findings, work) for line in found))


def check(tree):
    """The core and the command line."""
    return checkSources(tree, [name for name in tree.sources('src', endings=('.cpp',)) if not isUi(name)])


def checkAll(tree):
    """The ui zone and the tests too."""
    built = tree.commands()
    tests = [name for name in tree.sources('tests', endings=('.cpp',)) if name in built]
    return checkSources(tree, tree.sources('src', endings=('.cpp',)) + tests)
