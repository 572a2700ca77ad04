"""The proof: our rows are one, README tells their hash, and rows that differ are reported as such.

usage: proof_test.py SOURCE_DIRECTORY PROGRAM [EMULATOR...]        PROGRAM is the built zthalf_proof
"""
import os
import subprocess
import sys
import tempfile

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, '..', 'abi'))
import library  # noqa: E402

ROW = 'zthalf\tx86-64 base\t%d\t7064\t7064\t%s\tea7247cb00000000\tabdae19c00000000\t07c06ef200000000'


def folder_with(work, name, command):
    """A folder whose zthalf_proof runs the given shell command, and nothing else."""
    folder = os.path.join(work, name)
    os.mkdir(folder)
    program = os.path.join(folder, 'zthalf_proof')
    with open(program, 'w') as file:
        file.write('#!/bin/sh\n[ "$1" = --inputs ] && exit 0\n%s\n' % command)
    os.chmod(program, 0o755)
    return folder


def proof(source, folder, *options):
    # Without the peers: whether they agree with themselves is theirs.
    command = [sys.executable, '-B', os.path.join(source, 'tools', 'proof', 'proof.py'), folder, '--without-numpy']
    return subprocess.run(command + list(options), stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)


def rows(*sums):
    return 'printf "%s\\n" ' + ' '.join("'%s'" % (ROW % (i + 1, pattern)) for i, pattern in enumerate(sums))


def main(source, program, emulator):
    report = library.Report('proof')
    with tempfile.TemporaryDirectory() as work:
        ours = proof(source, folder_with(work, 'ours', 'exec %s' % ' '.join(emulator + [program])), '--markdown')
        report.require(ours.returncode == 0, 'our rows differ, or there are none:\n' + ours.stdout + ours.stderr)
        line = next((line for line in ours.stdout.splitlines() if line.startswith('| zthalf')), '')
        digest = line.split('`')[1] if '`' in line else ''
        with open(os.path.join(source, 'README.md')) as readme:
            report.require(digest and '`%s`' % digest in readme.read(), 'README does not tell the hash %r' % digest)

        for name, sums, status in (('one', ('7064', '7064'), 0), ('two', ('7064', '7065'), 1), ('none', (), 2)):
            found = proof(source, folder_with(work, name, rows(*sums) if sums else 'exit 0'))
            report.require(found.returncode == status,
                           '%s: status %d instead of %d\n%s' % (name, found.returncode, status, found.stdout + found.stderr))
        differing = proof(source, os.path.join(work, 'one'), '--emulated', os.path.join(work, 'two', 'zthalf_proof'))
        report.require(differing.returncode == 1, 'rows of another processor that differ are not seen')
        for name, command in (('fails', 'exit 3'), ('no-rows', 'echo zthalf 1 2 3')):
            found = proof(source, folder_with(work, name, command))
            report.require(found.returncode == 2 and found.stderr.startswith('proof: '), '%s: %s' % (name, found.stderr))
    report.finish()


if __name__ == '__main__':
    main(sys.argv[1], sys.argv[2], sys.argv[3:])
