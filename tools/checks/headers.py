"""Each header compiles alone: it includes what it uses."""
import subprocess

from tree import Cache, inParallel, isUi

COMPILER = ['g++', '-std=c++20', '-fsyntax-only', '-x', 'c++', '-Wall', '-Wextra', '-Wno-pragma-once-outside-header']
KEPT_FLAGS = ('-I', '-D', '-isystem', '-f')


def uiFlags(tree):
    """Qt's flags, from any source of the ui zone in the last build; None before it."""
    for name, command in tree.commands().items():
        if name.startswith('src/') and isUi(name):
            kept = []
            for flag, following in zip(command, command[1:] + ['']):
                if flag == '-isystem':
                    kept += [flag, following]
                elif flag.startswith(KEPT_FLAGS):
                    kept.append(flag)
            return kept
    return None


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
    return [found for found in inParallel(problem, headers) if found]
