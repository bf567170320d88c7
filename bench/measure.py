"""Measures every row, prints the table and writes it as JSON.

    measure.py BUILD-FOLDER JSON-FILE [ROW...]
"""

import json
import os
import sys
from datetime import datetime, timezone
from pathlib import Path

import chart
from documents import Documents
from material import Material
from rows import Bench
from timing import Failed

# How often each side of a row is measured; quick ones more often, as they vary more.
GROUPS = {
    "start-up": lambda bench: bench.start_up(25),
    "convert-launcher": lambda bench: bench.convert_launcher(60),
    "finished-scan": lambda bench: bench.finished_scan(25),
    "finished-document": lambda bench: bench.finished_document(5),
    "lists": lambda bench: bench.lists(9),
    "memory": lambda bench: bench.memory(3),
    "preview": lambda bench: bench.preview(21),
    "idle": lambda bench: bench.idle(),
    "wait": lambda bench: bench.wait(5),
    "chain": lambda bench: bench.chains(3),
    "copied-scan": lambda bench: Documents(bench).copied_scan(15),
    "merged-copies": lambda bench: Documents(bench).merged_copies(3),
    "converted": lambda bench: Documents(bench).converted(2),
    "fitted": lambda bench: Documents(bench).fitted(9),
    "photos": lambda bench: Documents(bench).photos(2),
    "chain-with-finishing": lambda bench: bench.finished_chains(3),
    "preview-memory": lambda bench: bench.preview_memory(),
}

HEADINGS = ("row", "ours", "against", "ratio", "to reach", "")


def cells(row):
    sign = "+" if row.difference else ""
    result = f"{row.result:+.2f} {row.unit}" if row.difference else f"{row.result:.3f}"
    limit = "" if row.limit is None else f"{sign}{row.limit:.2f}"
    verdict = {None: "", True: "reached", False: "NOT REACHED"}[row.reached]
    ours, against = (f"{value:.1f} {row.unit}" for value in (row.ours, row.against))
    return (row.name, ours, against, result, limit, verdict)


def line(texts):
    name, ours, against, result, limit, verdict = texts
    return f"{name:<48} {ours:>12} {against:>12} {result:>12} {limit:>9}  {verdict}".rstrip()


def record(row):
    return {
        "row": row.name.strip(),
        "unit": row.unit,
        "ours": row.ours,
        "against": row.against,
        "difference" if row.difference else "ratio": row.result,
        "limit": row.limit,
        "reached": row.reached,
        "samples": row.samples,
    }


def measure(bench, groups):
    rows = []
    print(line(HEADINGS), flush=True)
    for group in groups:
        for row in GROUPS[group](bench):
            print(line(cells(row)), flush=True)
            rows.append(row)
    return rows


def main(build, result, *wanted):
    unknown = set(wanted) - set(GROUPS)
    if unknown:
        sys.exit(f"There is no row {', '.join(sorted(unknown))}; there are {', '.join(GROUPS)}.")
    build = Path(build).resolve()
    load = os.getloadavg()[0]
    if load > 0.7:
        print(f"The machine is busy (load {load:.1f}): ratios scatter, times mean little.")
    try:
        rows = measure(Bench(build, Material(build / "material")), wanted or GROUPS)
    except Failed as failure:
        sys.exit(str(failure))
    content = {
        "date": datetime.now(timezone.utc).isoformat(timespec="seconds"),
        "cores": os.cpu_count(),
        "load before": load,
        "rows": [record(row) for row in rows],
    }
    Path(result).parent.mkdir(parents=True, exist_ok=True)
    Path(result).write_text(json.dumps(content, indent=2) + "\n", encoding="utf-8")
    chart.main(result, Path(result).with_suffix(".svg"))
    print(f"Written to {result}, and drawn beside it")


if __name__ == "__main__":
    main(*sys.argv[1:])
