#!/usr/bin/env python3
"""The table of ./bench/run: reads bench/goals and the programs' results, tells what to run, prints and documents.

usage: table.py programs [--rows LIST]
       table.py filter PROGRAM [--rows LIST]
       table.py print --results FOLDER [--rows LIST] [--document FILE]
"""
import argparse
import json
import math
import pathlib
import re
import statistics
import sys

BEGIN, END = "<!-- bench/run --document writes from here -->", "<!-- to here -->"
HEAD = "| # | work | ours | reference | ratio (spread) | goal | met |\n|---|---|---|---|---|---|---|"
SUFFIX = re.compile(r"/(iterations:\d+|min_time:[\d.]+|repeats:\d+|manual_time|real_time|process_time)(?=/|$)")


class Figure:
    """program:benchmark or program:benchmark@counter, or a number: of seconds, of a core's hundredths (0.5 %), of MB."""

    def __init__(self, text):
        self.constant = None
        self.program = self.name = self.counter = ""
        if number := re.fullmatch(r"([\d.e-]+)(?: (%|MB))?", text):
            self.constant = float(number[1]) * (1024 if number[2] == "MB" else 1)
            self.counter = {"%": "_percent", "MB": "_KiB"}.get(number[2], "")
            return
        program, _, rest = text.partition(":")
        self.program = "bench_" + program
        self.name, _, self.counter = rest.partition("@")

    def values(self, results):
        """What each turn gave; seconds, or the counter, of nanoseconds in seconds, of anything else as it is."""
        if self.constant is not None:
            return [self.constant]
        found = results.get((self.program, self.name), [])
        unit = 1e-9 if self.counter.endswith("_ns") else 1
        return [turn[self.counter] * unit if self.counter else turn["seconds"] for turn in found]

    def text(self, value):
        if self.counter.endswith("_KiB"):
            return f"{value / 1024:.1f} MB"
        if self.counter.endswith("_bytes"):
            return f"{value:.0f} bytes"
        if self.counter.endswith("_percent"):
            return f"{value:.2g} %"
        for factor, unit in ((1, "s"), (1e3, "ms"), (1e6, "µs")):
            if value * factor >= 0.9995:
                return f"{value * factor:.3g} {unit}"
        return f"{value * 1e9:.3g} ns"


def read_goals(rows):
    """The lines of bench/goals: pairs and charts, those of the wanted rows."""
    pairs, charts = [], []
    for line in (pathlib.Path(__file__).parent / "goals").read_text(encoding="utf-8").splitlines():
        if not line.strip() or line.startswith("#"):
            continue
        fields = [field.strip() for field in line.split("|")]
        if rows and fields[0] not in rows:
            continue
        if len(fields) == 3:
            charts.append((fields[0], fields[1], Figure(fields[2])))
        else:
            pairs.append((fields[0], fields[1], Figure(fields[2]), Figure(fields[3]), fields[4]))
    return pairs, charts


def read_results(folder):
    """(program, benchmark) -> its turns in order, each with its counters and its time in seconds."""
    results = {}
    units = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1.0}
    for file in sorted(pathlib.Path(folder).glob("*.json")):
        for run in json.loads(file.read_text())["benchmarks"]:
            if run["run_type"] != "iteration" or run.get("error_occurred"):
                continue
            wall = run["name"].endswith(("manual_time", "real_time"))
            run["seconds"] = run["real_time" if wall else "cpu_time"] * units[run["time_unit"]]
            results.setdefault((file.stem, SUFFIX.sub("", run["run_name"])), []).append(run)
    for turns in results.values():
        turns.sort(key=lambda run: run["repetition_index"])
    return results


def judge(goal, ours, reference):
    """Ratio text, goal text, and whether it is met (None without a goal)."""
    if len(reference) == 1:
        reference = reference * len(ours)
    if goal.startswith("+"):
        more = sorted(a - b for a, b in zip(ours, reference))
        middle = statistics.median(more) / 1024
        text = f"{middle:+.1f} MB ({more[0] / 1024:+.1f} to {more[-1] / 1024:+.1f})"
        return text, f"at most {goal} MB", middle <= float(goal)
    if goal == "-" and not all(reference):
        return "", "", None
    backwards = goal.startswith(("faster", "reach"))
    ratios = sorted(b / a if backwards else a / b for a, b in zip(ours, reference))
    middle = statistics.median(ratios)
    text = f"{middle:.2f} ({ratios[0]:.2f} to {ratios[-1]:.2f})"
    if goal == "-":
        return text, "", None
    if backwards:
        limit = float(goal.split()[1])
        return text, f"at least {limit:g}" + (" times as fast" if goal.startswith("faster") else ""), middle >= limit
    limit = float(goal.rstrip("x"))
    return text, f"at most {limit:g}", middle <= limit


def table(pairs, results):
    lines = []
    for row, work, ours, reference, goal in pairs:
        mine, theirs = ours.values(results), reference.values(results)
        if not mine or not theirs:
            lines.append(f"| {row} | {work} | not measured | | | | **no** |")
            continue
        ratio, goal_text, met = judge(goal, mine, theirs)
        met_text = "" if met is None else "yes" if met else "**no**"
        lines.append(f"| {row} | {work} | {ours.text(statistics.median(mine))} | "
                     f"{reference.text(statistics.median(theirs))} | {ratio} | {goal_text} | {met_text} |")
    return lines


def chart(charts, results):
    """For each family its sizes: the cost, the cost of one, and a bar that is four signs longer for each tenfold."""
    lines = []
    for row, title, family in charts:
        sizes = []
        for (program, name), turns in results.items():
            match = re.fullmatch(re.escape(family.name) + r"/(\d+)", name)
            if program == family.program and match:
                cost = statistics.median(turn["seconds"] for turn in turns)
                sizes.append((int(match[1]), cost))
        if not sizes:
            continue
        lines.append(f"{row}: {title}")
        least = min(cost for _, cost in sizes)
        for size, cost in sorted(sizes):
            bar = "#" * (1 + round(4 * math.log10(cost / least)))
            lines.append(f"{size:>10,}  {family.text(cost):>8}  {family.text(cost / size):>8} each  {bar}")
        lines.append("")
    return lines


def write_document(path, rows, lines, chart_lines):
    """Puts table and chart between the marks of the document. With rows given, the others' lines stay."""
    text = pathlib.Path(path).read_text(encoding="utf-8")
    before, rest = text.split(BEGIN)
    old, after = rest.split(END)
    if rows:
        kept = [line for line in old.splitlines() if re.match(r"\| \d", line) and line.split("|")[1].strip() not in rows]
        lines = sorted(kept + lines, key=lambda line: int(line.split("|")[1]))
        blocks = [block for block in re.findall(r"^\d+: .*\n(?: .*\n)+", old, re.M) if block.split(":")[0] not in rows]
        blocks += re.findall(r"^\d+: .*\n(?: .*\n)+", "\n".join(chart_lines) + "\n", re.M)
        chart_lines = "\n".join(sorted(blocks, key=lambda block: int(block.split(":")[0]))).splitlines() + [""]
    body = "\n".join([HEAD, *lines, "", "```text", *chart_lines[:-1], "```"])
    pathlib.Path(path).write_text(f"{before}{BEGIN}\n{body}\n{END}{after}", encoding="utf-8")


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("action", choices=["programs", "filter", "print"])
    parser.add_argument("program", nargs="?")
    parser.add_argument("--rows", default="")
    parser.add_argument("--results")
    parser.add_argument("--document")
    options = parser.parse_args()
    rows = set(filter(None, options.rows.split(",")))
    pairs, charts = read_goals(rows)
    figures = [figure for pair in pairs for figure in pair[2:4] if figure.constant is None]
    families = [figure for _, _, figure in charts]
    if options.action == "programs":
        print(*sorted({figure.program for figure in figures + families}))
    elif options.action == "filter":
        names = {f.name for f in figures if f.program == options.program}
        names |= {f.name + r"/[0-9]+" for f in families if f.program == options.program}
        print("^(" + "|".join(sorted(names)) + ")(/(iterations|min_time|manual_time|real_time|process_time).*)?$")
    else:
        results = read_results(options.results)
        lines, chart_lines = table(pairs, results), chart(charts, results)
        print(HEAD, *lines, "", *chart_lines, sep="\n")
        if options.document:
            write_document(options.document, rows, lines, chart_lines)
        return 1 if any("not measured" in line for line in lines) else 0
    return 0


sys.exit(main())
