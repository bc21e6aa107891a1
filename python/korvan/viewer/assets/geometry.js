// Paths: their verbs and coordinates, and their bounds.
"use strict";

const MOVE = 0, LINE = 1, CURVE = 2, CLOSE = 3;
const COORDINATES = [2, 2, 6, 0];

/** Verbs and absolute coordinates of all paths, in two arrays that grow. */
class Geometry {
  constructor() {
    this.verbs = new Uint8Array(1 << 14);
    this.coords = new Float64Array(1 << 16);
    this.verbCount = 0;
    this.coordCount = 0;
  }

  add(verb) {
    if (this.verbCount === this.verbs.length) {
      const larger = new Uint8Array(this.verbs.length * 2);
      larger.set(this.verbs);
      this.verbs = larger;
    }
    this.verbs[this.verbCount++] = verb;
  }

  point(x, y) {
    if (this.coordCount + 2 > this.coords.length) {
      const larger = new Float64Array(this.coords.length * 2);
      larger.set(this.coords);
      this.coords = larger;
    }
    this.coords[this.coordCount++] = x;
    this.coords[this.coordCount++] = y;
  }

  /** Reads path data; returns its parts, each from one move to the next, with their bounds. */
  read(data, matrix = null) {
    const parts = this._read(data);
    if (matrix !== null) {
      parts.forEach((part, i) => this._transform(part, matrix, parts[i + 1]?.coord ?? this.coordCount));
    }
    return parts;
  }

  _transform(part, [a, b, c, d, e, f], end) {
    const { coords } = this;
    part.minX = part.minY = Infinity;
    part.maxX = part.maxY = -Infinity;
    for (let i = part.coord; i < end; i += 2) {
      const x = coords[i], y = coords[i + 1];
      coords[i] = a * x + c * y + e;
      coords[i + 1] = b * x + d * y + f;
      part.minX = Math.min(part.minX, coords[i]);
      part.maxX = Math.max(part.maxX, coords[i]);
      part.minY = Math.min(part.minY, coords[i + 1]);
      part.maxY = Math.max(part.maxY, coords[i + 1]);
    }
  }

  _read(data) {
    const parts = [];
    const length = data.length;
    let at = 0, command = 0, x = 0, y = 0, startX = 0, startY = 0, part = null;
    const number = () => {
      let c = data.charCodeAt(at);
      while (c === 32 || c === 44 || c === 10) {
        c = data.charCodeAt(++at);
      }
      const negative = c === 45;
      if (negative) {
        c = data.charCodeAt(++at);
      }
      let value = 0, scale = 0;
      for (;; c = data.charCodeAt(++at)) {
        if (c >= 48 && c <= 57) {
          value = value * 10 + c - 48;
          scale *= 10;
        } else if (c === 46 && scale === 0) {
          scale = 1;
        } else {
          break;
        }
      }
      value = scale > 1 ? value / scale : value;
      return negative ? -value : value;
    };
    const extend = () => {
      part.minX = Math.min(part.minX, x);
      part.maxX = Math.max(part.maxX, x);
      part.minY = Math.min(part.minY, y);
      part.maxY = Math.max(part.maxY, y);
    };
    const begin = () => {
      part = { verb: this.verbCount, coord: this.coordCount, verbEnd: 0, minX: x, maxX: x, minY: y, maxY: y };
      parts.push(part);
      this.add(MOVE);
      this.point(x, y);
    };
    const lineTo = () => {
      if (part === null) {
        begin();
      }
      this.add(LINE);
      this.point(x, y);
      extend();
    };
    while (at < length) {
      const c = data.charCodeAt(at);
      if (c === 32 || c === 44 || c === 10) {
        at++;
        continue;
      }
      if (c >= 65) {
        command = c;
        at++;
      }
      const from = command >= 97 ? 1 : 0;  // lower case: relative to the current point
      switch (command | 32) {
        case 109:  // m
          x = number() + from * x;
          y = number() + from * y;
          startX = x;
          startY = y;
          begin();
          command = from ? 108 : 76;
          break;
        case 108:  // l
          x = number() + from * x;
          y = number() + from * y;
          lineTo();
          break;
        case 104:  // h
          x = number() + from * x;
          lineTo();
          break;
        case 118:  // v
          y = number() + from * y;
          lineTo();
          break;
        case 99: {  // c
          if (part === null) {
            begin();
          }
          const originX = from * x, originY = from * y;
          this.add(CURVE);
          for (let i = 0; i < 3; i++) {
            x = number() + originX;
            y = number() + originY;
            this.point(x, y);
            extend();
          }
          break;
        }
        case 122:  // z
          if (part !== null) {
            this.add(CLOSE);
          }
          x = startX;
          y = startY;
          part = null;
          break;
        default:
          throw new Error(`The path command ${String.fromCharCode(command)} is not known.`);
      }
    }
    for (let i = 0; i < parts.length; i++) {
      parts[i].verbEnd = i + 1 < parts.length ? parts[i + 1].verb : this.verbCount;
    }
    return parts;
  }

  /** Draws parts as one path, with coordinates relative to a point near them, which keeps their precision. */
  path(parts, originX, originY) {
    const path = new Path2D();
    const { verbs, coords } = this;
    for (const part of parts) {
      let at = part.coord;
      for (let i = part.verb; i < part.verbEnd; i++) {
        switch (verbs[i]) {
          case MOVE:
            path.moveTo(coords[at] - originX, coords[at + 1] - originY);
            break;
          case LINE:
            path.lineTo(coords[at] - originX, coords[at + 1] - originY);
            break;
          case CURVE:
            path.bezierCurveTo(coords[at] - originX, coords[at + 1] - originY, coords[at + 2] - originX,
              coords[at + 3] - originY, coords[at + 4] - originX, coords[at + 5] - originY);
            break;
          default:
            path.closePath();
        }
        at += COORDINATES[verbs[i]];
      }
    }
    return path;
  }
}

function boundsOf(parts) {
  const bounds = { minX: Infinity, minY: Infinity, maxX: -Infinity, maxY: -Infinity };
  for (const part of parts) {
    bounds.minX = Math.min(bounds.minX, part.minX);
    bounds.minY = Math.min(bounds.minY, part.minY);
    bounds.maxX = Math.max(bounds.maxX, part.maxX);
    bounds.maxY = Math.max(bounds.maxY, part.maxY);
  }
  return bounds;
}

/** Bounds of a rectangle after a matrix. */
function boundsOfCorners(matrix, left, top, right, bottom) {
  const [a, b, c, d, e, f] = matrix;
  const xs = [left, right].flatMap((x) => [top, bottom].map((y) => a * x + c * y + e));
  const ys = [left, right].flatMap((x) => [top, bottom].map((y) => b * x + d * y + f));
  return { minX: Math.min(...xs), minY: Math.min(...ys), maxX: Math.max(...xs), maxY: Math.max(...ys) };
}
