"""A Slurm cluster of one node with munge, in a folder, as root and without systemd."""

from __future__ import annotations

import os
import socket
import subprocess
import time
from collections.abc import Callable
from pathlib import Path

PATH = os.environ.get("PATH", os.defpath) + ":/usr/sbin:/sbin"
_CONFIGURATION = """
ClusterName=test
SlurmctldHost={host}(127.0.0.1)
AuthType=auth/munge
AuthInfo=socket={root}/munge.socket
SlurmUser=root
SlurmdUser=root
SlurmctldPort={port}
SlurmdPort={node_port}
StateSaveLocation={root}/state
SlurmdSpoolDir={root}/spool
SlurmctldPidFile={root}/slurmctld.pid
SlurmdPidFile={root}/slurmd.pid
SlurmctldLogFile={root}/slurmctld.log
SlurmdLogFile={root}/slurmd.log
ProctrackType=proctrack/linuxproc
TaskPlugin=task/none
SelectType=select/cons_tres
SelectTypeParameters=CR_Core
SchedulerParameters=sched_interval=2,batch_sched_delay=0
ReturnToService=2
SwitchType=switch/none
MpiDefault=none
MaxArraySize=5
NodeName={host} NodeAddr=127.0.0.1 CPUs={processors} State=UNKNOWN
PartitionName=main Nodes={host} Default=YES MaxTime=INFINITE State=UP
"""


def wait_for(condition: Callable[[], object], what: str, seconds: float = 60.0) -> None:
    end = time.monotonic() + seconds
    while not condition():
        if time.monotonic() > end:
            raise AssertionError(f"{what}: not within {seconds:.0f} s")
        time.sleep(0.05)


def _free_ports() -> tuple[int, int]:
    with socket.socket() as one, socket.socket() as other:
        one.bind(("127.0.0.1", 0))
        other.bind(("127.0.0.1", 0))
        return one.getsockname()[1], other.getsockname()[1]


class Cluster:
    """Its programs run while it is entered, and find it by ``environment``."""

    def __init__(self, root: Path) -> None:
        self.root = root
        self.environment = {**os.environ, "PATH": PATH, "SLURM_CONF": str(root / "slurm.conf"), "LC_ALL": "C.UTF-8"}
        self._processes: list[subprocess.Popen[bytes]] = []

    def _start(self, *command: str) -> None:
        with (self.root / f"{command[0]}.out").open("wb") as output:
            self._processes.append(subprocess.Popen(command, env=self.environment, stdin=subprocess.DEVNULL,
                                                    stdout=output, stderr=output))

    def call(self, *command: str) -> str:
        return subprocess.run(command, env=self.environment, capture_output=True, text=True, check=False).stdout

    def __enter__(self) -> Cluster:
        root = self.root
        for name in ("state", "spool"):
            (root / name).mkdir()
        port, node_port = _free_ports()
        (root / "slurm.conf").write_text(_CONFIGURATION.format(
            root=root, host=socket.gethostname(), port=port, node_port=node_port, processors=os.cpu_count()))
        key = root / "munge.key"
        key.write_bytes(os.urandom(128))
        key.chmod(0o600)
        self._start("munged", "--foreground", "--force", f"--key-file={key}", f"--socket={root}/munge.socket",
                    f"--pid-file={root}/munge.pid", f"--seed-file={root}/munge.seed", f"--log-file={root}/munge.log")
        wait_for((root / "munge.socket").exists, "munged")
        self._start("slurmctld", "-D")
        self._start("slurmd", "-D")
        wait_for(lambda: "idle" in self.call("sinfo", "--noheader", "--format=%t"), "a node that is idle")
        return self

    def __exit__(self, *exception: object) -> None:
        self.call("scancel", "--user=root")
        for process in reversed(self._processes):
            process.terminate()
            try:
                process.wait(20)
            except subprocess.TimeoutExpired:
                process.kill()
                process.wait()
