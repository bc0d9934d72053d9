#!/usr/bin/python3
"""Runs every fuzz target on its seeds, on the public corpus if there is one, and on a short series of mutations.

    tests/fuzz/run_all.py FOLDER-WITH-TARGETS

fuzz_<kind>[_more] uses the seeds of its name and of its kind in tests/fuzz/seeds, tests/fuzz/<kind>.dict and the corpus
folder <kind>.
The mutations start from a fixed seed, so that failures can be reproduced. A target that has passed is not run again
until it, its seeds or this script changes: the series of mutations would be the same. Prints PASS or FAIL per target; the
last line counts them.
"""
import concurrent.futures
import glob
import hashlib
import os
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.realpath(__file__))
CORPUS = os.environ.get('GLIMMERPANE_CORPUS', os.path.join(HERE, '..', '..', '..', 'shared', 'corpus'))
RUNS = 20000
SECONDS = 20          # a target that is slower than RUNS stops after this time
LONGEST_INPUT = 65536
LARGEST_BLOCK_MB = 64  # no single allocation beyond this for an input below LONGEST_INPUT
MEMORY_MB = 1024       # includes the sanitizers' own
SLOWEST_INPUT_SECONDS = 5
GRACE_SECONDS = 60
SLOW_TARGETS = ('fuzz_ico', 'fuzz_ini')


def kind(name):
    """The kind of files for the target `name`."""
    return name.split('_')[0]


def inputs(name):
    """Folders with seeds for the target `name`."""
    names = dict.fromkeys([name, kind(name)])
    folders = [*(os.path.join(HERE, 'seeds', n) for n in names), os.path.join(CORPUS, kind(name))]
    return [folder for folder in folders if os.path.isdir(folder)]


def mark(program, name):
    """A file that exists if the target has passed in this form with these inputs."""
    digest = hashlib.sha256()
    for folder in [program, os.path.realpath(__file__), os.path.join(HERE, kind(name) + '.dict'), *inputs(name)]:
        for path in [folder] if os.path.isfile(folder) else sorted(glob.glob(os.path.join(folder, '**'), recursive=True)):
            if os.path.isfile(path):
                with open(path, 'rb') as file:
                    digest.update(os.fsencode(path) + b'\0' + file.read())
    return os.path.join(os.path.dirname(program), 'passed', name + '-' + digest.hexdigest())


def runChanged(program):
    """(target, whether it passed, output). The output is empty for a target that has passed before."""
    target = os.path.basename(program)
    passed = mark(program, target.removeprefix('fuzz_'))
    if os.path.isfile(passed):
        return target, True, ''
    _, good, output = run(program)
    good = good and executed(output) > 0
    if good:
        os.makedirs(os.path.dirname(passed), exist_ok=True)
        open(passed, 'w').close()
    return target, good, output


def run(program):
    target = os.path.basename(program)
    name = target.removeprefix('fuzz_')
    crashes = os.path.join(os.path.dirname(program), 'crashes', name)
    os.makedirs(crashes, exist_ok=True)
    command = [program, f'-runs={RUNS}', f'-max_total_time={SECONDS}', '-seed=1', f'-max_len={LONGEST_INPUT}',
               f'-malloc_limit_mb={LARGEST_BLOCK_MB}', f'-rss_limit_mb={MEMORY_MB}', f'-timeout={SLOWEST_INPUT_SECONDS}',
               f'-artifact_prefix={crashes}/', '-print_final_stats=1']
    dictionary = os.path.join(HERE, kind(name) + '.dict')
    if os.path.isfile(dictionary):
        command.append(f'-dict={dictionary}')
    with tempfile.TemporaryDirectory(prefix='glimmerpane.') as grown:
        try:
            done = subprocess.run([*command, grown, *inputs(name)], capture_output=True, text=True, errors='replace',
                                  timeout=SECONDS + GRACE_SECONDS)
        except subprocess.TimeoutExpired:
            return target, False, 'did not end'
    return target, done.returncode == 0, done.stderr


def executed(output):
    """The number of inputs that the target has run."""
    lines = [line for line in output.splitlines() if 'number_of_executed_units' in line]
    return int(lines[-1].split()[-1]) if lines else 0


def main():
    # The targets that take longest come first, so that all processors end together.
    programs = sorted((p for p in glob.glob(os.path.join(os.path.abspath(sys.argv[1]), 'fuzz_*')) if os.access(p, os.X_OK) and os.path.isfile(p)),
                      key=lambda p: (os.path.basename(p) not in SLOW_TARGETS, p))
    sources = glob.glob(os.path.join(HERE, 'fuzz_*.cpp'))
    if not os.path.isdir(CORPUS):
        print('The public corpus is not here: fuzzing starts from the seeds in tests/fuzz alone.')
    failed = [os.path.basename(s) for s in sources if not any(os.path.basename(p) + '.cpp' == os.path.basename(s) for p in programs)]
    for name in failed:
        print(f'FAIL {name} was not built')
    passed = 0
    with concurrent.futures.ThreadPoolExecutor(os.cpu_count() or 1) as pool:
        for target, good, output in pool.map(runChanged, programs):
            tried = f'{executed(output)} inputs' if output else 'passed before, and nothing has changed'
            print(f'{"PASS" if good else "FAIL"} {target}: {tried}', flush=True)
            if good:
                passed += 1
            else:
                failed.append(target)
                print('\n'.join(output.splitlines()[-40:]))
    print(f'{passed} passed, {len(failed)} failed')
    return 1 if failed else 0


sys.exit(main())
