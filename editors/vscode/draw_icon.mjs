// draw_icon.mjs FILE: draws the extension's icon, three trees of a grove before the sun, as a PNG.
import {writeFileSync} from 'node:fs';
import {deflateSync} from 'node:zlib';

const size = 128;
const samples = 4; // In each direction of a pixel.

const disc = (x, y, radius) => (px, py) => Math.hypot(px - x, py - y) < radius;
const box = (left, top, right, bottom) => (px, py) => px >= left && px < right && py >= top && py < bottom;
const inFrame = (px, py) => {
    const [dx, dy] = [Math.max(Math.abs(px - 64) - 36, 0), Math.max(Math.abs(py - 64) - 36, 0)];
    return Math.hypot(dx, dy) < 26;
};

/** Shapes from the back to the front, each with its colour. */
const shapes = [
    [disc(64, 54, 34), [0xff, 0xd5, 0x4f]],
    [box(0, 94, size, size), [0x1b, 0x5e, 0x20]],
    [box(31, 62, 37, 98), [0x5d, 0x40, 0x37]],
    [disc(34, 58, 18), [0x43, 0xa0, 0x47]],
    [box(91, 62, 97, 98), [0x5d, 0x40, 0x37]],
    [disc(94, 58, 18), [0x43, 0xa0, 0x47]],
    [box(60, 56, 68, 104), [0x6d, 0x4c, 0x41]],
    [disc(64, 44, 24), [0x2e, 0x7d, 0x32]],
];
const ground = [0xe8, 0xf5, 0xe9];

/** Red, green, blue and opacity of a point. */
function colourAt(x, y) {
    if (!inFrame(x, y)) return [0, 0, 0, 0];
    const shape = shapes.findLast(([holds]) => holds(x, y));
    return [...(shape ? shape[1] : ground), 255];
}

/** The mean of a pixel's points; clear ones have no say in the colour. */
function pixelAt(x, y) {
    const sum = [0, 0, 0, 0];
    for (let at = 0; at < samples * samples; at++) {
        const [red, green, blue, opacity] = colourAt(x + (at % samples + 0.5) / samples,
            y + (Math.floor(at / samples) + 0.5) / samples);
        if (opacity) [red, green, blue, opacity].forEach((value, part) => sum[part] += value);
    }
    const opaque = sum[3] / 255 || 1;
    return [...sum.slice(0, 3).map(value => Math.round(value / opaque)), Math.round(sum[3] / samples ** 2)];
}

/** The checksum that stands behind each part of a PNG. */
function checksumOf(bytes) {
    let rest = 0xffffffff;
    for (const byte of bytes) {
        rest ^= byte;
        for (let bit = 0; bit < 8; bit++) rest = (rest >>> 1) ^ (rest & 1 ? 0xedb88320 : 0);
    }
    return (rest ^ 0xffffffff) >>> 0;
}

function chunk(kind, data) {
    const body = Buffer.concat([Buffer.from(kind, 'latin1'), data]);
    const frame = Buffer.alloc(8);
    frame.writeUInt32BE(data.length);
    frame.writeUInt32BE(checksumOf(body), 4);
    return Buffer.concat([frame.subarray(0, 4), body, frame.subarray(4)]);
}

const rows = [];
for (let y = 0; y < size; y++) {
    rows.push(0);
    for (let x = 0; x < size; x++) rows.push(...pixelAt(x, y));
}
const header = Buffer.alloc(13);
header.writeUInt32BE(size, 0);
header.writeUInt32BE(size, 4);
header.set([8, 6], 8); // Eight bits; red, green, blue, opacity.
writeFileSync(process.argv[2], Buffer.concat([
    Buffer.from([0x89, 0x50, 0x4e, 0x47, 0x0d, 0x0a, 0x1a, 0x0a]),
    chunk('IHDR', header),
    chunk('IDAT', deflateSync(Buffer.from(rows), {level: 9})),
    chunk('IEND', Buffer.alloc(0)),
]));
