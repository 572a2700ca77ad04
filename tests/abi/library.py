"""What the tests of the built library ask of it: symbols, sections, relocations and disassembly, by binutils.

A test is a script that collects complaints in a Report and ends with report.finish().
"""
import os
import re
import subprocess
import sys
from collections import namedtuple

HERE = os.path.dirname(os.path.abspath(__file__))
SKIPPED = 77  # ctest's exit code for a test that could not be tried

ENTRY = re.compile(r'half_ptr::(\w+)Ptr$')

Symbol = namedtuple('Symbol', 'name demangled kind binding section address size')
Section = namedtuple('Section', 'name kind address size flags')
Relocation = namedtuple('Relocation', 'kind symbol addend')


class Report:
    """Complaints, the first of each kind in full."""
    SHOWN = 20

    def __init__(self, subject):
        self.subject = subject
        self.checked = 0
        self.complaints = []

    def require(self, condition, complaint):
        self.checked += 1
        if not condition:
            self.complaints.append(complaint)

    def finish(self):
        for complaint in self.complaints[:self.SHOWN]:
            print('FAILED: ' + complaint)
        if len(self.complaints) > self.SHOWN:
            print('... and %d more' % (len(self.complaints) - self.SHOWN))
        if self.checked == 0:
            print('FAILED: nothing was checked')
        print('%s: %d checks, %d failed' % (self.subject, self.checked, len(self.complaints)))
        sys.exit(1 if self.complaints or self.checked == 0 else 0)


def skip(reason):
    print('SKIPPED: ' + reason)
    sys.exit(SKIPPED)


def run(*command, **options):
    """The output of a command that must succeed."""
    environment = dict(os.environ, LC_ALL='C')
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, env=environment,
                          **options)
    if done.returncode != 0:
        sys.exit('FAILED: %s\n%s%s' % (' '.join(command), done.stdout, done.stderr))
    return done.stdout


def lines_of(path):
    """The lines of a reviewed list without comments and blank lines."""
    with open(path) as text:
        stripped = [line.strip() for line in text]
    return [line for line in stripped if line and not line.startswith('#')]


def demangled(names):
    names = list(names)
    if not names:
        return []
    return run('c++filt', input='\n'.join(names) + '\n').split('\n')[:len(names)]


def symbols(path, table='--dyn-syms'):
    """The defined symbols of the dynamic table, or of another one that readelf names."""
    rows = []
    for line in run('readelf', '--wide', table, path).split('\n'):
        words = line.split()
        if len(words) >= 8 and words[0].endswith(':') and words[0][:-1].isdigit() and words[6] != 'UND':
            rows.append(words)
    names = [words[7].split('@')[0] for words in rows]
    return [Symbol(name, plain, words[3], words[4], int(words[6]) if words[6].isdigit() else words[6],
                   int(words[1], 16), int(words[2], 0))
            for words, name, plain in zip(rows, names, demangled(names))]


def exported(path):
    """What other modules can link to; version names and local symbols are not."""
    return [s for s in symbols(path) if s.binding in ('GLOBAL', 'WEAK', 'UNIQUE') and s.section != 'ABS']


def entries(path):
    """The table's variables: entry name -> symbol."""
    return {ENTRY.match(s.demangled).group(1): s for s in exported(path) if ENTRY.match(s.demangled)}


def sections(path):
    """Sections by their number."""
    found = {}
    row = re.compile(r'\s*\[\s*(\d+)\] (\S+)\s+(\S+)\s+([0-9a-f]+) [0-9a-f]+ ([0-9a-f]+) [0-9a-f]+\s+([A-Za-z]*)\s')
    for line in run('readelf', '--wide', '--sections', path).split('\n'):
        match = row.match(line)
        if match:
            number, name, kind, address, size, flags = match.groups()
            found[int(number)] = Section(name, kind, int(address, 16), int(size, 16), flags)
    return found


def relocations(path):
    """What the loader fills in: address -> relocation."""
    found = {}
    for line in run('readelf', '--wide', '--relocs', path).split('\n'):
        words = line.split()
        if len(words) < 4 or not words[2].startswith('R_'):
            continue
        if len(words) == 4:  # no symbol
            symbol, addend = None, int(words[3], 16)
        else:
            symbol, addend = words[4].split('@')[0], int(words[-1], 16) if len(words) > 6 else 0
        found[int(words[0], 16)] = Relocation(words[2], symbol, addend)
    return found


def functions(path, objdump='objdump'):
    """The disassembly, function by function: (demangled name, [(mnemonic, operands)])."""
    command = [objdump, '--disassemble', '--demangle', '--no-show-raw-insn', path]
    process = subprocess.Popen(command, stdout=subprocess.PIPE, text=True, env=dict(os.environ, LC_ALL='C'))
    prefixes = re.compile(r'(?:(?:rep[a-z]*|lock|bnd|notrack|data16|[c-g]s|ss|rex\S*|\{\S+\}) +)*')
    name, body = None, []
    for line in process.stdout:
        if line.endswith('>:\n'):
            if name:
                yield name, body
            name, body = line[line.index('<') + 1:-3], []
        elif ':\t' in line:
            text = line.split(':\t', 1)[1].strip()
            words = text[prefixes.match(text).end():].split(None, 1)
            if words:
                body.append((words[0], words[1] if len(words) > 1 else ''))
    if name:
        yield name, body
    if process.wait() != 0 or name is None:
        sys.exit('FAILED: objdump cannot read ' + path)
