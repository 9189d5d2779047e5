#!/usr/bin/env python3
"""Breaks one line of portable code at a time and says which breaks no test sees.

Usage: mutate.py [--since REF] [--mutants N] [--seed N] [--list] [FILE[:LINE]|FOLDER...]

Without files it takes the portable sources that differ from REF: by default from where this branch left origin/main,
or else from the last tag. Nothing here is touched: what is in the working tree, committed or not, is copied to
out/mutants and built there once, by clang++, optimised a little. A mutant is one source compiled from a folder of its own,
linked in place of the unbroken one with the tests of its room, and run, those that take long last. A mutant that does
not compile does not count; one that takes three times as long as the unbroken code is seen. Headers are left out, since
many sources would have to be compiled for each.

--mutants N takes a random N of each room, the same for the same --seed. Each one that lived is printed as it comes, and
at the end how many were seen; Ctrl-C ends it with what it knows by then.
"""
import argparse
import collections
import fcntl
import json
import os
import pathlib
import random
import re
import resource
import shlex
import shutil
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
COPY = ROOT / "out" / "mutants"
BUILD = COPY / "build-lint"
MUTANT = COPY / "out" / "mutant"
TIMES = COPY / "out" / "seconds.json"
# What of its room's time a test may take to be run before the slow ones.
QUICK = 1 / 200
MOST_MEMORY = 4 << 30

SWAPS = [
    (r" == ", " != "), (r" != ", " == "),
    (r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "),
    (r" && ", " || "), (r" \|\| ", " && "),
    (r" \+ ", " - "), (r" - ", " + "), (r" \* ", " / "), (r" / ", " * "),
    (r" \+= ", " -= "), (r" -= ", " += "), (r"\+\+", "--"), (r"(?<!-)--(?!-)", "++"),
    (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
    (r"std::max\b", "std::min"), (r"std::min\b", "std::max"),
    (r"\breturn;", ";"), (r"\bbreak;", ";"), (r"\bcontinue;", ";"),
    (r"(?<=[(\s])!(?=[\w(])", ""),
]
NUMBER = re.compile(r"(?<![\w.])\d+(?![\w.'])")
CONDITION = re.compile(r"\b(?:if|while) \((?!const |auto |!\()")
# A statement on a line of its own that calls something or assigns.
STATEMENT = re.compile(r"^\s*(?:if \(.*\) )?([A-Za-z_][\w.:>()\[\]*-]*(?:\(.*\)| [|&+*/-]?= .*));$")
KEPT = re.compile(r"^(return|throw|delete|co_|using|static_cast<void>)|\.reserve\(")
SKIPPED = re.compile(r"^\s*(#|using |namespace |template|case |static_assert|public:|private:|friend |\}? *// )")
LITERAL = re.compile(r"\"(?:\\.|[^\"\\])*\"|'(?:\\.|[^'\\])'")

Mutant = collections.namedtuple("Mutant", "name number before after")


def end_of_bracket(code, begin):
    """The place of the bracket that closes the one at begin, or None where it is on a later line."""
    depth = 0
    for at in range(begin, len(code)):
        depth += {"(": 1, ")": -1}.get(code[at], 0)
        if depth == 0:
            return at
    return None


def mutants_of_line(line):
    """Each way to break the line."""
    if SKIPPED.match(line):
        return
    code = re.sub(r"\s*//.*", "", line) if '"' not in line else line
    # What stands in quotes is not broken; letters take its place while looking.
    plain = LITERAL.sub(lambda literal: "q" * len(literal.group(0)), code)
    for pattern, other in SWAPS:
        for match in re.finditer(pattern, plain):
            yield code[:match.start()] + other + code[match.end():]
    for match in NUMBER.finditer(plain):
        yield code[:match.start()] + str(int(match.group(0)) + 1) + code[match.end():]
    for match in CONDITION.finditer(plain):
        end = end_of_bracket(plain, match.end() - 1)
        if end is not None:
            yield code[:match.end()] + "!(" + code[match.end():end] + ")" + code[end:]
    statement = STATEMENT.match(plain)
    if statement and not KEPT.search(code[statement.start(1):]):
        yield code[:statement.start(1)] + code[statement.end(1):]


def git(*words, **more):
    return subprocess.run(["git", *words], cwd=ROOT, check=True, stdout=subprocess.PIPE, text=True, **more).stdout.strip()


def base_of_changes():
    for command in (["merge-base", "HEAD", "origin/main"], ["describe", "--tags", "--abbrev=0"]):
        try:
            return git(*command, stderr=subprocess.DEVNULL)
        except subprocess.CalledProcessError:
            pass
    sys.exit("There is neither origin/main nor a tag: say --since REF, or name files.")


def room_of(name):
    return name.split("/")[1]


def portable(name):
    return name.startswith("src/") and name.endswith(".cpp") and not name.endswith("_win.cpp")


def mutants_of(names, since):
    """All mutants, by room. A name is a file, a file with a line, or a folder."""
    if not names:
        names = git("diff", "--name-only", "--diff-filter=d", since or base_of_changes(), "--", "src").split()
    rooms = collections.defaultdict(list)
    for name in names:
        name, _, only = str(name).partition(":")
        path = ROOT / name
        files = sorted(path.rglob("*.cpp")) if path.is_dir() else [path]
        for file in files:
            name = str(file.resolve().relative_to(ROOT))
            if not portable(name):
                continue
            for number, line in enumerate(file.read_text().splitlines(), 1):
                if not only or number == int(only):
                    rooms[room_of(name)] += [Mutant(name, number, line, after) for after in mutants_of_line(line)]
    return rooms


def copy_tree():
    """Brings the copy to what the working tree holds, by an index of its own: neither the tree nor its index changes."""
    if not COPY.exists():
        git("worktree", "add", "-f", "-q", "--detach", str(COPY), "HEAD")
    shutil.rmtree(MUTANT, ignore_errors=True)
    MUTANT.mkdir(parents=True)
    index = dict(os.environ, GIT_INDEX_FILE=str(MUTANT / "index"))
    git("read-tree", "HEAD", env=index)
    git("add", "-A", env=index)
    commit = git("commit-tree", "-p", "HEAD", "-m", "to be broken", git("write-tree", env=index))
    subprocess.run(["git", "checkout", "-q", "--force", "--detach", commit], cwd=COPY, check=True)


def build_copy():
    linker = ["-DCMAKE_EXE_LINKER_FLAGS=-fuse-ld=lld"] if shutil.which("ld.lld") else []
    with open(MUTANT / "build.log", "w") as log:
        configure = ["cmake", "--preset", "lint", "-DCMAKE_CXX_FLAGS_DEBUG=-O1", *linker]
        for command in (configure, ["cmake", "--build", str(BUILD), "--target", "lumora_tests"]):
            if subprocess.run(command, cwd=COPY, stdout=log, stderr=subprocess.STDOUT).returncode != 0:
                sys.exit(f"The unbroken code does not build: {MUTANT / 'build.log'}")


class Bench:
    """Compiles, links and runs one mutant at a time."""

    def __init__(self):
        self.commands = {}
        for entry in json.loads((BUILD / "compile_commands.json").read_text()):
            self.commands[entry["file"]] = [word for word in shlex.split(entry["command"]) if not word.endswith("ccache")]
        listed = subprocess.check_output(["ninja", "-t", "commands", "lumora_tests"], cwd=BUILD, text=True)
        self.link = [word for word in shlex.split(listed.splitlines()[-1]) if word not in (":", "&&")]
        # By room: how many seconds of the processor its quick tests may take, how many the slow ones, and their names.
        self.times = json.loads(TIMES.read_text()) if TIMES.exists() else {}

    def compile(self, name, lines, to):
        """Whether it compiles."""
        source = MUTANT / pathlib.Path(name).name
        source.write_text("\n".join(lines) + "\n")
        words = list(self.commands[str(COPY / name)])
        words[words.index("-o") + 1] = str(to)
        words[words.index("-c") + 1] = str(source)
        return subprocess.run([*words, "-w"], cwd=BUILD, stderr=subprocess.DEVNULL).returncode == 0

    def link_tests(self, name, compiled):
        """Links the tests of the source's room, those that are called like the source first: they see it soonest."""
        stem = pathlib.Path(name).stem
        folder = f"/lumora_tests.dir/tests/{room_of(name)}/"
        tests = [word for word in self.link if "/lumora_tests.dir/tests/" in word]
        chosen = sorted((test for test in tests if folder in test),
                        key=lambda test: not pathlib.Path(test).name.startswith(stem))
        unbroken = f"/lumora_core.dir/{name}.o"
        words = [str(compiled) if word.endswith(unbroken) else word for word in self.link if word not in tests]
        at = words.index("-o")
        words[at + 1] = str(MUTANT / "tests")
        subprocess.run([*words[:at], *chosen, *words[at:]], cwd=BUILD, check=True)

    def run_tests(self, chosen, seconds):
        """Runs the tests of a filter in so many seconds of the processor, with no more memory than a test needs: whether
        they passed, and what they printed."""
        def limit():
            resource.setrlimit(resource.RLIMIT_AS, (MOST_MEMORY, MOST_MEMORY))
            resource.setrlimit(resource.RLIMIT_CPU, (seconds, seconds))

        command = [str(MUTANT / "tests"), "--gtest_fail_fast", "--gtest_filter=" + chosen]
        with open(MUTANT / "tests.log", "w+") as log:
            try:
                code = subprocess.run(command, cwd=MUTANT, timeout=20 * seconds, stdout=log, stderr=log,
                                      preexec_fn=limit).returncode
            except subprocess.TimeoutExpired:
                code = None
            log.seek(0)
            return code == 0, log.read()

    def measure(self, name):
        """What the tests of the source's room take on the unbroken code; ends everything where they fail."""
        unbroken = MUTANT / "unbroken.o"
        if not self.compile(name, (COPY / name).read_text().splitlines(), unbroken):
            sys.exit(f"The unbroken {name} does not compile.")
        self.link_tests(name, unbroken)
        before = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime
        passed, printed = self.run_tests("*", 3600)
        processor = resource.getrusage(resource.RUSAGE_CHILDREN).ru_utime - before
        if not passed:
            sys.exit(f"The unbroken code fails its tests: {MUTANT / 'tests.log'}")
        took = {test: int(ms) for test, ms in re.findall(r"^\[ +OK \] (\S+)(?:, where .*)? \((\d+) ms\)$", printed, re.M)}
        whole = sum(took.values())
        slow = [test for test, ms in took.items() if ms > max(whole * QUICK, 20)]
        part_of_slow = sum(took[test] for test in slow) / whole
        self.times[room_of(name)] = [5 + int(3 * processor * part) for part in (1 - part_of_slow, part_of_slow)] + [slow]
        TIMES.write_text(json.dumps(self.times))

    def judge(self, mutant):
        """'no mutant', 'seen' or 'lived'."""
        room = room_of(mutant.name)
        if room not in self.times:
            self.measure(mutant.name)
        lines = (COPY / mutant.name).read_text().splitlines()
        lines[mutant.number - 1] = mutant.after
        if not self.compile(mutant.name, lines, MUTANT / "mutant.o"):
            return "no mutant"
        self.link_tests(mutant.name, MUTANT / "mutant.o")
        quick_seconds, slow_seconds, slow = self.times[room]
        names = ":".join(slow)
        lived = self.run_tests("-" + names, quick_seconds)[0] and (not slow or self.run_tests(names, slow_seconds)[0])
        return "lived" if lived else "seen"


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--since", metavar="REF", help="take the sources that differ from it")
    parser.add_argument("--mutants", metavar="N", type=int, default=0, help="a random N of each room")
    parser.add_argument("--seed", metavar="N", type=int, default=1)
    parser.add_argument("--list", action="store_true", help="print the mutants instead of judging them")
    parser.add_argument("names", nargs="*", metavar="FILE[:LINE]|FOLDER")
    options = parser.parse_args()
    rooms = mutants_of(options.names, options.since)
    if not rooms:
        sys.exit("No portable source is named or has changed.")
    for room, mutants in rooms.items():
        random.Random(f"{options.seed} {room}").shuffle(mutants)
    if options.list:
        for mutants in rooms.values():
            for mutant in mutants[:options.mutants or None]:
                print(f"{mutant.name}:{mutant.number}: {mutant.after.strip()}")
        return
    (ROOT / "out").mkdir(exist_ok=True)
    with open(ROOT / "out" / "mutants.lock", "w") as lock:
        try:
            fcntl.flock(lock, fcntl.LOCK_EX | fcntl.LOCK_NB)
        except BlockingIOError:
            sys.exit("It already runs: it has one copy.")
        judge_all(rooms, options.mutants)


def judge_all(rooms, most):
    copy_tree()
    build_copy()
    bench = Bench()
    counts = {room: collections.Counter() for room in rooms}
    try:
        judge_rooms(bench, rooms, most, counts)
    except KeyboardInterrupt:
        print("ended early")
    for room, count in counts.items():
        print(f"{room}: {count['seen'] + count['lived']} of {len(rooms[room])} judged, {count['seen']} seen, "
              f"{count['lived']} lived; {count['no mutant']} did not compile")


def judge_rooms(bench, rooms, most, counts):
    """Room after room in turn, so that an early end leaves a sample of each."""
    queues = {room: iter(mutants) for room, mutants in rooms.items()}
    while queues:
        for room in list(queues):
            count = counts[room]
            mutant = next(queues[room], None)
            if mutant is None or (most and count["seen"] + count["lived"] >= most):
                del queues[room]
                continue
            verdict = bench.judge(mutant)
            count[verdict] += 1
            if verdict == "lived":
                print(f"{mutant.name}:{mutant.number}: {mutant.before.strip()}\n    -> {mutant.after.strip()}", flush=True)
            print(f"{room}: {count['seen'] + count['lived']} of {most or len(rooms[room])}", file=sys.stderr, flush=True)


if __name__ == "__main__":
    main()
