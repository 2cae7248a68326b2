# SPDX-License-Identifier: Apache-2.0
"""Judges gcovr's counts: a table by file, what is missed, and whether that is as agreed.

coverage_report.py COUNTS.json EXCEPTIONS LEAST_LINES LEAST_BRANCHES FOLDER...
"""
import json
import pathlib
import subprocess
import sys


def share(reached, of):
    return 100.0 * reached / of if of else 100.0


def lines_of(record):
    """The numbers of the lines that hold code, each with whether it ran and its branches."""
    by_number = {}
    for line in record["lines"]:
        if line.get("gcovr/noncode"):
            continue
        ran, branches = by_number.get(line["line_number"], (False, []))
        branches = branches + [branch["count"] > 0 for branch in line["branches"]]
        by_number[line["line_number"]] = (ran or line["count"] > 0, branches)
    return by_number


def read_exceptions(path):
    """(file, source line) -> why no test reaches it."""
    result = {}
    for row in pathlib.Path(path).read_text(encoding="utf-8").splitlines():
        if row.strip() and not row.startswith("#"):
            fields = [field.strip() for field in row.split(" | ")]
            if len(fields) != 3 or not all(fields):
                sys.exit(f"{path}: not FILE | SOURCE LINE | REASON: {row}")
            result[(fields[0], fields[1].replace("\\|", "|"))] = fields[2]
    return result


def report(counts, exceptions):
    """Prints the table and what is missed; returns the sums and what is not explained."""
    sums = [0, 0, 0, 0]
    missed = []
    print(f"{'file':34}{'lines':>7}{'reached':>9}{'branches':>10}{'taken':>7}")
    for record in sorted(counts["files"], key=lambda record: record["file"]):
        source = pathlib.Path(record["file"]).read_text(encoding="utf-8").splitlines()
        by_number = lines_of(record)
        branches = [taken for _, row in by_number.values() for taken in row]
        ran = sum(1 for reached, _ in by_number.values() if reached)
        figures = [len(by_number), ran, len(branches), sum(branches)]
        sums = [a + b for a, b in zip(sums, figures)]
        print(f"{record['file']:34}{figures[0]:7}{share(ran, figures[0]):8.1f}%"
              f"{figures[2]:10}{share(figures[3], figures[2]):6.1f}%")
        for number, (reached, row) in sorted(by_number.items()):
            if not reached:
                missed.append(("line", record["file"], number, source[number - 1].strip()))
            elif not all(row):
                missed.append(("branch", record["file"], number, source[number - 1].strip()))
    unexplained, used = [], set()
    for kind, file, number, text in missed:
        reason = exceptions.get((file, text))
        used.add((file, text))
        print(f"missed {kind}: {file}:{number}: {text}\n  {reason or 'NOT EXPLAINED'}")
        if reason is None and kind == "line":
            unexplained.append(f"{file}:{number}")
    stale = [key for key in exceptions if key not in used and key[1] != "-"]
    return sums, unexplained, stale


def uncounted_files(counts, folders):
    """The source files of the folders that no count speaks of: never built, or without code."""
    patterns = [f"{folder}/*.cpp" for folder in folders]
    listed = subprocess.run(["git", "ls-files", "--", *patterns], check=True, capture_output=True,
                            text=True).stdout.split()
    return set(listed) - {record["file"] for record in counts["files"]}


def main():
    counts_path, exceptions_path, least_lines, least_branches, *folders = sys.argv[1:]
    counts = json.loads(pathlib.Path(counts_path).read_text(encoding="utf-8"))
    exceptions = read_exceptions(exceptions_path)
    sums, unexplained, stale = report(counts, exceptions)
    line_share, branch_share = share(sums[1], sums[0]), share(sums[3], sums[2])
    print(f"total: {sums[1]} of {sums[0]} lines ({line_share:.1f} %), "
          f"{sums[3]} of {sums[2]} branches ({branch_share:.1f} %)")
    faults = []
    if sums[0] == 0 or sums[1] == 0:
        faults.append("nothing was counted")
    if line_share < float(least_lines):
        faults.append(f"fewer than {least_lines} % of the lines")
    if branch_share < float(least_branches):
        faults.append(f"fewer than {least_branches} % of the branches")
    faults += [f"{place} is not reached, and {exceptions_path} has no reason" for place in unexplained]
    faults += [f"{exceptions_path} speaks of {file}, \"{text}\", which is reached or gone"
               for file, text in stale]
    codeless = {file for file, text in exceptions if text == "-"}
    uncounted = uncounted_files(counts, folders)
    faults += [f"no count of {file}" for file in sorted(uncounted - codeless)]
    faults += [f"{file} has code, {exceptions_path} says not" for file in sorted(codeless - uncounted)]
    for fault in faults:
        print(f"coverage: {fault}", file=sys.stderr)
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
