"""Runs one test on the session bus of this process: run_one.py EXECUTABLE FILE FUNCTION FOLDER-FOR-PICTURES. Exit
status 0 for passed, 1 for failed, 77 for skipped (the test raised unittest.SkipTest)."""
import importlib.util
import os
import sys
import traceback
import unittest

from session import Session

SKIPPED = 77


def load(path):
    described = importlib.util.spec_from_file_location('test_under_way', path)
    module = importlib.util.module_from_spec(described)
    described.loader.exec_module(module)
    return module


def reportFailure(session, picture):
    traceback.print_exc()
    try:
        os.makedirs(os.path.dirname(picture), exist_ok=True)
        session.picture().save(picture)
        print('The screen at that moment:', picture)
        print(session.output()[-4000:])
    except Exception as problem:
        print('No picture of the failure:', problem)


def main():
    executable, path, function, pictures = sys.argv[1:]
    test = getattr(load(path), function)
    with Session(executable) as session:
        try:
            test(session)
        except unittest.SkipTest as reason:
            print(reason)
            return SKIPPED
        except Exception:
            reportFailure(session, os.path.join(pictures, function + '.png'))
            return 1
    return 0


sys.exit(main())
