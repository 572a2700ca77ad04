"""A program that includes our headers gets none of their macros but those it may use.

usage: macros_test.py SOURCE_DIRECTORY COMPILER...
"""
import os
import re
import shutil
import subprocess
import sys

import library

# Macros of the interface. Every other one that a header defines is gone after it.
PUBLIC = re.compile(r'ZTHALF_API$|ZTHALF_VERSION(_\w+)?$')
# These are read by the headers that define macros for others. The list is in the first two.
LIST = {'zthalf/detail/entries.h', 'zthalf/detail/entry_rows.h'}
PARTS = LIST | {'zthalf/detail/entries_begin.h', 'zthalf/detail/entries_end.h'}


def macros(compiler, include, text):
    done = subprocess.run([compiler, '-std=c++17', '-I', include, '-E', '-dM', '-x', 'c++', '-'], input=text,
                          stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    if done.returncode != 0:
        sys.exit('FAILED: %s cannot preprocess\n%s\n%s' % (compiler, text, done.stderr))
    return set(re.findall(r'^#define (\w+)', done.stdout, re.MULTILINE))


def main(source, compilers):
    include = os.path.join(source, 'include')
    headers = sorted(os.path.relpath(os.path.join(parent, name), include)
                     for parent, _, names in os.walk(include) for name in names)
    defined = {}
    for header in headers:
        with open(os.path.join(include, header)) as text:
            defined[header] = set(re.findall(r'^\s*#\s*define\s+(\w+)', text.read(), re.MULTILINE))
    ours, listed = set().union(*defined.values()), set().union(*(defined[header] for header in LIST))
    hidden = {name for name in ours if not PUBLIC.match(name)}

    report = library.Report('macros')
    present = [c for c in compilers if shutil.which(c)]
    if not present:
        library.skip('none of the compilers is here: %s' % ', '.join(compilers))
    report.require(len(listed) > 30, 'only %d macros were found in the list' % len(listed))
    for name in ours:
        report.require(name.startswith('ZTHALF_'), '%s is a name that others may use' % name)
    for compiler in present:
        for header in headers:
            if header not in PARTS:
                left = macros(compiler, include, '#include "%s"\n' % header) & hidden
                report.require(not left, '%s leaves %s' % (header, ' '.join(sorted(left)[:5])))
        # Whoever reads the list himself has all of it, whichever header comes before or after.
        for order in (['detail/entries.h', 'half_vector.h'], ['half_ptr.h', 'detail/entries.h'],
                      ['half_vector.h', 'detail/entries.h', 'half_ptr.h']):
            text = ''.join('#include "zthalf/%s"\n' % name for name in order)
            there = macros(compiler, include, text) & hidden
            report.require(there == listed, 'after %s the list is wrong in %s' % (order, sorted(there ^ listed)[:5]))
    report.finish()


if __name__ == '__main__':
    main(sys.argv[1], sys.argv[2:])
