"""A build tree that is configured and not built: with which flags each source would be compiled."""
import json
import os
import re
import subprocess


class Tree:
    def __init__(self, source, folder, compiler):
        self.source, self.folder, self.compiler = source, folder, compiler

    def configure(self, *options, **environment):
        """(status, output); options add to those of earlier calls, as CMake's cache has them."""
        command = ['cmake', '-S', self.source, '-B', self.folder, '-G', 'Ninja', '-DCMAKE_EXPORT_COMPILE_COMMANDS=ON',
                   '-DCMAKE_CXX_COMPILER=' + self.compiler, *options]
        # Flags reach the tree from here only.
        inherited = {name: value for name, value in os.environ.items() if name not in ('CXXFLAGS', 'LDFLAGS')}
        done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                              env=dict(inherited, LC_ALL='C', **environment))
        # CMake breaks the lines of its messages where it likes.
        return done.returncode, re.sub(r'\s+', ' ', done.stdout)

    def commands(self):
        """source file -> the words of its command"""
        with open(os.path.join(self.folder, 'compile_commands.json')) as text:
            return {os.path.realpath(entry['file']): entry['command'].split() for entry in json.load(text)}

    def compile(self, file, result):
        """Compiles a source as the tree would, into a file elsewhere."""
        command = self.commands()[os.path.realpath(file)]
        command[command.index('-o') + 1] = result
        return subprocess.run(command, cwd=self.folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True)


def optimisation(command):
    """The level that counts: the last one."""
    return ([word for word in command if re.fullmatch(r'-O\w*', word)] or [None])[-1]
