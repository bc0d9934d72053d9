"""Proves that the rules can fail: each is given a small tree that breaks it, and must name the offending line."""
import os
import tempfile

import layers
import packages
import sizes
import tidy
import words
from tree import Tree, processors

ROOMS = '''| room | what is in it | may use |
|---|---|---|
| `platform` | ground | nothing |
| `document` | records | the rooms above |
| `shell` | the whole | the rooms above |
| `cli` | command line | `platform` to `document` |

## Dependencies

`present`
'''
HEADER = '// What it is for.\n#pragma once\n'
GOOD = {'docs/architecture.md': ROOMS, 'tools/packages.txt': 'build present  reason\n',
        'src/platform/A.h': HEADER + '#include <vector>\n', 'src/document/B.h': HEADER + '#include "platform/A.h"\n',
        'src/document/ui/C.h': HEADER + '#include <QWidget>\n', 'src/shell/D.h': HEADER,
        'tests/E.h': HEADER + 'const char* text = "made anew // nobody";\nint told;\n'
                     '// It stands for one, stands in for one, stands still, stands out. Told well apart, one tells good from bad.\n',
        'tools/f.py': '"""Tells good from bad apart."""\nTOLD = "# nobody"\n'}
LONG_FUNCTION = 'void f() {\n' + '  g();\n' * sizes.MAX_FUNCTION_LINES + '}\n'

# rule, file that breaks it, its text, what the message must contain
BROKEN = [
    (layers.check, 'src/platform/Bad.h', '#include "document/B.h"', 'src/platform/Bad.h:1: platform must not include'),
    (layers.check, 'src/document/Bad.h', '#include <QString>', 'src/document/Bad.h:1: <QString>'),
    (layers.check, 'src/document/Bad.cpp', '#include <unistd.h>', '<unistd.h>'),
    (layers.check, 'src/platform/files/Bad.cpp', '#include <xcb/xcb.h>', '<xcb/xcb.h>'),
    (layers.check, 'src/document/Bad.cpp', '\n#include "qstring.h"', 'src/document/Bad.cpp:2: "qstring.h"'),
    (layers.check, 'src/document/Bad.cpp', '#include "document/ui/C.h"', 'the core must not include'),
    (layers.check, 'src/document/ui/Bad.cpp', '#include <X11/Xlib.h>', 'X11'),
    (layers.check, 'src/cli/Bad.cpp', '#include "shell/D.h"', 'cli must not include'),
    (layers.check, 'src/attic/Bad.cpp', '#include "platform/A.h"', 'the room attic'),
    (words.check, 'src/document/Bad.h', '// as told in Part' + ' 3.1', 'src/document/Bad.h:1'),
    (words.check, 'docs/bad.md', 'the file ' + 'specifi' + 'cation', 'docs/bad.md:1'),
    (words.checkEnglish, 'tests/Bad.h', 'int a = \'"\';\n// Made\n// anew', 'tests/Bad.h:3: "anew"'),
    (words.checkEnglish, 'tests/Bad.h', 'const char* a = "//"; /* It\nstands here. */', 'tests/Bad.h:2: "stands"'),
    (words.checkEnglish, 'bench/bad.py', 'def f():\n    """A value.\n\n    Nobody needs it."""\n', 'bench/bad.py:4: "Nobody"'),
    (words.checkEnglish, 'bench/bad.py', 'a = "#"  # as told', 'bench/bad.py:1: "told"'),
    (words.checkEnglish, 'tools/bad', '#!/bin/sh\necho  # what becomes of it\n', 'tools/bad:2: "becomes of"'),
    (words.checkEnglish, 'tests/Bad.cmake', '# It wants more.', 'tests/Bad.cmake:1: "wants"'),
    (words.checkEnglish, 'docs/bad.md', 'Without it there is\nnobody.', 'docs/bad.md:2: "nobody"'),
    (sizes.checkFiles, 'src/document/Bad.cpp', '\n' * (sizes.MAX_FILE_LINES['src'] + 1), 'src/document/Bad.cpp'),
    (sizes.checkFunctions, 'src/document/Bad.cpp', 'namespace gp {\n' + LONG_FUNCTION + '}', 'src/document/Bad.cpp:2: 62'),
    (sizes.checkFunctions, 'src/document/Bad.cpp', 'class A : B<C()> {\n' + LONG_FUNCTION + '};', 'src/document/Bad.cpp:2: 62'),
    (sizes.checkFunctions, 'src/document/Bad.cpp', 'A::A() : a{1}, b("}") ' + LONG_FUNCTION[9:], 'src/document/Bad.cpp:1: 62'),
    (sizes.checkOpenings, 'src/document/Bad.h', '#pragma once\n', 'src/document/Bad.h'),
    (packages.check, 'tools/packages.txt', 'build absent  reason', 'absent'),
]
# One for each stilted word.
STILTED = ('Nobody asks.', 'It is made anew.', 'a row of such alone', 'The file tells it.', 'as it was told',
           'It stands there.', 'where it stood', 'It wants a name.', 'There is but one.', 'what becomes of it',
           "others' business", 'the affair of the caller', 'It is lent a copy.', 'a lie', 'in the midst of it',
           'It bears a name.', 'by turns', 'no mere news', 'meant so', 'upon it')
BROKEN += [(words.checkEnglish, 'docs/bad.md', line, 'docs/bad.md:1') for line in STILTED]

TIDY_SETTINGS = "Checks: '-*,modernize-use-nullptr,misc-unused-using-decls'\nHeaderFilterRegex: '/src/'\n"
HELPER = 'namespace {\nint helper() { return 1; }\n}\n'
THING = '#pragma once\nnamespace other {\nstruct Thing {};\n}\n'
FAULT = 'int* fault() { return 0; }\n'

# a header, two sources of one batch, and where exactly the tool must find something
TIDY = [
    ('', 'int* a() { return nullptr; }', 'int* b() { return nullptr; }', []),
    ('', 'int a() { return 1; }', 'int b() { return 1; }\n' + FAULT, ['second.cpp:2']),
    ('', FAULT, 'int b() { return 1; }', ['first.cpp:1']),
    ('#pragma once\ninline ' + FAULT, '#include "platform/A.h"', '#include "platform/A.h"', ['A.h:2']),
    ('', HELPER, HELPER, []),
    ('', HELPER, HELPER + FAULT, ['second.cpp:4']),
    ('', HELPER + FAULT, HELPER, ['first.cpp:4']),
    ('', 'int a() { return 1; }', 'int b() { return 1 + unknownName; }', ['second.cpp:1']),
    (THING, '#include "platform/A.h"\nusing other::Thing;', '#include "platform/A.h"\nusing other::Thing;\nThing b;', ['first.cpp:2']),
]


def write(root, name, text):
    path = os.path.join(root, name)
    os.makedirs(os.path.dirname(path), exist_ok=True)
    with open(path, 'w', encoding='utf-8') as file:
        file.write(text)


def complaints(rule, files):
    with tempfile.TemporaryDirectory() as root:
        for name, text in files.items():
            write(root, name, text)
        return rule(Tree(root))


def tidyProblem(header, first, second, places):
    """What is wrong with what the tool finds in two sources, empty if nothing."""
    # Each processor has a batch. With one more source than processors, first.cpp and second.cpp share a batch.
    others = {f'src/platform/other{number:04}.cpp': f'int f{number}();' for number in range(processors() - 1)}
    found = complaints(tidy.check, {'.clang-tidy': TIDY_SETTINGS, 'src/platform/A.h': header, **others,
                                    'src/platform/first.cpp': first, 'src/platform/second.cpp': second})
    wanted = [f'src/platform/{place}:' for place in places]
    good = len(found) == len(wanted) and all(line.startswith(place) for line, place in zip(found, wanted))
    return '' if good else f'tidy finds {found} and not {wanted} in {first!r} and {second!r}'


def check(_):
    problems = [problem for row in TIDY if (problem := tidyProblem(*row))]
    for rule, name, text, expected in BROKEN:
        if not any(expected in line for line in complaints(rule, {**GOOD, name: text})):
            problems.append(f'{rule.__module__} does not name {name} that holds {text.strip()[:40]!r}')
    for rule in dict.fromkeys(row[0] for row in BROKEN):
        problems += [f'{rule.__module__} complains about a good tree: {line}' for line in complaints(rule, GOOD)]
    return problems
