#!/usr/bin/python3
"""Runs every fuzz target, each on its corpus, its seeds, the public files if there are any, and mutations of them.

    tests/fuzz/run_all.py FOLDER-WITH-TARGETS [--minutes N | --minimise] [TARGET...]

fuzz_<kind>[_more] uses the seeds of its name and of its kind in tests/fuzz/seeds, tests/fuzz/<kind>.dict, its corpus in
tests/fuzz/corpus/<kind>[_more], and the folder <kind> of the public files. Seeds are made by hand; the corpus is what
fuzzing has found.

Without an option, each target gets a fixed number of mutations from a fixed seed, so that failures can be reproduced. A
target that has passed is not run again until it, its inputs or this script changes: the series of mutations would be the
same. With --minutes all targets share N minutes, with mutations that differ each time. They start from corpus and
seeds, and what they find is kept in FOLDER-WITH-TARGETS/grown. --minimise then makes the corpus again: it takes the
smallest set of inputs that reaches what corpus, seeds and grown inputs reach together. The public files never become
part of it, because they have other licences.

Prints PASS or FAIL per target; the last line counts them.
"""
import argparse
import concurrent.futures
import glob
import hashlib
import os
import shutil
import subprocess
import sys
import tempfile
import time

HERE = os.path.dirname(os.path.realpath(__file__))
PUBLIC = os.environ.get('GLIMMERPANE_CORPUS', os.path.join(HERE, '..', '..', '..', 'shared', 'corpus'))
# The mutations of a target in the short series: as many as it runs in about nine seconds.
MUTATIONS = {
    'ani': 7000, 'cur': 8000, 'ico': 4000, 'ico_browser': 12000, 'ico_check': 5000, 'ico_headers': 2500, 'ico_large': 1500,
    'ico_multi': 40000, 'ico_png': 12000, 'ico_rewrite': 4000, 'ini': 20000, 'pictures': 120000, 'pictures_qt': 30000, 'text': 60000,
    'ani_session': 1500, 'ani_xcursor': 20000, 'xcursor': 20000,
    'library': 4500, 'link': 60000, 'scan': 11000,
}
OTHER_MUTATIONS = 5000   # of a target that is not in the table
LONGEST_INPUT = 65536
LARGEST_BLOCK_MB = 64    # no single allocation beyond this for an input below LONGEST_INPUT
MEMORY_MB = 1024         # includes the sanitizers' own
SLOWEST_INPUT_SECONDS = 5
HUNG_SECONDS = 600       # a short series that has not ended by then has failed
GRACE_SECONDS = 60
CORPUS_BYTES = 900000    # of all targets together
LONGEST_KEPT = 4096      # of an input in the corpus


class Target:
    """One program, and where its inputs are."""

    def __init__(self, program):
        self.program = program
        self.target = os.path.basename(program)
        self.name = self.target.removeprefix('fuzz_')
        self.kind = self.name.split('_')[0]
        self.folder = os.path.dirname(program)
        self.dictionary = os.path.join(HERE, self.kind + '.dict')
        self.corpus = os.path.join(HERE, 'corpus', self.name)
        self.grown = os.path.join(self.folder, 'grown', self.name)

    def seeds(self):
        names = dict.fromkeys([self.name, self.kind])
        return existing(os.path.join(HERE, 'seeds', name) for name in names)

    def kept(self):
        """The folders of the repository with inputs for this target."""
        return existing([self.corpus, *self.seeds()])

    def inputs(self):
        return self.kept() + existing([os.path.join(PUBLIC, self.kind)])

    def command(self, *options):
        crashes = os.path.join(self.folder, 'crashes', self.name)
        os.makedirs(crashes, exist_ok=True)
        dictionary = [f'-dict={self.dictionary}'] if os.path.isfile(self.dictionary) else []
        return [self.program, f'-malloc_limit_mb={LARGEST_BLOCK_MB}', f'-rss_limit_mb={MEMORY_MB}',
                f'-timeout={SLOWEST_INPUT_SECONDS}', f'-artifact_prefix={crashes}/', '-print_final_stats=1', *dictionary,
                *options]

    def mark(self):
        """A file that exists if the target has passed the short series in this form with these inputs."""
        digest = hashlib.sha256()
        for path in [self.program, os.path.realpath(__file__), *existing([self.dictionary]), *files(self.inputs())]:
            with open(path, 'rb') as file:
                digest.update(os.fsencode(path) + b'\0' + file.read())
        return os.path.join(self.folder, 'passed', self.name + '-' + digest.hexdigest())


class Result:
    def __init__(self, target, good, said, output=''):
        self.target, self.good, self.said, self.output = target, good, said, output

    def print(self):
        print(f'{"PASS" if self.good else "FAIL"} {self.target.target}: {self.said}', flush=True)
        if not self.good:
            print('\n'.join(self.output.splitlines()[-40:]))


def existing(paths):
    return [path for path in paths if os.path.exists(path)]


def files(folders):
    """All files in these folders, sorted."""
    found = (path for folder in folders for path in glob.glob(os.path.join(folder, '**'), recursive=True))
    return sorted(path for path in found if os.path.isfile(path))


def run(target, command, seconds):
    start = time.monotonic()
    try:
        done = subprocess.run(command, capture_output=True, text=True, errors='replace', timeout=seconds)
    except subprocess.TimeoutExpired:
        return Result(target, False, 'did not end')
    inputs, took = executed(done.stderr), time.monotonic() - start
    return Result(target, done.returncode == 0 and inputs > 0, f'{inputs} inputs, {inputs / took:.0f} a second', done.stderr)


def executed(output):
    """The number of inputs that a target has run."""
    lines = [line for line in output.splitlines() if 'number_of_executed_units' in line]
    return int(lines[-1].split()[-1]) if lines else 0


def runShort(target):
    """The inputs, and the fixed series of mutations."""
    passed = target.mark()
    if os.path.isfile(passed):
        return Result(target, True, 'passed before, and nothing has changed')
    runs = len(files(target.inputs())) + MUTATIONS.get(target.name, OTHER_MUTATIONS)
    with tempfile.TemporaryDirectory(prefix='glimmerpane.') as found:
        result = run(target, target.command(f'-runs={runs}', '-seed=1', '-reload=0', f'-max_len={LONGEST_INPUT}', found,
                                            *target.inputs()), HUNG_SECONDS)
    if result.good:
        os.makedirs(os.path.dirname(passed), exist_ok=True)
        open(passed, 'w').close()
    return result


def runLong(target, seconds):
    os.makedirs(target.grown, exist_ok=True)
    return run(target, target.command(f'-max_total_time={seconds}', f'-max_len={LONGEST_INPUT}', target.grown,
                                      *target.kept()), seconds + GRACE_SECONDS)


def minimise(target, mostBytes):
    """Makes the corpus of the target again, of what its seeds do not reach."""
    with tempfile.TemporaryDirectory(prefix='glimmerpane.') as kept:
        for number, seed in enumerate(files(target.seeds())):
            shutil.copyfile(seed, os.path.join(kept, f'seed{number}'))
        command = target.command('-set_cover_merge=1', f'-max_len={LONGEST_KEPT}', kept,
                                 *existing([target.corpus, target.grown]))
        done = subprocess.run(command, capture_output=True, text=True, errors='replace')
        if done.returncode != 0:
            return Result(target, False, 'could not be merged', done.stderr)
        found = [path for path in files([kept]) if not os.path.basename(path).startswith('seed')]
        return Result(target, True, replaceCorpus(target, found, mostBytes))


def replaceCorpus(target, found, mostBytes):
    """Keeps the shortest of the inputs, up to a sum of bytes. Returns how many that are."""
    shutil.rmtree(target.corpus, ignore_errors=True)
    os.makedirs(target.corpus)
    kept = 0
    for path in sorted(found, key=os.path.getsize):
        mostBytes -= os.path.getsize(path)
        if mostBytes >= 0:
            shutil.copyfile(path, os.path.join(target.corpus, os.path.basename(path)))
            kept += 1
    return f'{kept} of {len(found)} inputs kept'


def findTargets(folder):
    programs = sorted(glob.glob(os.path.join(os.path.abspath(folder), 'fuzz_*')))
    return [Target(p) for p in programs if os.path.isfile(p) and os.access(p, os.X_OK)]


def parseArguments():
    parser = argparse.ArgumentParser()
    parser.add_argument('folder', metavar='FOLDER-WITH-TARGETS')
    how = parser.add_mutually_exclusive_group()
    how.add_argument('--minutes', type=float, help='run for this time, all targets together')
    how.add_argument('--minimise', action='store_true', help='make the corpus again')
    parser.add_argument('targets', nargs='*', metavar='TARGET')
    return parser.parse_intermixed_args()


def chosenRun(arguments, targets, workers):
    """The function that runs one target."""
    if arguments.minimise:
        everything = findTargets(arguments.folder)
        return lambda target: minimise(target, CORPUS_BYTES // len(everything))
    if arguments.minutes:
        seconds = max(1, int(arguments.minutes * 60 * workers / len(targets)))
        return lambda target: runLong(target, seconds)
    if not os.path.isdir(PUBLIC):
        print('There are no public files: fuzzing starts from tests/fuzz alone.')
    return runShort


def main():
    arguments = parseArguments()
    targets = findTargets(arguments.folder)
    built = {target.target for target in targets}
    wanted = arguments.targets or [os.path.basename(s).removesuffix('.cpp') for s in glob.glob(os.path.join(HERE, 'fuzz_*.cpp'))]
    missing = sorted(set(wanted) - built)
    for name in missing:
        print(f'FAIL {name} was not built')
    targets = [target for target in targets if target.target in wanted]
    results = []
    workers = os.cpu_count() or 1
    if targets:
        action = chosenRun(arguments, targets, workers)
        with concurrent.futures.ThreadPoolExecutor(workers) as pool:
            for result in pool.map(action, targets):
                result.print()
                results.append(result)
    failed = len(missing) + sum(not result.good for result in results)
    print(f'{sum(result.good for result in results)} passed, {failed} failed')
    return 1 if failed else 0


sys.exit(main())
