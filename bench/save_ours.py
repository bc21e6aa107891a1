"""Loads a drawing and saves it as PDF twice; prints times, memory and size as one line of JSON."""

from __future__ import annotations

import json
import os
import sys
import time

import korvan.cad
from korvan.cad.imageoptions import PdfOptions

from load_ours import peak_kib


def main() -> None:
    path, output = sys.argv[1:]
    start = time.process_time()
    image = korvan.cad.Image.load(path)
    load = time.process_time() - start
    times: list[float] = []
    peak = 0
    for _ in range(2):
        start = time.process_time()
        image.save(output, PdfOptions())
        times.append(time.process_time() - start)
        peak = peak or peak_kib()
    print(json.dumps({"load": load, "first": times[0], "second": times[1], "peak": peak,
                      "size": os.path.getsize(output)}))


if __name__ == "__main__":
    main()
