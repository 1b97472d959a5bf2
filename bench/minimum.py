#!/usr/bin/env python3
"""Runs a benchmark program several times and prints, for each benchmark, the least wall and CPU
time of the repetitions.

The build machine is shared: other jobs slow a run now and then by a third or more, never speed it
up. The least of several repetitions is the figure least disturbed; the ratio of two such figures
taken in the same run is what the README compares.

    bench/minimum.py build/bin/bench_uebernahme [REPETITIONS] [--filter REGEX]
"""
import json
import subprocess
import sys


def main():
    args = sys.argv[1:]
    if not args:
        sys.exit(__doc__)
    program = args.pop(0)
    filter_args = []
    if "--filter" in args:
        i = args.index("--filter")
        filter_args = ["--benchmark_filter=" + args[i + 1]]
        del args[i : i + 2]
    repetitions = int(args[0]) if args else 5
    out = subprocess.run(
        [program, f"--benchmark_repetitions={repetitions}", "--benchmark_format=json"] + filter_args,
        check=True, capture_output=True, text=True).stdout
    least = {}
    for b in json.loads(out)["benchmarks"]:
        if b.get("run_type") != "iteration" or b.get("error_occurred"):
            continue
        wall, cpu = least.get(b["run_name"], (float("inf"), float("inf")))
        least[b["run_name"]] = (min(wall, b["real_time"]), min(cpu, b["cpu_time"]))
    for name, (wall, cpu) in least.items():
        print(f"{name:45} {wall:10.0f} ms wall {cpu:10.0f} ms CPU")


if __name__ == "__main__":
    main()
