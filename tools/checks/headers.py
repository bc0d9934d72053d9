"""Each header compiles alone: it includes what it uses. The build proves it for a header that a source includes before
anything else; the others are compiled here."""
import subprocess

from tree import Cache, inParallel, isUi

COMPILER = ['g++', '-std=c++20', '-fsyntax-only', '-x', 'c++', '-Wall', '-Wextra', '-Wno-pragma-once-outside-header']
PRECOMPILED = 'cmake_pch'  # compiler arguments of a source that gets headers without including them


def uiFlags(tree):
    """The flags for Qt, from any source of the ui zone in the last build; None before the first build."""
    return next((tree.compilerFlags(name) for name in tree.commands() if name.startswith('src/') and isUi(name)), None)


def provenByBuild(tree):
    """Headers that the build compiles with no other header before them."""
    proven = set()
    for name, command in tree.commands().items():
        if name.startswith('src/') and tree.has(name) and not any(PRECOMPILED in word for word in command):
            proven.update('src/' + target for _, kind, target in tree.includes(name)[:1] if kind == '"')
    return proven


def check(tree):
    cache = Cache(tree, 'headers')
    qt = uiFlags(tree)

    def problem(name):
        extra = qt if isUi(name) else []
        if extra is None:
            return ''
        mark = tree.fingerprint(name, *COMPILER, *extra)
        if cache.has(mark):
            return ''
        done = subprocess.run([*COMPILER, *extra, '-I', tree.path('src'), tree.path(name)], capture_output=True, text=True)
        if done.returncode == 0:
            cache.add(mark)
            return ''
        errors = [line for line in done.stderr.splitlines() if 'error:' in line] or done.stderr.splitlines()
        return f'{name}: {errors[0][:200]}'

    headers = tree.sources('src', endings=('.h',))
    if qt is None and any(isUi(name) for name in headers):
        return ['build first: the flags for Qt come from the build']
    proven = provenByBuild(tree)
    return [found for found in inParallel(problem, [name for name in headers if name not in proven]) if found]
