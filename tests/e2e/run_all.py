#!/usr/bin/python3
"""Runs every test_* function of every test_*.py here against the built program, each on its own desktop.

    tests/e2e/run_all.py [--build DIR] [--jobs N] [PART-OF-NAME...]

Several run side by side: each has its own X server, window manager, buses, home and folder. Prints PASS, FAIL or SKIP
and the seconds per test; the last line counts them.
"""
import argparse
import concurrent.futures
import glob
import os
import re
import signal
import subprocess
import sys
import time

HERE = os.path.dirname(os.path.realpath(__file__))
SECONDS_PER_TEST = 900  # longer than any test needs on a busy machine
SKIPPED = 77
JOBS_PER_PROCESSOR = 2  # most of the time the program waits for its user, and the test for the program
SLOWEST = 'test_real_files_go_the_whole_road'
FUNCTION = re.compile(r'^def (test_\w+)\(.*?(?=^\S|\Z)', re.M | re.S)


def discover(parts):
    """(file, function) of each test whose name contains one of `parts`: the slowest one first, then long ones."""
    found = []
    for path in sorted(glob.glob(os.path.join(HERE, 'test_*.py'))):
        with open(path, encoding='utf-8') as file:
            functions = [(match[1], len(match[0])) for match in FUNCTION.finditer(file.read())]
        for function, length in functions:
            name = f'{os.path.basename(path)}:{function}'
            if not parts or any(part in name for part in parts):
                found.append((length, path, function))
    return [(path, function) for _, path, function in sorted(found, key=lambda test: (test[2] != SLOWEST, -test[0]))]


def run(executable, pictures, path, function):
    """(status, output) of one test, which runs in its own process group, so that all of its processes end with it."""
    command = ['dbus-run-session', '--', sys.executable, os.path.join(HERE, 'run_one.py'), executable, path, function, pictures]
    environment = {name: value for name, value in os.environ.items() if name not in ('DISPLAY', 'WAYLAND_DISPLAY')}
    environment.update(PYTHONDONTWRITEBYTECODE='1', PYTHONPATH=HERE)
    process = subprocess.Popen(command, env=environment, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                               stderr=subprocess.STDOUT, text=True, errors='replace', start_new_session=True)
    try:
        output, _ = process.communicate(timeout=SECONDS_PER_TEST)
        return process.returncode, output
    except subprocess.TimeoutExpired:
        return 1, f'did not end within {SECONDS_PER_TEST} s'
    finally:
        try:
            os.killpg(process.pid, signal.SIGKILL)
        except ProcessLookupError:
            pass


def timed(executable, pictures, test):
    start = time.monotonic()
    status, output = run(executable, pictures, *test)
    return test[1], {0: 'PASS', SKIPPED: 'SKIP'}.get(status, 'FAIL'), time.monotonic() - start, output


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument('--build', default=os.path.join(HERE, '..', '..', 'build'))
    parser.add_argument('--jobs', type=int, default=JOBS_PER_PROCESSOR * (os.cpu_count() or 1))
    parser.add_argument('parts', nargs='*')
    options = parser.parse_args()
    executable = os.path.abspath(os.path.join(options.build, 'glimmerpane'))
    pictures = os.path.join(os.path.abspath(options.build), 'e2e')
    tests = discover(options.parts)
    counts = {'PASS': 0, 'FAIL': 0, 'SKIP': 0}
    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        for done in concurrent.futures.as_completed([pool.submit(timed, executable, pictures, test) for test in tests]):
            name, word, seconds, output = done.result()
            counts[word] += 1
            print(word, name, f'({seconds:.0f} s)', '' if word == 'PASS' else '\n' + output, flush=True)
    print(f'{counts["PASS"]} passed, {counts["FAIL"]} failed, {counts["SKIP"]} skipped')
    return 1 if counts['FAIL'] or not tests else 0


sys.exit(main())
