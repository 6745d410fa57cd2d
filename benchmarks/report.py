#!/usr/bin/env python3
"""report.py RESULTS... FOLDER: prints a table of the benchmarks of every record and writes it to FOLDER as performance.json
and performance.svg. RESULTS are JSON files of Google Benchmark, one per run of the program.

report.py --compare RESULTS... --with OTHERS...: prints the ratios of the times in OTHERS to those in RESULTS."""

import argparse
import json
import pathlib
import statistics
import sys

MEASUREMENTS = ["toWire", "copy", "write", "fromWire", "read"]
# The ratios with their targets: for the median of all records, and for the highest.
RATIOS = {
    "toWireOfCopy": ("toWire", "copy", 1.3, 1.8),
    "toWireOfWrite": ("toWire", "write", None, None),
    "fromWireOfRead": ("fromWire", "read", 0.40, 0.90),
}


def times(results_files, of_all=statistics.median):
    """The median, or another value, of the times of all repetitions in nanoseconds, by record and measurement."""
    found = {}
    for file in results_files:
        for run in json.loads(pathlib.Path(file).read_text())["benchmarks"]:
            group, *rest = run["run_name"].split("/")
            if run["run_type"] == "iteration" and group == "every":
                found.setdefault(rest[0], {}).setdefault(rest[1], []).append(run["cpu_time"])
    return {record: {what: of_all(values) for what, values in measured.items()}
            for record, measured in found.items()}


def records(results_files):
    """One dictionary per record that has all measurements."""
    rows = []
    for name, measured in times(results_files).items():
        if set(measured) != set(MEASUREMENTS):
            continue
        row = {"record": name} | {what: measured[what] for what in MEASUREMENTS}
        for ratio, (what, against, _, _) in RATIOS.items():
            row[ratio] = row[what] / row[against]
        rows.append({key: value if key == "record" else round(value, 3) for key, value in row.items()})
    return sorted(rows, key=lambda row: row["toWireOfCopy"], reverse=True)


def print_table(rows):
    print(f"{'record':<37}{'to wire':>9}{'of copy':>9}{'of write':>9}{'from wire':>11}{'of read':>9}")
    for row in rows:
        print(f"{row['record']:<37}{row['toWire']:>6.1f} ns{row['toWireOfCopy']:>9.2f}{row['toWireOfWrite']:>9.2f}"
              f"{row['fromWire']:>8.1f} ns{row['fromWireOfRead']:>9.2f}")
    for ratio, (what, against, median_bar, highest_bar) in RATIOS.items():
        values = [row[ratio] for row in rows]
        median, highest = statistics.median(values), max(values)
        line = f"{what} of {against}, {len(rows)} records: median {median:.2f}, highest {highest:.2f}"
        if median_bar:
            above = [row["record"] for row in rows if row[ratio] > highest_bar]
            line += f"; targets {median_bar:.2f} {'met' if median <= median_bar else 'MISSED'}, {highest_bar:.2f} "
            line += "MISSED by " + ", ".join(above) if above else "met"
        print(line)


def chart(rows):
    """Two bars per record, readable on light and dark pages: to the wire relative to a copy, from the wire relative to `read`."""
    line, left, scale, top = 22, 290, 200, 60
    bars = [("toWireOfCopy", "a"), ("fromWireOfRead", "b")]
    height = top + line * len(rows) + 10
    svg = [
        f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 800 {height}" font-family="sans-serif" font-size="12">',
        "<style>text{fill:#24292f}.a{fill:#0969da}.b{fill:#bc4c00}.g{stroke:#8c959f;stroke-width:.5}"
        "@media(prefers-color-scheme:dark){text{fill:#e6edf3}.a{fill:#58a6ff}.b{fill:#f0883e}}</style>",
        f'<rect class="a" x="{left}" y="10" width="12" height="8"/>'
        f'<text x="{left + 18}" y="19">to the wire, of a copy of the wire record</text>',
        f'<rect class="b" x="{left + 260}" y="10" width="12" height="8"/>'
        f'<text x="{left + 278}" y="19">from the wire, of read</text>',
    ]
    for tick in range(5):
        x = left + tick * scale / 2
        svg.append(f'<line class="g" x1="{x}" y1="{top - 8}" x2="{x}" y2="{height - 8}"/>'
                   f'<text x="{x}" y="{top - 14}" text-anchor="middle">{tick / 2}</text>')
    for index, row in enumerate(rows):
        y = top + line * index
        svg.append(f'<text x="{left - 8}" y="{y + 12}" text-anchor="end">{row["record"]}</text>')
        for offset, (ratio, style) in enumerate(bars):
            svg.append(f'<rect class="{style}" x="{left}" y="{y + 1 + 8 * offset}" '
                       f'width="{row[ratio] * scale:.0f}" height="7"><title>{row[ratio]:.2f}</title></rect>')
    return "\n".join(svg + ["</svg>", ""])


def compare(results_files, other_files):
    # The fastest repetition of each: other load on the machine, which comes and goes between the programs, slows the rest.
    results, others = times(results_files, min), times(other_files, min)
    for what in ("toWire", "fromWire"):
        ratios = sorted((others[record][what] / results[record][what], record) for record in results)
        print(f"  {what}: median {statistics.median(ratio for ratio, _ in ratios):.2f}, "
              f"from {ratios[0][0]:.2f} ({ratios[0][1]}) to {ratios[-1][0]:.2f} ({ratios[-1][1]})")


def report(results_files, folder):
    rows = records(results_files)
    if not rows:
        return  # filtered out on the command line
    print_table(rows)
    rows_text = ",\n".join("  " + json.dumps(row) for row in rows)
    pathlib.Path(folder, "performance.json").write_text(f"[\n{rows_text}\n]\n")
    pathlib.Path(folder, "performance.svg").write_text(chart(rows))


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("results", nargs="*")
    parser.add_argument("--compare", nargs="+")
    parser.add_argument("--with", nargs="+", dest="others")
    arguments = parser.parse_args()
    if arguments.compare and arguments.others:
        compare(arguments.compare, arguments.others)
    elif len(arguments.results) > 1:
        *results, folder = arguments.results
        report(results, folder)
    else:
        parser.error("no results")


if __name__ == "__main__":
    main()
