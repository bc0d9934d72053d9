"""Words that have no place in the program's own texts: code, documents and commit messages speak about the program."""
import re

EXEMPT = ('DEVELOPERS.md',)
# Phrases in which a forbidden word means something of the program itself.
ALLOWED = re.compile(r'animated cursor session|ANI session|session for 32x32|cursor session', re.I)


def pattern():
    """Put together from halves, so that this file passes its own rule."""
    halves = [
        ('specifi', 'cation'), (r'\bspec\.', r'md\b'), (r'\bthe ', r'spec\b'), ('per ', 'spec'),
        (r'\bParts? ', r'[0-9]+(\.[0-9]+)?\b'), ('seed ', 'document'), ('the document ', 'says'),
        (r'\bsub-?', r'agents?\b'), (r'\bassis', r'tants?\b'), (r'\bL', r'LMs?\b'), ('this ', 'session'),
        (r'dev(eloper)?s.? ', 'session'), (r'\.lib', 'rary'), ('/wo', 'rk/'), ('/tmp/', 'ceo'), ('/tmp/', 'brief'),
        ('farm-', '(studio|bench)'), (r'\bissues? ', r'#?[0-9]+\b'), (r'\bclau', r'de\b'), ('anthro', 'pic'),
        ('chat', 'gpt'), ('open', r'ai\b'),
    ]
    return re.compile('|'.join(first + second for first, second in halves), re.I)


def findIn(text, forbidden):
    """(line number, line) of each line that holds a forbidden word."""
    for number, line in enumerate(text.splitlines(), 1):
        if forbidden.search(ALLOWED.sub('', line)):
            yield number, line.strip()[:120]


def check(tree):
    forbidden = pattern()
    problems = []
    for name in tree.allFiles():
        if name in EXEMPT:
            continue
        if forbidden.search(name):
            problems.append(f'file name {name}')
        text = tree.text(name)
        if '\0' not in text:
            problems += [f'{name}:{number}: {line}' for number, line in findIn(text, forbidden)]
    log = tree.git('log', '--format=%h %s%n%b') if tree.has('.git/HEAD') else None
    problems += [f'commit message: {line}' for _, line in findIn(log or '', forbidden)]
    return problems
