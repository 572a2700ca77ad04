"""The hot passes really are vectorised at every instruction level: one lost compile flag turns them scalar without a word.

A pass that is compiled for the wide levels must do packed work on their registers, and on 128 bits at the base level.
wide_passes.txt names the passes that must be there, the levels at which some stay scalar, and instructions that some must
have where packed moves alone would hide scalar arithmetic.

usage: vectorised_test.py LIBRARY        (x86-64, compiled with optimisation)
"""
import os
import re
import sys

import library

REGISTER = {'base': '%xmm', 'v3': '%ymm', 'v4': '%zmm'}
PASS = re.compile(r'(?:void )?zthalf::leveled<(.*)>::(base|v3|v4)\(')
PACKED = re.compile(r'v?p(?!refetch|op|ush|ause)\w+|v?(add|sub|mul|div|min|max|sqrt|cmp\w*|cvt\w*)p[sd]')
LOGICAL = re.compile(r'v?(and|andn|or|xor)p[sd]')  # scalar code has them too, on 128 bits
MOVE = re.compile(r'v?mov\w*')


def shortened(pass_name):
    """The first template argument, without the namespaces and the wrapper that passes share, with closed angle brackets."""
    depth, end = 0, len(pass_name)
    for i, letter in enumerate(pass_name):
        depth += (letter == '<') - (letter == '>')
        if depth == 0 and letter == ',':
            end = i
            break
    name = pass_name[:end].replace('(anonymous namespace)::', '').replace('> >', '>>')
    name = re.sub(r'\b(half|half_utils|zthalf|templates|emulated|scalar|utils|realOps)::', '', name)
    return re.sub(r'^passOnPointers<(.*)>$', r'\1', name)


def works_packed(body, level):
    """Whether the function computes on more than one element in a register of the level."""
    for mnemonic, operands in body:
        if REGISTER[level] not in operands or MOVE.fullmatch(mnemonic):
            continue
        clears = len(set(re.findall(r'%[xyz]mm\d+', operands))) == 1 and '(' not in operands and 'xor' in mnemonic
        if not clears and (PACKED.fullmatch(mnemonic) or level != 'base' and LOGICAL.fullmatch(mnemonic)):
            return True
    # Logical work of 128 bits counts where whole registers are loaded from memory, which scalar code never does.
    return level == 'base' and (any(m in ('movups', 'movdqu', 'movupd') for m, _ in body) and
                                any(LOGICAL.fullmatch(m) for m, _ in body))


def expectations():
    """(what must be there, {pass: levels at which it stays scalar}, [(instruction, level, pass)])"""
    required, scalar, instructions = [], {}, []
    for line in library.lines_of(os.path.join(library.HERE, 'wide_passes.txt')):
        words = line.split(None, 1)
        if words[0] == 'wide':
            required.append(words[1])
        elif words[0] == 'with':
            instructions.append(tuple(words[1].split(None, 2)))
        else:
            scalar.setdefault(words[1], set()).update(words[0].split(','))
    return required, scalar, instructions


def main(path):
    report = library.Report('vectorised')
    required, scalar, instructions = expectations()
    passes, mnemonics = {}, {}
    for function, body in library.functions(path):
        match = PASS.match(function)
        if match:
            name, level = shortened(match.group(1)), match.group(2)
            passes.setdefault(name, {})[level] = works_packed(body, level)
            mnemonics[level, name] = {mnemonic for mnemonic, _ in body}
    wide = {name: levels for name, levels in passes.items() if 'v3' in levels or 'v4' in levels}

    for wanted in required:
        report.require(any(wanted in name for name in wide), 'no pass over %s is compiled for the wide levels' % wanted)
    for name in scalar:
        report.require(name in wide, 'wide_passes.txt speaks of a pass that is not there: %s' % name)
    for name, levels in sorted(wide.items()):
        for level in REGISTER:
            excused = level in scalar.get(name, ())
            report.require(levels.get(level) or excused, 'scalar at level %s: %s' % (level, name))
            if excused and levels.get(level):
                print('note: listed as scalar at level %s, and is not: %s' % (level, name))
    for instruction, level, name in instructions:
        report.require(instruction in mnemonics.get((level, name), ()),
                       'no %s at level %s in %s' % (instruction, level, name))
    print('%d passes with wide levels' % len(wide))
    report.finish()


if __name__ == '__main__':
    main(sys.argv[1])
