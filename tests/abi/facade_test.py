"""Each function of half_vector that only forwards is a load of its entry and an indirect jump: no call, no frame.

usage: facade_test.py LIBRARY        (x86-64, compiled with optimisation)
"""
import re
import sys

import library

# These choose an entry, or have none.
NOT_FORWARDERS = {'sum', 'prod', 'mean', 'minUnaryOp', 'maxUnaryOp', 'minUnaryOpWithIndex', 'maxUnaryOpWithIndex',
                  'minBinOp', 'maxBinOp', 'ulp'}
# The load, and the rewriting of stack arguments in place.
LOADS = re.compile(r'(mov[a-z]*|endbr64)$')
SLOT = re.compile(r'# ([0-9a-f]+) <')


def main(path):
    report = library.Report('facade')
    names = {s.name: s.demangled for s in library.exported(path)}
    slots = {address: names.get(r.symbol) for address, r in library.relocations(path).items()}
    reached = {}
    for function, body in library.functions(path):
        match = re.match(r'half_vector::(\w+)\(', function)
        if not match or match.group(1) in NOT_FORWARDERS or function.endswith('@plt'):  # how others get there
            continue
        jump = next((i for i, (mnemonic, _) in enumerate(body) if mnemonic == 'jmp'), None)
        if jump is None or not body[jump][1].startswith('*'):
            report.require(False, '%s does not end with an indirect jump' % function)
            continue
        work = ['%s %s' % (m, o) for m, o in body[:jump] if not LOADS.match(m)]
        report.require(not work, '%s does more than load and jump: %s' % (function, '; '.join(work[:3])))
        loaded = [slots.get(int(s, 16)) for _, o in body[:jump + 1] for s in SLOT.findall(o)]
        entries = [library.ENTRY.match(name or '') for name in loaded]
        if len(entries) != 1 or not entries[0]:
            report.require(False, '%s loads %s, not one entry' % (function, loaded))
            continue
        entry = entries[0].group(1)
        report.require(entry not in reached, '%s and %s both jump through %s' % (function, reached.get(entry), entry))
        reached[entry] = function
    report.require(reached, 'no forwarding function was found')
    print('%d forwarding functions, each through an entry of its own' % len(reached))
    report.finish()


if __name__ == '__main__':
    main(sys.argv[1])
