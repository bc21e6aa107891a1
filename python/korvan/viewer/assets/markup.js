// Tags, texts and matrices of SVG documents.
"use strict";

/** Calls the handler at each start tag, with its attributes and the text up to the next tag, and at each end tag. */
function scanTags(source, onOpen, onClose) {
  const attribute = /\s+([\w:.-]+)="([^"]*)"/y;
  const name = /[\w:.-]+/y;
  let at = source.indexOf("<");
  while (at >= 0) {
    const next = source.charCodeAt(at + 1);
    if (next === 33 || next === 63) {  // <! and <?
      at = source.indexOf("<", at + 1);
      continue;
    }
    if (next === 47) {  // </
      onClose();
      at = source.indexOf("<", at + 1);
      continue;
    }
    name.lastIndex = at + 1;
    const tag = name.exec(source)[0];
    const attributes = {};
    let end = name.lastIndex;
    attribute.lastIndex = end;
    for (let match; (match = attribute.exec(source)) !== null; end = attribute.lastIndex) {
      attributes[match[1]] = match[2];
    }
    const close = source.indexOf(">", end);
    at = source.indexOf("<", close);
    onOpen(tag, attributes, tag === "text" ? source.slice(close + 1, at < 0 ? undefined : at) : "");
    if (source.charCodeAt(close - 1) === 47) {
      onClose();
    }
  }
}

const ENTITIES = { lt: "<", gt: ">", amp: "&", quot: '"', apos: "'" };

function unescapeText(text) {
  return text.replace(/&(#x[0-9a-f]+|#\d+|\w+);/gi, (whole, entity) => {
    if (entity[0] !== "#") {
      return ENTITIES[entity] ?? whole;
    }
    const hexadecimal = entity[1] === "x" || entity[1] === "X";
    const code = hexadecimal ? parseInt(entity.slice(2), 16) : parseInt(entity.slice(1), 10);
    return code <= 0x10ffff ? String.fromCodePoint(code) : whole;
  });
}

/** The matrix that applies another one first. */
function multiply(outer, inner) {
  if (outer === null) {
    return inner;
  }
  const [a, b, c, d, e, f] = outer;
  const [g, h, i, j, k, l] = inner;
  return [a * g + c * h, b * g + d * h, a * i + c * j, b * i + d * j, a * k + c * l + e, b * k + d * l + f];
}

/** The matrix of a symbol's use: translate(x y)rotate(degrees), or matrix(…). */
function placeOf(text) {
  const [move, turn] = text.split("rotate(");
  const numbers = matrixOf(move);
  if (numbers.length === 6) {
    return numbers;
  }
  const angle = (turn === undefined ? 0 : Number.parseFloat(turn)) * Math.PI / 180;
  const [cosine, sine] = [Math.cos(angle), Math.sin(angle)];
  return [cosine, sine, -sine, cosine, numbers[0], numbers[1] ?? 0];
}

const matrixOf = (text) => (text.match(/-?[\d.]+(?:e[+-]?\d+)?/gi) ?? []).map(Number);
