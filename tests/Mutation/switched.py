"""Compiles faults in, all at once: each is a copy of its function, selected through the environment."""
import concurrent.futures
import dataclasses
import functools
import hashlib
import json
import pathlib
import re
import shlex
import struct
import subprocess
import tempfile

import workshop
from places import Body, Place, Source
from workshop import COPY, WORK, Problem

CHOICE = "VESK_FAULT"
RECORD = "VESK_FAULT_RECORD"
FLOWS_OFF = 97
SWITCH = COPY / "tests" / "Mutation" / "FaultSwitch.h"
# Copies of a function take time to compile; faults of one source beyond this number wait for the next build.
FAULTS_AT_ONCE = 80
ERROR = re.compile(r"^([^:\n]+):\d+(?::\d+)?: (?:fatal )?error:")
MARK = re.compile(r"\bfault-(\d+):\d+")


@dataclasses.dataclass
class Fault:
    source: Source
    place: Place
    number: int = 0

    @property
    def body(self) -> Body:
        return self.source.bodies[self.place.body]

    @property
    def line(self):
        return self.source.line_of(self.place.start)

    def text(self, start, end):
        """Part of the source with the fault in it."""
        whole, place = self.source.text, self.place
        return whole[start:place.start] + place.put + whole[place.end:end]


def batches(faults):
    """As few builds as the limit per source allows."""
    taken, parts = {}, []
    for fault in faults:
        count = taken.get(fault.source.name, 0)
        taken[fault.source.name] = count + 1
        while len(parts) <= count // FAULTS_AT_ONCE:
            parts.append([])
        parts[count // FAULTS_AT_ONCE].append(fault)
    return parts


INLINED_QUIET = "".join(f'#pragma GCC diagnostic ignored "-W{kind}"\n' for kind in ("maybe-uninitialized", "uninitialized"))


def install(name, text):
    """Replaces a source by a text. Its warnings are unwanted: GCC gives none for system headers.

    GCC still gives those located in another header into which broken code was inlined.
    """
    path = COPY / name
    quiet = f'#pragma GCC system_header\n#line 1 "{path}"\n{text}'
    if path.suffix == ".h":
        workshop.write(path, quiet)
        return
    workshop.write(path.with_name(path.name + ".faults"), quiet)
    workshop.write(path, f'{INLINED_QUIET}#include "{path.name}.faults"\n')


class Switchboard:
    """The faults that are compiled in, and the functions that record when they are entered."""

    def __init__(self, sources, commands, jobs):
        self.sources = sources
        self.commands = commands
        self.jobs = jobs
        self.functions = {}
        self.faults = []

    def compile_in(self, faults, targets, also=()):
        """Returns the faults that do not compile. The sources in `also` record their functions, too."""
        wanted, self.faults = faults, list(faults)
        for number, fault in enumerate(faults, 1):
            fault.number = number
        names = sorted({fault.source.name for fault in faults} | set(also))
        self.drop_what_does_not_compile(names, [self.check_command(name) for name in names])
        while True:
            self.write(names)
            output = workshop.build(targets, self.jobs)
            if not output:
                return [fault for fault in wanted if fault not in self.faults]
            commands = failed_commands(output)
            if not commands or not self.drop_what_does_not_compile(names, commands):
                raise Problem("does not build:\n" + output[-3000:])

    def write(self, names, marked=False):
        for name in names:
            install(name, self.generated(self.sources[name], marked))

    def generated(self, source, marked):
        text, here, parts = source.text, 0, [f'#include "{SWITCH}"\n#line 1 "{COPY / source.name}"\n']
        for number, body in enumerate(source.bodies):
            if not body.switchable or body.start < here:
                continue
            faults = [fault for fault in self.faults if fault.source is source and fault.place.body == number]
            choice = self.switch(source, number, faults, marked)
            parts += [text[here:body.start], choice, text[body.start:body.end], "}"]
            here = body.end
        return "".join(parts) + text[here:]

    def switch(self, source, number, faults, marked):
        body, path = source.bodies[number], COPY / source.name
        function = self.functions.setdefault((source.name, number), len(self.functions))
        line = source.line_of(body.start)
        end = "::vesk_fault::FlowsOff();" if body.returns else "return;"
        cases = [f'case {fault.number}:\n#line {line} "{f"fault-{fault.number}" if marked else path}"\n'
                 f"{fault.text(body.start, body.end)}\n{end}\n" for fault in faults]
        return (f"{{ switch (::vesk_fault::Enter({function})) {{\n{''.join(cases)}default:;}}\n"
                f'#line {line} "{path}"\n')

    def check_command(self, name):
        """A header is checked like a source of its library."""
        if name in self.commands:
            return [*self.commands[name], str(COPY / name)]
        return [*any_command(self.commands, name), "-x", "c++", str(COPY / name)]

    def drop_what_does_not_compile(self, names, commands):
        """Returns whether any were dropped."""
        before = len(self.faults)
        while commands:
            self.write(names, marked=True)
            with concurrent.futures.ThreadPoolExecutor(self.jobs) as pool:
                results = list(pool.map(functools.partial(check, workshop.state_of_sources()), commands))
            culprits = set().union(*(culprits_in(result.stdout) for result in results))
            self.faults = [fault for fault in self.faults if fault.number not in culprits]
            failed = [result for result in results if result.returncode != 0]
            if failed and not culprits:
                raise Problem("does not build even without its faults:\n" + failed[0].stdout[-3000:])
            commands = [command for command, result in zip(commands, results) if result.returncode != 0]
        return len(self.faults) < before

    def record(self, programs):
        """Runs each program without a fault. Returns which enter each function, and which fail regardless."""
        with tempfile.TemporaryDirectory(dir=WORK, prefix="record-") as folder:
            def settings(program):
                return {CHOICE: "-1", RECORD: f"{folder}/{program.name}"}
            failing = workshop.measure(programs, self.jobs, settings)
            entered = {}
            for program in programs:
                path = pathlib.Path(folder, program.name)
                for number in set(numbers_in(path)):
                    entered.setdefault(number, []).append(program)
        return ({key: entered.get(number, []) for key, number in self.functions.items()}, failing)


def numbers_in(path):
    data = path.read_bytes() if path.exists() else b""
    return [number for number, in struct.iter_unpack("i", data)]


def any_command(commands, name):
    """The compile command of a source near a header."""
    def shared(other):
        return len(pathlib.os.path.commonprefix([name, other]))
    return commands[max(sorted(commands), key=shared)]


def check(state, command):
    """The output of the compiler, cached as long as no source changes."""
    key = hashlib.sha256("\0".join([state, *command]).encode()).hexdigest()
    known = WORK / "checks" / key
    if known.exists():
        return subprocess.CompletedProcess(command, **json.loads(known.read_text(encoding="utf-8")))
    result = workshop.run([*command, "-fsyntax-only", "-w"])
    known.parent.mkdir(exist_ok=True)
    known.write_text(json.dumps({"returncode": result.returncode, "stdout": result.stdout}), encoding="utf-8")
    return result


def culprits_in(output):
    """The faults that contain an error, or that instantiate a template that does."""
    culprits, mentioned = set(), set()
    for line in output.splitlines():
        marks = {int(number) for number in MARK.findall(line)}
        if not ERROR.match(line):
            mentioned |= marks if "required from" in line or "In instantiation" in line else set()
            continue
        culprits |= marks or mentioned
        mentioned = set()
    return culprits


def failed_commands(output):
    """The failed commands of ninja, turned into checks."""
    commands = []
    lines = output.splitlines()
    for line, following in zip(lines, lines[1:]):
        if line.startswith("FAILED: ") and " -c " in following:
            words = shlex.split(following)
            words = words[1:] if words[0].endswith("ccache") else words
            source = words[words.index("-c") + 1]
            words = words[:words.index("-o")]
            for option in ("-MT", "-MF"):
                if option in words:
                    del words[words.index(option):words.index(option) + 2]
            commands.append([word for word in words if word != "-MD"] + [source])
    return commands
