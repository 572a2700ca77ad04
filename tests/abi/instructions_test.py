"""The whole library, disassembled: no 16-bit floating-point instruction, and no fused multiply-add outside the functions
that state one. Moving 16 bits is no arithmetic and is allowed.

usage: instructions_test.py LIBRARY PROCESSOR OBJDUMP
"""
import os
import re
import sys

import library

# Patterns for whole mnemonics; arm64's floating-point instructions tell the element width by their operands, which are
# matched together with the mnemonic.
HALF_FLOAT = {
    'x86_64': re.compile(
        r'v?cvt\w*ph(2\w+|x)?[xyz]?|vcvt\w*2(ph|sh)x?[xyzlq]?|vcvtt?sh2\w+|v\w+(ph|sh)|\w*bf16\w*|tdpfp16ps|tcmm\w+'),
    'aarch64': re.compile(
        r'(f\w+|[su]cvtf) .*\b(h\d+|v\d+\.(4h|8h)).*|bf\w*(dot|mmla|mlal|cvt)\w* .*'),
}
MOVES = re.compile(r'vmovw|vmovsh|vpbroadcastw|fmov .*')
FUSED = {
    'x86_64': re.compile(r'vf(n?m(add|sub)|maddsub|msubadd)\w*'),
    'aarch64': re.compile(r'(fn?m(add|sub)|fml[as]\w*|fcmla) .*'),
}


def main(path, processor, objdump):
    report = library.Report('instructions')
    allowed = set(library.lines_of(os.path.join(library.HERE, 'fused_functions.txt')))
    seen, fused_in = 0, set()
    for function, body in library.functions(path, objdump):
        seen += len(body)
        for mnemonic, operands in body:
            text = mnemonic if processor == 'x86_64' else '%s %s' % (mnemonic, operands.split('//')[0].strip())
            if HALF_FLOAT[processor].fullmatch(text) and not MOVES.fullmatch(text):
                report.require(False, '16-bit floating-point instruction %s in %s' % (text, function))
            elif FUSED[processor].fullmatch(text):
                fused_in.add(function)
                report.require(function in allowed, 'fused instruction %s in %s' % (text, function))
    report.require(seen > 1000, 'only %d instructions were found' % seen)
    if processor == 'x86_64':
        for function in sorted(allowed - fused_in):
            print('note: %s may have fused instructions and has none' % function)
    print('%d instructions looked at' % seen)
    report.finish()


if __name__ == '__main__':
    main(*sys.argv[1:4])
