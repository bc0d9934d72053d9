"""The layout of the sources is what clang-format makes of them."""
import re
import subprocess

from tree import inParallel

TOOL = 'clang-format-14'
PLACES = ('src', 'tests', 'bench')
COMPLAINT = re.compile(r'^(.*?):(\d+):\d+: error:', re.M)


def formatProblem(tree, name):
    """The first line that is laid out otherwise, or an empty text."""
    done = subprocess.run([TOOL, '--dry-run', '-Werror', '--ferror-limit=1', tree.path(name)], capture_output=True, text=True)
    if done.returncode == 0:
        return ''
    match = COMPLAINT.search(done.stderr)
    return f'{name}:{match.group(2)}: run {TOOL} -i' if match else f'{name}: {done.stderr.strip()[:120]}'


def check(tree):
    return [problem for problem in inParallel(lambda name: formatProblem(tree, name), tree.sources(*PLACES)) if problem]
