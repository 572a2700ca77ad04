"""The loop that reads result tables does not cross a line of the instruction cache: six instructions that do take two
cycles an element instead of one on some processors.

usage: aligned_loops_test.py LIBRARY OBJDUMP        (x86-64, compiled with optimisation)
"""
import re
import sys

import library

LINE = 64
FUNCTION = 'half_utils::lookUp('

INSTRUCTION = re.compile(r'\s*([0-9a-f]+):\t((?:[0-9a-f]{2} )+)\s*(.*)')
JUMP = re.compile(r'j\w+ +([0-9a-f]+)')


def loops(path, objdump, symbol):
    """(address of the first byte, address behind the last one) of every stretch that a jump back closes."""
    found = []
    for line in library.run(objdump, '--disassemble=' + symbol.name, '--wide', path).split('\n'):
        match = INSTRUCTION.match(line)
        if not match:
            continue
        address, code, text = int(match.group(1), 16), match.group(2).split(), match.group(3)
        jump = JUMP.match(text)
        if jump and symbol.address <= int(jump.group(1), 16) <= address:
            found.append((int(jump.group(1), 16), address + len(code)))
    return found


def main(path, objdump):
    report = library.Report('aligned loops')
    functions = {s.address: s for s in library.symbols(path, '--symbols') if s.demangled.startswith(FUNCTION)}
    report.require(len(functions) == 1, 'one function %s...) was looked for, %d found' % (FUNCTION, len(functions)))
    for symbol in functions.values():
        found = loops(path, objdump, symbol)
        report.require(found, 'no loop was found in ' + symbol.demangled)
        for first, end in found:
            # A longer loop, as an unrolled one, cannot but cross lines: it begins one.
            crosses = first // LINE != (end - 1) // LINE
            report.require(not crosses or (end - first > LINE and first % LINE == 0),
                           'the loop from %x to %x of %s crosses a line' % (first, end, symbol.demangled))
    report.finish()


if __name__ == '__main__':
    main(*sys.argv[1:3])
