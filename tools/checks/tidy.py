"""clang-tidy over the core. What was found good is remembered, so that a second run looks only at what changed."""
import subprocess

from tree import Cache, inParallel, isUi

TOOL = 'clang-tidy-14'
FLAGS = ['-std=c++20', '-x', 'c++']


def check(tree):
    cache = Cache(tree, 'tidy')
    settings = tree.text('.clang-tidy') if tree.has('.clang-tidy') else ''

    def problems(name):
        mark = tree.fingerprint(name, settings, *FLAGS)
        if cache.has(mark):
            return []
        command = [TOOL, '--quiet', '--warnings-as-errors=*', tree.path(name), '--', *FLAGS, '-I', tree.path('src')]
        done = subprocess.run(command, capture_output=True, text=True)
        if done.returncode == 0:
            cache.add(mark)
            return []
        found = [line for line in done.stdout.splitlines() if ' error: ' in line or ' warning: ' in line]
        return [line.replace(tree.root + '/', '') for line in found] or [f'{name}: {done.stderr.strip()[:200]}']

    sources = [name for name in tree.sources('src', endings=('.cpp',)) if not isUi(name)]
    # A finding in a header comes once for each source that reaches it.
    return list(dict.fromkeys(line for found in inParallel(problems, sources) for line in found))
