"""The comments of a source file: what it says to its readers, without strings and code."""
import ast
import io
import re
import tokenize

# Strings and characters are matched too, so that "//" in one of them does not start a comment.
CXX = re.compile(r'(//[^\n]*|/\*.*?\*/)|R"(\w*)\(.*?\)\2"|"(?:\\.|[^"\\\n])*"|(?<!\w)\'(?:\\.|[^\'\\\n])+\'', re.S)
HASH = re.compile(r'(?:^|\s)#(?!!).*')


def numbered(text, first):
    """(line number, line) of each line of a text that begins on line `first`."""
    return list(enumerate(text.splitlines(), first))


def ofCxx(text):
    return [line for match in CXX.finditer(text) if match.group(1)
            for line in numbered(match.group(1), text.count('\n', 0, match.start()) + 1)]


def ofPython(text):
    """Comments and docstrings."""
    lines = [(token.start[0], token.string) for token in tokenize.generate_tokens(io.StringIO(text).readline)
             if token.type == tokenize.COMMENT]
    for node in ast.walk(ast.parse(text)):
        if isinstance(node, (ast.Module, ast.ClassDef, ast.FunctionDef)) and ast.get_docstring(node):
            lines += numbered(ast.get_docstring(node, clean=False), node.body[0].lineno)
    return lines


def ofScript(text):
    """Shell scripts and CMake files: what follows a # that begins a word."""
    matches = ((number, HASH.search(line)) for number, line in numbered(text, 1))
    return [(number, match.group(0)) for number, match in matches if match]


def commentsOf(name, text):
    """(line number, text) of each line of the comments in a file, which can be C++, Python, a script or a document."""
    if name.endswith('.md'):
        return numbered(text, 1)
    if name.endswith(('.h', '.cpp', '.S.in')):
        return ofCxx(text)
    if name.endswith('.py') or text.startswith('#!/usr/bin/python'):
        return ofPython(text)
    if name.endswith(('.cmake', '.sh', 'CMakeLists.txt', 'packages.txt')) or text.startswith('#!'):
        return ofScript(text)
    return []
