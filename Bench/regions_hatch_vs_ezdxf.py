#!/usr/bin/python3
"""Pattern hatching of Zem_Mfc against ezdxf on the same cases.

Runs the Peer benchmarks of the regions_hatch program (Google Benchmark, JSON
output), then hatches the same region with the same pattern lines and scales
through ezdxf's hatching module, and prints segments, total length and seconds
for each side with the ratio of the times. Times are CPU seconds of the
process, so that other work on the machine does not tilt the ratio: the
median of nine repetitions on the C++ side, on the ezdxf side of at least five
runs and as many as fill a second.

    Bench/regions_hatch_vs_ezdxf.py build/bench/Bench/regions_hatch [pattern file]

Needs Debian's python3-ezdxf (tools/bootstrap --bench installs it); run it with
/usr/bin/python3.
"""
import json
import math
import os
import subprocess
import sys
import time

from ezdxf.math import Vec2
from ezdxf.render import hatching

HERE = os.path.dirname(os.path.abspath(__file__))
DEFAULT_PATTERNS = os.path.join(HERE, "..", "Source", "resources", "zem.pat")

# The wall of the C++ benchmark: a contour and two holes.
WALL = [
    [(0, 0), (10000, 0), (10000, 3000), (0, 3000)],
    [(2000, 1000), (3000, 1000), (3000, 2000), (2000, 2000)],
    [(6000, 1000), (7000, 1000), (7000, 2000), (6000, 2000)],
]


def read_patterns(path):
    """Pattern lines by name from an AutoCAD-format pattern file."""
    patterns, name = {}, None
    with open(path, encoding="latin-1") as f:
        for text in f:
            text = text.split(";")[0].strip()
            if not text:
                continue
            if text.startswith("*"):
                name = text[1:].split(",")[0].strip()
                patterns[name] = []
            elif name:
                patterns[name].append([float(v) for v in text.split(",") if v.strip()])
    return patterns


def ezdxf_hatch(lines, scale):
    """Segments, total length and seconds of ezdxf's hatching of the wall."""
    polygons = [[Vec2(p) for p in ring] for ring in WALL]
    segments, length = 0, 0.0
    start = time.process_time()
    for line in lines:
        direction = Vec2.from_deg_angle(line[0])
        dx = line[3] * scale if len(line) > 3 else 0.0
        dy = line[4] * scale if len(line) > 4 else 0.0
        offset = direction * dx + direction.orthogonal() * dy
        dashes = [d * scale for d in line[5:]]
        baseline = hatching.HatchBaseLine(Vec2(line[1], line[2]) * scale, direction, offset, dashes)
        for hatch_line in hatching.hatch_polygons(baseline, polygons):
            renderer = baseline.pattern_renderer(hatch_line.distance)
            for s, e in renderer.render(hatch_line.start, hatch_line.end):
                segments += 1
                length += s.distance(e)
    return segments, length, time.process_time() - start


def ezdxf_median(lines, scale):
    """The run of median time among at least five, and as many more as fill a
    second, so that the short cases are not left to a few noisy runs."""
    runs = []
    while len(runs) < 5 or sum(run[2] for run in runs) < 1.0:
        runs.append(ezdxf_hatch(lines, scale))
    return sorted(runs, key=lambda run: run[2])[len(runs) // 2]


def ours(program, patterns_file):
    """The median of nine repetitions of each Peer case of the C++ program."""
    env = dict(os.environ, ZEM_PATTERN_FILE=patterns_file)
    out = subprocess.run(
        [program, "--benchmark_filter=^Peer/", "--benchmark_format=json", "--benchmark_min_time=0.2",
         "--benchmark_repetitions=9", "--benchmark_report_aggregates_only=true"],
        check=True, capture_output=True, text=True, env=env).stdout
    for bench in json.loads(out)["benchmarks"]:
        if bench.get("aggregate_name") != "median":
            continue
        _, name, target = bench["run_name"].split("/")[:3]
        seconds = bench["cpu_time"] * {"ms": 1e-3, "us": 1e-6, "ns": 1e-9, "s": 1.0}[bench["time_unit"]]
        yield name, int(target), bench["scale"], int(bench["segments"]), bench["length"], seconds


def main():
    if len(sys.argv) < 2:
        sys.exit(__doc__)
    patterns_file = sys.argv[2] if len(sys.argv) > 2 else DEFAULT_PATTERNS
    patterns = read_patterns(patterns_file)
    head = f"{'case':<16}{'scale':>10} | {'segments':>9}{'length':>14}{'seconds':>10} | " \
           f"{'ezdxf segs':>10}{'length':>14}{'seconds':>10} | {'ratio':>8}"
    print(head)
    print("-" * len(head))
    for name, target, scale, segs, length, seconds in ours(sys.argv[1], patterns_file):
        e_segs, e_length, e_seconds = ezdxf_median(patterns[name], scale)
        # Compare time per segment, so that a side with more output is not favoured.
        ratio = (e_seconds / max(e_segs, 1)) / (seconds / max(segs, 1))
        print(f"{name + '/' + str(target):<16}{scale:>10.3f} | {segs:>9}{length:>14.0f}{seconds:>10.5f} | "
              f"{e_segs:>10}{e_length:>14.0f}{e_seconds:>10.4f} | {ratio:>7.0f}x")


if __name__ == "__main__":
    main()
