"""How much of the foreground of one image another has within two pixels, and the other way round.

Reads pairs of images and a file for the difference as JSON, writes a line of JSON for each. Images are aligned first:
other programs have margins and scales of their own. Runs under the system's Python, which has numpy, scipy and Pillow.
"""

from __future__ import annotations

import json
import sys
from pathlib import Path
from typing import Iterator

import numpy as np
from PIL import Image
from scipy import ndimage
from scipy.spatial import cKDTree

Image.MAX_IMAGE_PIXELS = None
DARK = 225
REACH = 2.0
SAMPLES = 6000
ROUNDS = 30
START_REACH = 40.0
ENOUGH = 99.0
# How scales are tried: a grid of this side, so many steps to both sides of the guess, the best of them refined.
GRID = 256
STEP = 1.02
STEPS = 35
TRIED = 4

Placement = tuple[float, float, float]


def points(path: str) -> np.ndarray:
    """The foreground as rows of x and y."""
    image = Image.open(path)
    if image.mode in ("RGBA", "LA", "P"):
        image = image.convert("RGBA")
        image = Image.alpha_composite(Image.new("RGBA", image.size, "white"), image)
    y, x = np.nonzero(np.asarray(image.convert("RGB")).min(axis=2) < DARK)
    return np.stack([x, y], 1).astype(float)


def refined(moving: np.ndarray, fixed: cKDTree, start: Placement) -> Placement:
    """Scale and offset by iterated closest points, from a guess on."""
    scale, dx, dy = start
    chosen = np.random.RandomState(0).choice(len(moving), min(len(moving), SAMPLES), replace=False)
    sample = moving[chosen]
    reach = START_REACH
    for _ in range(ROUNDS):
        distance, nearest = fixed.query(sample * scale + (dx, dy), distance_upper_bound=reach)
        near = np.isfinite(distance)
        if near.sum() < 20:
            break
        ours, theirs = sample[near], fixed.data[nearest[near]]
        middle, aim = ours.mean(0), theirs.mean(0)
        spread = ((ours - middle) ** 2).sum()
        if spread > 2500 * len(ours):
            scale = float(((ours - middle) * (theirs - aim)).sum() / spread)
        dx, dy = aim - scale * middle
        reach = max(2.5, reach * 0.75)
    return scale, float(dx), float(dy)


def share(points_of: np.ndarray, other: cKDTree) -> float:
    """Per cent of points with one of the others in reach."""
    distance, _ = other.query(points_of, distance_upper_bound=REACH + 0.01)
    return 100 * float(np.isfinite(distance).mean())


def guesses(moving: np.ndarray, fixed: np.ndarray) -> Iterator[Placement]:
    """Equal, boxes on each other, then the places of the best correlation over many scales."""
    low, high, low2, high2 = moving.min(0), moving.max(0), fixed.min(0), fixed.max(0)
    by_box = max(high2 - low2) / max(*(high - low), 1)
    yield 1.0, 0.0, 0.0
    for ours, theirs in ((low2, low), ((low2 + high2) / 2, (low + high) / 2), (high2, high)):
        yield by_box, *(ours - by_box * theirs)
    found = sorted((correlated(moving, fixed, by_box * STEP**step) for step in range(-STEPS, STEPS + 1)), reverse=True)
    yield from (place for _, place in found[:TRIED])


def correlated(moving: np.ndarray, fixed: np.ndarray, scale: float) -> tuple[float, Placement]:
    """The offset at which scaled points meet the most of the others, and how many."""
    coarse = GRID / max(fixed.max(), scale * moving.max())
    first, second = (np.histogram2d(*(found * by).T, bins=2 * GRID, range=[[0, 2 * GRID]] * 2)[0] > 0
                     for found, by in ((fixed, coarse), (moving, coarse * scale)))
    # Neighbours count less, so that a cell's border does not decide.
    first = ndimage.gaussian_filter(first.astype(np.float32), 1)
    both = np.fft.irfft2(np.fft.rfft2(first) * np.conj(np.fft.rfft2(second.astype(np.float32))))
    at = np.array(np.unravel_index(np.argmax(both), both.shape))
    offset = np.where(at > GRID, at - 2 * GRID, at) / coarse
    return float(both.max() / np.sqrt(second.sum())), (scale, *offset)


def aligned(moving: np.ndarray, fixed: np.ndarray) -> tuple[float, float, np.ndarray]:
    """The best shares and the points where they are then."""
    tree = cKDTree(fixed)
    best: tuple[float, float, np.ndarray] | None = None
    for guess in guesses(moving, fixed):
        scale, dx, dy = refined(moving, tree, guess)
        if not 0.05 < scale < 20:
            continue
        placed = moving * scale + (dx, dy)
        shares = share(placed, tree), share(fixed, cKDTree(placed))
        if best is None or sum(shares) > best[0] + best[1]:
            best = (*shares, placed)
        if min(shares) > ENOUGH:
            break
    assert best is not None
    return best


def draw_difference(theirs: np.ndarray, ours: np.ndarray, target: Path) -> None:
    """Grey where both are, red where only the other is, blue where only ours is."""
    low = np.floor(np.min([theirs.min(0), ours.min(0)], 0))
    size = (np.max([theirs.max(0), ours.max(0)], 0) - low + 2).astype(int)
    masks = []
    for found in (theirs, ours):
        mask = np.zeros((size[1], size[0]), bool)
        at = np.clip(np.round(found - low).astype(int), 0, size - 1)
        mask[at[:, 1], at[:, 0]] = True
        masks.append(mask)
    far = [ndimage.distance_transform_edt(~mask) > REACH for mask in masks]
    image = np.full((size[1], size[0], 3), 255, np.uint8)
    image[masks[0] | masks[1]] = 190
    image[masks[0] & far[1]] = (255, 0, 0)
    image[masks[1] & far[0]] = (0, 0, 255)
    target.parent.mkdir(parents=True, exist_ok=True)
    Image.fromarray(image).save(target)


def compared(theirs: str, ours: str, difference: str) -> list[float] | str:
    """Both shares, or why there are none."""
    first, second = points(theirs), points(ours)
    if len(first) == 0 or len(second) == 0:
        both = len(first) == len(second)
        return [100.0, 100.0] if both else f"{'the other' if len(first) == 0 else 'our'} image is empty"
    forth, back, placed = aligned(first, second)
    draw_difference(placed, second, Path(difference))
    return [forth, back]


def main() -> None:
    for theirs, ours, difference in json.load(sys.stdin):
        print(json.dumps(compared(theirs, ours, difference)), flush=True)


if __name__ == "__main__":
    main()
