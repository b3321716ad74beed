"""The copy of the tree in which faults are made: it is built here, and test programs run against it.

The sources are not touched. The copy is below build/mutation and is kept for the next run.
"""
import concurrent.futures
import contextlib
import dataclasses
import fcntl
import filecmp
import hashlib
import json
import os
import pathlib
import re
import shlex
import shutil
import signal
import subprocess
import tempfile
import threading
import time

ROOT = pathlib.Path(__file__).resolve().parents[2]
WORK = ROOT / "build" / "mutation"
COPY = WORK / "tree"
BUILD = COPY / "build" / "dev"
TABLES = pathlib.Path(__file__).resolve().parent
# A fault costs the compilation of its file, not of a batch. A changed library does not relink programs.
CONFIGURE = ["cmake", "--preset", "dev", "-DCMAKE_UNITY_BUILD=OFF", "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON"]
MEMCHECK = ["valgrind", "--quiet", "--error-exitcode=9"]
ADDRESS_SPACE = 8 << 30


class Problem(Exception):
    """Something is wrong with a table, an option or the tree, rather than with a test."""


@dataclasses.dataclass
class Program:
    """A run of a test program, and the time it takes without a fault."""
    name: str
    target: str
    arguments: list
    folder: str
    label: str
    environment: dict
    seconds: float = 1.0
    cpu: float = 1.0


@dataclasses.dataclass
class Outcome:
    status: int
    timed_out: bool
    seconds: float
    cpu: float
    output: str

    @property
    def passed(self):
        return self.status == 0 and not self.timed_out


@contextlib.contextmanager
def alone():
    """Two runs would interfere with each other's builds."""
    WORK.mkdir(parents=True, exist_ok=True)
    with open(WORK / "lock", "w", encoding="ascii") as lock:
        try:
            fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            raise Problem(f"another run is using {WORK.relative_to(ROOT)}") from None
        yield


def copy_file(name):
    source, target = ROOT / name, COPY / name
    if target.exists() and filecmp.cmp(source, target, shallow=False):
        return
    target.parent.mkdir(parents=True, exist_ok=True)
    shutil.copy(source, target)
    os.utime(target)


def copy_tree():
    listed = subprocess.run(["git", "ls-files", "-z", "--cached", "--others", "--exclude-standard"],
                            cwd=ROOT, check=True, capture_output=True, text=True).stdout
    names = {name for name in listed.split("\0") if (ROOT / name).is_file()}
    for name in names:
        copy_file(name)
    for path in COPY.rglob("*"):
        name = path.relative_to(COPY)
        if path.is_file() and name.parts[0] != "build" and str(name) not in names:
            path.unlink()


def write(path, text):
    """Keeps the time stamp of a file whose text does not change, so that it causes no build."""
    if not path.exists() or path.read_text(encoding="utf-8") != text:
        path.write_text(text, encoding="utf-8")


def state_of_sources():
    """A hash that changes whenever any source does."""
    state = hashlib.sha256()
    for path in sorted((COPY / "src").rglob("*")):
        if path.is_file():
            state.update(str(path).encode() + b"\0" + path.read_bytes() + b"\0")
    return state.hexdigest()


def environment():
    """Nobody reads the stack trace of a program crashed by a fault, and a debugger takes long to print it."""
    return dict(os.environ, CCACHE_BASEDIR=str(COPY), CCACHE_NOHASHDIR="1", LC_ALL="C.UTF-8",
                QTEST_DISABLE_STACK_DUMP="1")


def run(command, **options):
    return subprocess.run(command, cwd=COPY, env=environment(), stdout=subprocess.PIPE, stderr=subprocess.STDOUT,
                          text=True, errors="replace", check=False, **options)


def prepare():
    copy_tree()
    result = run(CONFIGURE)
    if result.returncode != 0:
        raise Problem("cannot be configured:\n" + result.stdout[-2000:])


def commands_of_tests():
    """The program that each test runs and its arguments; ctest does not list them before the program is built."""
    line = re.compile(r'^add_test\(\[=\[(.+)\]=\] "([^"]+)"(.*)\)$', re.MULTILINE)
    texts = (path.read_text(encoding="utf-8") for path in (BUILD / "tests").rglob("CTestTestfile.cmake"))
    return {name: (pathlib.Path(program).name, shlex.split(arguments))
            for text in texts for name, program, arguments in line.findall(text)}


def programs():
    """All runs of test programs by name."""
    commands = commands_of_tests()
    result = run(["ctest", "--test-dir", str(BUILD), "--show-only=json-v1"])
    if result.returncode != 0:
        raise Problem("the tests cannot be listed:\n" + result.stdout[-2000:])
    found = {}
    for test in json.loads(result.stdout)["tests"]:
        name = test["name"]
        properties = {entry["name"]: entry["value"] for entry in test["properties"]}
        folder = pathlib.Path(properties["WORKING_DIRECTORY"]).relative_to(BUILD / "tests")
        variables = dict(line.split("=", 1) for line in properties.get("ENVIRONMENT", []))
        label = properties.get("LABELS", [""])[0]
        found[name] = Program(name, *commands[name], str(folder), label, variables)
    return found


def targets_of(programs):
    return sorted({program.target for program in programs})


def compile_commands():
    """How each source of a library is compiled, without output and without options unknown to clang."""
    commands = {}
    for entry in json.loads((BUILD / "compile_commands.json").read_text(encoding="utf-8")):
        words = shlex.split(entry["command"])
        output = words[words.index("-o") + 1]
        name = pathlib.Path(entry["file"])
        if not output.startswith("src/") or not name.is_relative_to(COPY / "src"):
            continue
        if words[0].endswith("ccache"):
            del words[0]
        words = words[:words.index("-o")] + words[words.index("-o") + 2:words.index("-c")]
        commands[str(name.relative_to(COPY))] = [word for word in words if word != "-fno-gnu-unique"]
    return commands


def build(targets, jobs):
    """The output of ninja if the targets cannot be built, otherwise empty."""
    result = run(["ninja", "-C", str(BUILD), "-k0", f"-j{jobs}", *targets])
    return result.stdout if result.returncode != 0 else ""


def limited(command, cpu, with_address_space):
    limits = [f"--cpu={int(cpu) + 1}", "--core=0"]
    if with_address_space:
        limits.append(f"--as={ADDRESS_SPACE}")
    return ["prlimit", *limits, "--", *command]


def read_until_failure(process):
    """Reads no further than the first failure."""
    lines = []
    for line in process.stdout:
        lines.append(line)
        if line.startswith("FAIL!"):
            break
    return "".join(lines), bool(lines) and lines[-1].startswith("FAIL!")


def end(process):
    with contextlib.suppress(ProcessLookupError):
        os.killpg(process.pid, signal.SIGKILL)


def execute(program, variables=None, checker="", allowance=1):
    """Runs a program until it ends or fails for the first time.

    Processor time is limited to a multiple of what the program takes without a fault. So is wall-clock time, but that
    says little on a machine with other work: the caller repeats whatever timed out.
    """
    wall = (20 + 10 * program.seconds) * allowance * (30 if checker else 1)
    cpu = (10 + 10 * program.cpu) * allowance * (30 if checker else 1)
    command = (MEMCHECK if checker == "memory" else []) + [str(BUILD / "tests" / program.target), *program.arguments]
    with tempfile.TemporaryDirectory(dir=WORK, prefix="home-") as home:
        settings = dict(environment(), **program.environment, HOME=home, TMPDIR=home, **(variables or {}))
        started = time.monotonic()
        process = subprocess.Popen(limited(command, cpu, not checker), cwd=BUILD / "tests" / program.folder,
                                   env=settings, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                   stderr=subprocess.STDOUT, text=True, errors="replace", start_new_session=True)
        expired = threading.Event()
        timer = threading.Timer(wall, lambda: (expired.set(), end(process)))
        timer.start()
        try:
            output, failed = read_until_failure(process)
            if failed:
                end(process)
            _, status, usage = os.wait4(process.pid, 0)
        finally:
            timer.cancel()
            end(process)
            process.stdout.close()
    process.returncode = os.waitstatus_to_exitcode(status)
    return Outcome(1 if failed else process.returncode, expired.is_set(), time.monotonic() - started,
                   usage.ru_utime + usage.ru_stime, output)


def measure(chosen, jobs, variables_of=lambda program: {}):
    """Runs each program without a fault, records its times and returns those that fail regardless."""
    def one(program):
        program.seconds, program.cpu = 60.0, 60.0
        outcome = execute(program, variables_of(program))
        program.seconds, program.cpu = outcome.seconds, outcome.cpu
        return outcome.passed
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        passed = list(pool.map(one, chosen))
    return [program for program, good in zip(chosen, passed) if not good and not one(program)]
