"""Checks that the sources are laid out as clang-format does. Sources that passed are remembered."""
import re
import subprocess

from tree import Cache, inParallel, processors

TOOL = 'clang-format-14'
PLACES = ('src', 'tests', 'bench')
COMPLAINT = re.compile(r'^(.*?):(\d+):\d+: error:', re.M)


def problems(tree, names):
    """{file: its first line with another layout}; a tool that fails without naming a line is reported for all files."""
    done = subprocess.run([TOOL, '--dry-run', '-Werror', *map(tree.path, names)], capture_output=True, text=True)
    found = {}
    for path, line in COMPLAINT.findall(done.stderr):
        found.setdefault(path.replace(tree.root + '/', ''), f'{line}: run {TOOL} -i')
    if done.returncode and not found:
        found = {name: done.stderr.strip()[:120] for name in names}
    return found


def check(tree):
    cache = Cache(tree, 'format')
    settings = tree.text('.clang-format') if tree.has('.clang-format') else ''
    marks = {name: tree.mark([name], settings, TOOL) for name in tree.sources(*PLACES)}
    changed = [name for name in marks if not cache.has(marks[name])]
    pieces = [changed[first::processors()] for first in range(processors())]
    wrong = {}
    for found in inParallel(lambda names: problems(tree, names), [piece for piece in pieces if piece]):
        wrong.update(found)
    for name in changed:
        if name not in wrong:
            cache.add(marks[name])
    return [f'{name}:{problem}' for name, problem in sorted(wrong.items())]
