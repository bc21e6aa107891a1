"""What batches ask of a shared file system: counted of one batch by strace, then played through for a cluster.

    build/python bench/batch_traffic.py [--files 10000000] [--nodes 1000] [--cores 32] [--cost 0.007]

Each worker of the cluster is played file by file. The file system is two queues: of operations on names (open, stat,
rename, ...), and of bytes.
"""

from __future__ import annotations

import argparse
import heapq
import json
import os
import random
import re
import subprocess
import sys
import tempfile
from collections import Counter
from collections.abc import Iterable
from dataclasses import dataclass, replace
from pathlib import Path

from batches import make_folder
from report import Table, duration

import korvan

CALLS = "file,read,write,pread64,pwrite64,getdents64,fsync,fdatasync"
SMALL, LARGE = 100, 300
MEASURED = Path(__file__).resolve().parent / "batch_traffic.json"
_LOOKS = {"stat", "lstat", "fstat", "newfstatat", "statx", "access", "faccessat", "faccessat2", "readlink"}
_PATH = re.compile(r'"([^"]*)"')
_MAPPED = re.compile(r"openat.*= \d+<(/[^>]*\.(?:so|dll|so\.[0-9.]+))>$")  # libraries are mapped, not read
_CALL = re.compile(r"^\d+\s+(\w+)\((.*)\) = (-?\d+)")


@dataclass(frozen=True)
class Cost:
    """What one thing asks of the file system."""

    operations: float
    read: float
    written: float

    @property
    def bytes(self) -> float:
        return self.read + self.written


@dataclass(frozen=True)
class Cluster:
    """Machines, and a file system that they share."""

    files: int
    nodes: int
    cores: int
    seconds: float
    """Processor time of a file."""
    operations: float = 100_000.0
    """Operations that the file system takes in a second: one good metadata server."""
    bandwidth: float = 40e9
    """Bytes that it takes in a second."""
    launches: float = 100.0
    """Tasks that the scheduler starts in a second."""
    start: float = 0.6
    """Processor time until a worker is ready."""
    shard: int = 1000
    package: Cost = Cost(0, 0, 0)
    """What the first worker of a node reads to start, where the package lies on the shared file system."""
    file: Cost = Cost(0, 0, 0)
    task: Cost = Cost(0, 0, 0)


@dataclass(frozen=True)
class Played:
    """What came of it: the time, and the load of the two queues."""

    seconds: float
    busy_operations: float
    busy_bytes: float
    peak: float
    """The most operations that were asked for in a second."""
    wait: float
    """The mean time that a file waited for the file system."""


def count(trace: Iterable[str], folders: tuple[str, ...]) -> Counter[str]:
    """Operations of a server and bytes, of calls on files below some folders.

    A client keeps the attributes of what it has just seen, also that a name is not there: they count once until the
    name changes, and not at all for a file that is open.
    """
    found: Counter[str] = Counter()
    seen: set[str] = set()
    for line in trace:
        call = _CALL.match(line)
        if not call or not any(folder in call[2] for folder in folders):
            continue
        name, result = call[1], int(call[3])
        path = _PATH.findall(call[2])
        if name in ("read", "pread64"):
            found["read"] += max(result, 0)
        elif name in ("write", "pwrite64"):
            found["written"] += max(result, 0)
        elif name not in _LOOKS:
            found["operations"] += 1
            seen.difference_update(path)
            if size := _MAPPED.search(line):
                found["read"] += os.path.getsize(size[1])
        elif path and path[0] and path[0] not in seen:
            found["operations"] += 1
            seen.add(path[0])
    return found


def trace(files: int) -> tuple[Counter[str], Counter[str]]:
    """What a batch of some files asks for: on its folders, and on the package."""
    with tempfile.TemporaryDirectory() as folder:
        source, out, log = Path(folder, "source"), Path(folder, "out"), Path(folder, "trace")
        make_folder(source, files)
        subprocess.run(["strace", "-f", "-y", "-s", "0", "-e", f"trace={CALLS}", "-o", log, sys.executable, "-m",
                        "korvan", "batch", source, "-o", out, "--to", "pdf", "--jobs", "1", "--quiet"], check=True)
        lines = log.read_text("utf-8", "replace").splitlines()
        package = str(Path(korvan.__file__).resolve().parent)
        return count(lines, (str(source), str(out))), count(lines, (package,))


def measure() -> dict[str, Cost]:
    """The cost of a file, which is the difference of two batches; of a task; and of the package's start."""
    (small, package), (large, _) = trace(SMALL), trace(LARGE)
    names = ("operations", "read", "written")
    each = {name: (large[name] - small[name]) / (LARGE - SMALL) for name in names}
    return {"file": Cost(**each), "task": Cost(**{name: max(0.0, small[name] - SMALL * each[name]) for name in names}),
            "package": Cost(**{name: float(package[name]) for name in names})}


def play(cluster: Cluster) -> Played:
    """Plays the cluster: each worker takes the next file when it is done with one."""
    chance = random.Random(1)
    per_node = cluster.files // cluster.nodes
    operations_free = bytes_free = waited = end = 0.0
    seconds: Counter[int] = Counter()
    busy = [0.0, 0.0]

    def serve(time: float, cost: Cost) -> float:
        """When the file system has done what is asked of it."""
        nonlocal operations_free, bytes_free
        seconds[int(time)] += round(cost.operations)
        lasts, moves = cost.operations / cluster.operations, cost.bytes / cluster.bandwidth
        operations_free = max(operations_free, time) + lasts
        bytes_free = max(bytes_free, time) + moves
        busy[0] += lasts
        busy[1] += moves
        return max(operations_free, bytes_free)

    workers: list[tuple[float, int]] = []
    left = [per_node] * cluster.nodes
    for node in range(cluster.nodes):
        begin = serve(node / cluster.launches, cluster.package)
        workers += [(begin + cluster.start, node)] * cluster.cores
    heapq.heapify(workers)
    while workers:
        time, node = workers[0]
        if not left[node]:
            heapq.heappop(workers)
            end = max(end, time)
            continue
        left[node] -= 1
        served = serve(time, cluster.file if left[node] % cluster.shard else Cost(
            cluster.file.operations + cluster.task.operations, cluster.file.read + cluster.task.read,
            cluster.file.written + cluster.task.written))
        waited += served - time
        heapq.heapreplace(workers, (served + chance.expovariate(1 / cluster.seconds), node))
    return Played(end, busy[0] / end, busy[1] / end, max(seconds.values()), waited / (per_node * cluster.nodes))


def variants(cluster: Cluster, measured: dict[str, Cost]) -> dict[str, Cluster]:
    """The plan, and what it avoids or might meet."""
    file = measured["file"]
    plan = replace(cluster, file=file, task=measured["task"])
    return {
        "the plan: package on each node": plan,
        "a hundredth of the nodes": replace(plan, nodes=max(1, plan.nodes // 100)),
        "package on the shared file system": replace(plan, package=measured["package"]),
        "larger drawings: ten times the bytes and the time": replace(
            plan, seconds=plan.seconds * 10, file=Cost(file.operations, file.read * 10, file.written * 10)),
        "a file system a tenth as fast": replace(plan, operations=plan.operations / 10, bandwidth=plan.bandwidth / 10),
        "rollback journals made and removed, locks": replace(
            plan, file=Cost(file.operations + 6, file.read, file.written)),
    }


def main() -> int:
    parser = argparse.ArgumentParser(description=(__doc__ or "").partition("\n")[0])
    parser.add_argument("--files", type=int, default=10_000_000)
    parser.add_argument("--nodes", type=int, default=1000)
    parser.add_argument("--cores", type=int, default=32)
    parser.add_argument("--cost", type=float, default=0.007,
                        help="processor seconds of a file, as the measurement `batches` tells")
    parser.add_argument("--measure", action="store_true", help="count anew by strace, and keep the numbers")
    arguments = parser.parse_args()
    if arguments.measure:
        MEASURED.write_text(json.dumps({name: cost.__dict__ for name, cost in measure().items()}, indent=1) + "\n")
    measured = {name: Cost(**values) for name, values in json.loads(MEASURED.read_text()).items()}
    costs = Table("asked of the file system", ("by", "operations", "read", "written"))
    for name, cost in measured.items():
        costs.add(name, f"{cost.operations:.1f}", f"{cost.read / 1024:.1f} KiB", f"{cost.written / 1024:.1f} KiB")
    costs.print()
    cluster = Cluster(arguments.files, arguments.nodes, arguments.cores, arguments.cost)
    ideal = cluster.files * cluster.seconds / cluster.nodes / cluster.cores
    table = Table(f"{cluster.files:,} files on {cluster.nodes} nodes of {cluster.cores} cores; processors alone: "
                  + duration(ideal), ("case", "time", "operations", "bytes", "peak operations/s", "a file waits"))
    for name, one in variants(cluster, measured).items():
        played = play(one)
        table.add(name, duration(played.seconds), f"{played.busy_operations:.0%} busy", f"{played.busy_bytes:.0%} busy",
                  f"{played.peak:,.0f}", duration(played.wait))
    table.print()
    return 0


if __name__ == "__main__":
    sys.exit(main())
