"""The Debian packages: the source package is complete, builds, is as fast as a release, passes lintian, installs on a
clean Debian, and the README's example works with what was installed.

usage: debian_test.py SOURCE_DIRECTORY WORK_DIRECTORY CXX_COMPILER

The clean Debian is made by debootstrap, which needs root and the network. Where that cannot be had, the packages are
installed below an empty folder and the example is built with this machine's compiler.
"""
import glob
import os
import shutil
import subprocess
import sys

HERE = os.path.dirname(os.path.abspath(__file__))
sys.path.insert(0, os.path.join(HERE, '..', 'abi'))
import library  # noqa: E402

PACKAGES = ('libzthalf-host0', 'libzthalf0', 'libzthalf-dev')
TOOLS = ('dpkg-buildpackage', 'dh', 'lintian', 'fakeroot')
# The folders that Debian's own tools leave in a working tree, and those that are not sources.
NOT_SOURCES = shutil.ignore_patterns('.git', 'build', 'obj-*', '__pycache__')


def call(*command, **options):
    """(status, output)"""
    done = subprocess.run(command, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True,
                          stdin=subprocess.DEVNULL, **options)
    return done.returncode, done.stdout


def must(*command, **options):
    status, output = call(*command, **options)
    if status != 0:
        sys.exit('FAILED: %s\n%s' % (' '.join(command), output[-6000:]))
    return output


def unpacked_source(source, work):
    """Makes the source package and unpacks it: what was forgotten in it is not there to build."""
    copy = os.path.join(work, 'zthalf')
    shutil.copytree(source, copy, symlinks=True, ignore=NOT_SOURCES)
    must('dpkg-source', '--build', 'zthalf', cwd=work)
    shutil.rmtree(copy)
    must('dpkg-source', '--extract', glob.glob(os.path.join(work, '*.dsc'))[0], copy, cwd=work)
    return copy


def build(copy):
    # Flags are the distribution's, not those of who runs the tests.
    own = {name: value for name, value in os.environ.items() if name not in ('CXXFLAGS', 'CPPFLAGS', 'LDFLAGS', 'CXX')}
    must('dpkg-buildpackage', '-us', '-uc', '-b', '-j%d' % len(os.sched_getaffinity(0)), cwd=copy,
         env=dict(own, LC_ALL='C'))


def check_packages(report, work, copy):
    built = {os.path.basename(path).split('_')[0]: path for path in glob.glob(os.path.join(work, '*.deb'))}
    for package in PACKAGES:
        report.require(package in built, 'there is no package ' + package)
    status, output = call('lintian', '--fail-on', 'error', glob.glob(os.path.join(work, '*.changes'))[0])
    print(output)
    report.require(status == 0, 'lintian finds errors')
    # Compiled with the distribution's flags, which ask for no width; not yet stripped.
    wide = glob.glob(os.path.join(copy, 'obj-*', 'libzthalf.so.*.*'))
    report.require(len(wide) == 1, 'built libraries: %s' % wide)
    if os.uname().machine == 'x86_64':
        status, output = call(sys.executable, '-B', os.path.join(HERE, '..', 'abi', 'vectorised_test.py'), *wide)
        print(output)
        report.require(status == 0, 'the packaged library is not as wide as a release')
    return built


def mirror():
    """Where this machine has its Debian packages from, and which release it is."""
    status, output = call('apt-get', 'indextargets', '--format', '$(REPO_URI) $(CODENAME) $(COMPONENT)',
                          'Created-By: Packages')
    rows = [line.split() for line in output.splitlines() if line.endswith(' main')]
    rows = [row for row in rows if len(row) == 3 and '-' not in row[1]] if status == 0 else []
    return rows[0][:2] if rows else ('http://deb.debian.org/debian', 'bookworm')


def clean_debian(root):
    """A Debian with a compiler and nothing of ours; None if it could not be made."""
    if os.geteuid() != 0 or not shutil.which('debootstrap'):
        print('note: no clean Debian without root and debootstrap')
        return None
    address, release = mirror()
    status, output = call('debootstrap', '--variant=minbase', release, root, address)
    if status == 0:
        status, output = call('chroot', root, 'apt-get', 'update')
    if status != 0:
        print('note: no clean Debian: ' + output[-500:])
        return None
    return root


def check_on_clean_debian(report, root, copy, built):
    def inside(*command):
        # A new machine knows nothing of this one's settings.
        return call('chroot', root, 'env', '-i', 'PATH=/usr/sbin:/usr/bin:/sbin:/bin', 'HOME=/root', 'LC_ALL=C',
                    'DEBIAN_FRONTEND=noninteractive', *command)

    os.makedirs(os.path.join(root, 'zthalf'))
    for package in built.values():
        shutil.copy(package, os.path.join(root, 'zthalf'))
    shutil.copy(os.path.join(copy, 'README.md'), os.path.join(root, 'zthalf'))
    shutil.copytree(os.path.join(copy, 'debian', 'tests'), os.path.join(root, 'zthalf', 'debian', 'tests'))
    packages = ['/zthalf/' + os.path.basename(built[name]) for name in PACKAGES]
    with open(os.path.join(copy, 'debian', 'tests', 'control')) as control:
        depends = [line for line in control if line.startswith('Depends:')][0].split(':')[1].replace(',', ' ').split()
    others = [name for name in depends if name not in built]

    status, output = inside('apt-get', 'install', '--yes', '--no-install-recommends', *packages, *others)
    report.require(status == 0, 'the packages do not install:\n' + output[-3000:])
    status, output = inside('sh', '/zthalf/debian/tests/readme-example')
    print(output)
    report.require(status == 0, 'the README\'s example with the installed packages:\n' + output)
    status, output = inside('apt-get', 'purge', '--yes', *PACKAGES)
    report.require(status == 0, 'the packages cannot be removed:\n' + output)
    left = [path for top in ('etc', 'usr', 'var/lib/dpkg/info') for path in
            glob.glob(os.path.join(root, top, '**', '*zthalf*'), recursive=True)]
    report.require(not left, 'left behind: %s' % left)


def check_below_a_folder(report, root, copy, built):
    os.makedirs(os.path.join(root, 'var', 'lib', 'dpkg', 'info'))
    for name in ('status', 'available'):
        open(os.path.join(root, 'var', 'lib', 'dpkg', name), 'w').close()
    status, output = call('fakeroot', 'dpkg', '--root=' + root, '--force-depends', '--force-not-root',
                          '--force-script-chrootless', '--log=' + os.path.join(root, 'dpkg.log'), '--install',
                          *(built[name] for name in PACKAGES))
    report.require(status == 0, 'the packages do not install:\n' + output)
    folders = glob.glob(os.path.join(root, 'usr', 'lib', '*', 'pkgconfig'))
    report.require(len(folders) == 1, 'folders of pkg-config: %s' % folders)
    status, output = call('sh', os.path.join(copy, 'debian', 'tests', 'readme-example'), env=dict(
        os.environ, PKG_CONFIG_PATH=folders[0], CMAKE_PREFIX_PATH=os.path.join(root, 'usr'), CMAKE_GENERATOR='Ninja',
        LD_LIBRARY_PATH=os.path.dirname(folders[0])))
    print(output)
    report.require(status == 0, 'the README\'s example with the installed packages:\n' + output)


def main(source, work):
    absent = [tool for tool in TOOLS if not shutil.which(tool)]
    if absent:
        library.skip('not here: ' + ', '.join(absent))
    report = library.Report('debian packages')
    must('rm', '-rf', '--one-file-system', work)
    os.makedirs(work)
    copy = unpacked_source(source, work)
    build(copy)
    built = check_packages(report, work, copy)
    if not report.complaints:
        root = os.path.join(work, 'root')
        if clean_debian(root):
            check_on_clean_debian(report, root, copy, built)
        else:
            must('rm', '-rf', '--one-file-system', root)
            check_below_a_folder(report, root, copy, built)
        # Never into anything that is mounted there.
        must('rm', '-rf', '--one-file-system', root)
    report.finish()


if __name__ == '__main__':
    main(*sys.argv[1:3])
