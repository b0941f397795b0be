#!/usr/bin/env python3
"""Measures ordwise-cli from outside: throughput of batch, cold start, resident memory.

    bench/cli.py build/release/src/cli/ordwise-cli [other/ordwise-cli]

With a second program the two run in turn and the ratio of their best times is told: on a machine that
others use as well, only ratios within one run mean something. Times are processor time (user and
system) of the whole process, the least and the median of the runs.
"""
import json
import os
import statistics
import subprocess
import sys
import tempfile

RUNS = 9
ROUNDS = 1000
PROBLEMS = [
    ("Arithmetic", "2+3*4-5"), ("Arithmetic", "1/2+3"), ("Fraction Arithmetic", "1/2+1/3"),
    ("Calculating With Exponents", "3^2+4^2"), ("Calculating Roots", "5~18-~8"),
    ("Exponential Notation", "35*9*4^3"), ("Solving Equations", "5x-3=2x+9"),
    ("Simplifying Polynomials", "3(x+2)-2(x-1)"), ("Evaluating Polynomials", "4xy+9x*6y+8z^2"),
    ("Graphing A Linear Equation", "2x+3y=6"), ("Absolute Values", "|3-8|+2"),
    ("Complex Arithmetic Expressions", "(4-2)+3^2"), ("Negative Exponents", "9x^-2/6+8x^-2"),
]


def request(topic, problem):
    line = {"op": "solve", "topic": topic, "problem": problem}
    if topic == "Evaluating Polynomials":
        line["answers"] = ["2", "3", "4"]
    return json.dumps(line)


def run(arguments, stdin=subprocess.DEVNULL):
    """Seconds of processor time of one run."""
    process = subprocess.Popen(arguments, stdin=stdin, stdout=subprocess.DEVNULL)
    _, status, usage = os.wait4(process.pid, 0)
    process.returncode = status
    assert status == 0, f"{arguments} ended with {status}"
    return usage.ru_utime + usage.ru_stime


def resident(arguments, stdin=subprocess.DEVNULL):
    """Most megabytes resident. A child counts what its parent had before it, and time is a small parent."""
    done = subprocess.run(["/usr/bin/time", "-f", "%M", *arguments], stdin=stdin, stdout=subprocess.DEVNULL,
                          stderr=subprocess.PIPE, text=True, check=True)
    return int(done.stderr.split()[-1]) / 1024


def report(what, unit, programs, once):
    """`once(how, program)` runs a program by one of the two routines above. The runs are taken in turn."""
    taken = [[once(run, program) for program in programs] for _ in range(RUNS)]
    best = [min(times) for times in zip(*taken)]
    for i, program in enumerate(programs):
        median = statistics.median(row[i] for row in taken)
        print(f"{what}: {unit(best[i])} best, {unit(median)} median, {once(resident, program):.1f} MB resident")
    if len(programs) == 2:
        print(f"{what}: the second takes {best[1] / best[0]:.2f} times as long as the first")


def main():
    programs = sys.argv[1:3]
    with tempfile.NamedTemporaryFile("w") as file:
        for _ in range(ROUNDS):
            for topic, problem in PROBLEMS:
                file.write(request(topic, problem) + "\n")
        file.flush()
        count = ROUNDS * len(PROBLEMS)

        def batch(how, program):
            with open(file.name) as requests:
                return how([program, "batch"], requests)

        report("batch", lambda s: f"{count / s:,.0f} problems a second", programs, batch)
    report("cold start", lambda s: f"{1000 * s:.2f} ms", programs,
           lambda how, program: how([program, "solve", "Solving Equations", "5x-3=2x+9"]))


main()
