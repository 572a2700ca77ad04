"""The table's variables are what a program may count on, and the library is fit to be loaded into other people's
processes: nothing runs at load, nothing but the table stays writable that need not.

usage: symbols_test.py LIBRARY SONAME OBJECT...
"""
import re
import sys

import library

# Through a symbol that the loader looks up, or the address itself.
POINTS_SOMEWHERE = re.compile(r'R_(X86_64_64|X86_64_RELATIVE|AARCH64_ABS64|AARCH64_RELATIVE)$')
LOOKED_UP = re.compile(r'R_(X86_64|AARCH64)_GLOB_DAT$')

# What the compiler's own runtime does at load: register exception frames, and look at the processor once.
RUNTIME_INITIALISERS = {'frame_dummy', '__cpu_indicator_init', 'init_have_lse_atomics', 'init_cpu_features'}
DEPENDENCIES = {'libtbb.so.12', 'libzthalf-host.so.0', 'libstdc++.so.6', 'libm.so.6', 'libgcc_s.so.1', 'libc.so.6', 'ld-linux-x86-64.so.2',
                'ld-linux-aarch64.so.1'}


def check_table(path, report):
    sections = library.sections(path)
    fixed_up = library.relocations(path)
    segments = library.run('readelf', '--wide', '--segments', path)
    relro = re.search(r'GNU_RELRO\s+\S+ 0x([0-9a-f]+) \S+ \S+ 0x([0-9a-f]+)', segments)
    read_only = range(int(relro.group(1), 16), int(relro.group(1), 16) + int(relro.group(2), 16)) if relro else range(0)
    looked_up = {r.symbol for r in fixed_up.values() if LOOKED_UP.match(r.kind)}

    table = library.entries(path)
    report.require(table, 'the library exports no entry')
    for name, symbol in table.items():
        where = sections.get(symbol.section)
        at = fixed_up.get(symbol.address)
        report.require(symbol.kind == 'OBJECT' and symbol.size == 8, '%s is no object of 8 bytes' % symbol.demangled)
        report.require(where and where.kind == 'PROGBITS' and 'W' in where.flags and 'X' not in where.flags,
                       '%s is in %s, which is not writable initialised data' % (name, where and where.name))
        report.require(symbol.address not in read_only, '%s becomes read-only after loading' % symbol.demangled)
        report.require(at and POINTS_SOMEWHERE.match(at.kind) and (at.symbol or at.addend),
                       '%s is null when the library is loaded: %s' % (symbol.demangled, at))
        report.require(symbol.name in looked_up,
                       '%s cannot be replaced by a program: the library reaches it without lookup' % symbol.demangled)


def check_initialisers(path, objects, report):
    report.require(objects, 'no object files were given')
    for file in objects:
        for section in library.sections(file).values():
            report.require(not re.match(r'\.(init_array|ctors|preinit_array|fini_array|dtors)', section.name),
                           '%s has code that runs at load or unload (section %s)' % (file, section.name))
    arrays = [s for s in library.sections(path).values() if s.name == '.init_array']
    names = {s.address: s.name for s in library.symbols(path, '--symbols') if s.kind == 'FUNC'}
    fixed_up = library.relocations(path)
    for array in arrays:
        for address in range(array.address, array.address + array.size, 8):
            name = names.get(fixed_up[address].addend) or fixed_up[address].symbol
            report.require(name in RUNTIME_INITIALISERS, '%s runs when the library is loaded' % name)


def check_module(path, soname, report):
    dynamic = library.run('readelf', '--wide', '--dynamic', path)
    segments = library.run('readelf', '--wide', '--segments', path)
    tags = set(re.findall(r'^ 0x[0-9a-f]+ \((\w+)\)', dynamic, re.M))

    def values(tag):
        return re.findall(r'\(%s\).*\[(.*)\]' % tag, dynamic)

    report.require(values('SONAME') == [soname], 'SONAME is %s, not %s' % (values('SONAME'), soname))
    stack = re.search(r'GNU_STACK\s+(?:0x[0-9a-f]+\s+){5}([RWE]+)', segments)
    report.require(stack and 'E' not in stack.group(1), 'the library asks for an executable stack')
    report.require('GNU_RELRO' in segments, 'no part of the library becomes read-only after loading')
    report.require(re.search(r'\(FLAGS_1\).*\bNOW\b|\(BIND_NOW\)|\(FLAGS\).*BIND_NOW', dynamic),
                   'the library is bound lazily, so its links stay writable')
    report.require('TEXTREL' not in dynamic, 'the loader must write to the code')
    report.require('SYMBOLIC' not in dynamic, 'linked with -Bsymbolic: no entry can be replaced')
    # Its host lies in its own folder, wherever that is; it is looked for nowhere else.
    report.require('RPATH' not in tags and values('RUNPATH') == ['$ORIGIN'],
                   'the library is to look beside itself, not in %s' % values('RUNPATH'))
    needed = set(values('NEEDED'))
    report.require(needed <= DEPENDENCIES, 'new dependencies: %s' % ', '.join(sorted(needed - DEPENDENCIES)))
    for name in ('libtbb.so.12', 'libzthalf-host.so.0'):
        report.require(name in needed, '%s is not among the dependencies' % name)
    report.require(re.search(r' LOAD .* RWE? ', segments) and not re.search(r' LOAD .* RWE ', segments),
                   'a segment is writable and executable')


def main(path, soname, objects):
    report = library.Report('symbols')
    check_table(path, report)
    check_initialisers(path, objects, report)
    check_module(path, soname, report)
    report.finish()


if __name__ == '__main__':
    main(sys.argv[1], sys.argv[2], sys.argv[3:])
