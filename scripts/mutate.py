#!/usr/bin/env python3
"""Breaks one line of portable code at a time and says which breaks no test sees.

Usage: mutate.py [--every N] [--seed N] [--limit SECONDS] FILE...

Works in a copy of the last commit in out/mutants, so that nothing is touched here. Each mutant is compiled and the
tests of its room are run, those that take long aside; one that does not compile does not count. --every N takes
each Nth mutant alone, chosen by the seed. Prints a line for each mutant that lived, and at the end how many were
seen.
"""
import argparse
import pathlib
import random
import re
import subprocess
import sys

ROOT = pathlib.Path(__file__).resolve().parent.parent
COPY = ROOT / "out" / "mutants"
BUILD = COPY / "build-lint"
LONG = "*Monkey*:*RunsForAWeek*:*Long*:*Random*:HostileChoice*:NeverGrows*"

SWAPS = [
    (r" == ", " != "), (r" != ", " == "),
    (r" < ", " <= "), (r" <= ", " < "), (r" > ", " >= "), (r" >= ", " > "),
    (r" && ", " || "), (r" \|\| ", " && "),
    (r" \+ ", " - "), (r" - ", " + "), (r" \* ", " / "),
    (r"\btrue\b", "false"), (r"\bfalse\b", "true"),
    (r"std::max\(", "std::min("), (r"std::min\(", "std::max("),
    (r"\breturn;", ";"), (r"\bif \((?!const|auto)", "if (!("),
]
NUMBER = re.compile(r"(?<![\w.\"'{])(\d+)(?![\w.\"'])")
CALL = re.compile(r"^\s+[A-Za-z_][\w.:>()\[\]\-]*\([^;]*\);$")
SKIPPED = re.compile(r"^\s*(//|#|using |namespace |template|case |static_assert|public:|private:)")


def mutants_of_line(line):
    if SKIPPED.match(line) or '"' in line:
        return
    code = line.split("//")[0].rstrip("\n")
    for pattern, other in SWAPS:
        if "<" in pattern and "template" in code:
            continue
        for match in re.finditer(pattern, code):
            if other == "if (!(":
                # The closing bracket of the condition: the condition has to end on this line.
                depth, end = 0, None
                for at in range(match.end() - 1, len(code)):
                    depth += {"(": 1, ")": -1}.get(code[at], 0)
                    if depth == 0:
                        end = at
                        break
                if end is None:
                    continue
                yield code[:match.start()] + "if (!(" + code[match.end():end] + "))" + code[end + 1:]
            else:
                yield code[:match.start()] + other + code[match.end():]
    for match in NUMBER.finditer(code):
        yield code[:match.start()] + str(int(match.group(1)) + 1) + code[match.end():]
    if CALL.match(code) and not code.lstrip().startswith(("return", "throw")):
        yield re.match(r"\s*", code).group(0) + ";"


def run(command, limit):
    try:
        return subprocess.run(command, cwd=COPY, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL, timeout=limit).returncode
    except subprocess.TimeoutExpired:
        return -1


def suites_of_room(room):
    suites = set()
    for path in (COPY / "tests" / room).rglob("*_test.cpp"):
        if path.name.endswith("_win_test.cpp"):
            continue
        suites.update(re.findall(r"^TEST(?:_F|_P)?\((\w+),", path.read_text(), re.M))
    return ":".join(f"{suite}.*:*/{suite}.*" for suite in sorted(suites))


def build():
    return run(["cmake", "--build", str(BUILD), "--target", "lumora_tests"], 1200)


def prepare():
    if not COPY.exists():
        subprocess.run(["git", "worktree", "add", "-q", "--detach", str(COPY), "HEAD"], cwd=ROOT, check=True)
    subprocess.run(["git", "checkout", "-q", "--force", "--detach",
                    subprocess.check_output(["git", "rev-parse", "HEAD"], cwd=ROOT, text=True).strip()],
                   cwd=COPY, check=True)
    if run(["cmake", "--preset", "lint"], 600) != 0 or build() != 0:
        sys.exit("the unbroken code does not build")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--every", type=int, default=1)
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--limit", type=int, default=120, help="seconds for the tests of one mutant")
    parser.add_argument("files", nargs="+")
    options = parser.parse_args()
    prepare()
    rng = random.Random(options.seed)
    seen = lived = 0
    for name in options.files:
        path = COPY / name
        lines = path.read_text().splitlines()
        suites = suites_of_room(pathlib.Path(name).parts[1]) + "-" + LONG
        tests = [str(BUILD / "lumora_tests"), "--gtest_brief=1", "--gtest_fail_fast", "--gtest_filter=" + suites]
        for number, line in enumerate(lines):
            for mutant in mutants_of_line(line):
                if rng.randrange(options.every):
                    continue
                path.write_text("\n".join(lines[:number] + [mutant] + lines[number + 1:]) + "\n")
                if build() != 0:
                    continue
                if run(tests, options.limit) == 0:
                    lived += 1
                    print(f"{name}:{number + 1}: {line.strip()}  ->  {mutant.strip()}", flush=True)
                else:
                    seen += 1
        path.write_text("\n".join(lines) + "\n")
    print(f"{seen} seen, {lived} lived")


main()
