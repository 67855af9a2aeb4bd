// The comparison of pictures itself, with pictures made here.
import assert from 'node:assert/strict';
import {existsSync, mkdtempSync, readFileSync, readdirSync, rmSync} from 'node:fs';
import {tmpdir} from 'node:os';
import {join} from 'node:path';
import {after, beforeEach, test} from 'node:test';
import {PNG} from 'pngjs';
import {holdPicture} from './support/golden.mjs';

const root = mkdtempSync(join(tmpdir(), 'pozhil-golden-'));
const folder = join(root, 'golden'), kept = join(root, 'kept');
const white = [255, 255, 255], blue = [33, 150, 243];

after(() => rmSync(root, {recursive: true}));
beforeEach(() => {
    rmSync(folder, {recursive: true, force: true});
    rmSync(kept, {recursive: true, force: true});
});

/** A white picture with a box of 24 pixels. */
function picture({x = 100, y = 60, colour = blue, width = 640, height = 400} = {}) {
    const png = new PNG({width, height});
    for (let i = 0; i < width * height; i++) {
        const [column, row] = [i % width, Math.floor(i / width)];
        const isInside = column >= x && column < x + 24 && row >= y && row < y + 24;
        png.data.set([...(isInside ? colour : white), 255], 4 * i);
    }
    return PNG.sync.write(png);
}

const make = shot => holdPicture('box', shot, {folder, kept, rewrite: true});
const hold = shot => holdPicture('box', shot, {folder, kept, rewrite: false});
const keptFiles = () => existsSync(kept) ? readdirSync(kept).sort() : [];

/** Fails as `says`, in one line that says where the pictures are, and leaves those of `kinds`. */
function fails(shot, says, kinds = ['actual', 'difference', 'expected']) {
    assert.throws(() => hold(shot), error => {
        assert.match(error.message, says);
        assert.ok(error.message.includes(join(kept, 'box')), error.message);
        assert.ok(!error.message.includes('\n'));
        return true;
    });
    assert.deepEqual(keptFiles(), kinds.map(kind => `box.${kind}.png`));
}

test('an equal picture holds and leaves nothing', () => {
    make(picture());
    hold(picture());
    assert.deepEqual(keptFiles(), []);
});

test('a shade and a few pixels are let pass', () => {
    make(picture());
    hold(picture({colour: [36, 148, 240]}));
    const shot = PNG.sync.read(picture());
    for (let i = 0; i < 5; i++) shot.data.set([0, 0, 0], 4 * (i * 97 + 5000));
    hold(PNG.sync.write(shot));
    shot.data.set([0, 0, 0], 4 * 9000);
    fails(PNG.sync.write(shot), /differs in 6 of 256000 pixels/);
});

test('a shape that moved by a pixel fails', () => {
    make(picture());
    fails(picture({x: 101}), /differs in 48 of 256000 pixels/);
    fails(picture({y: 59}), /differs in 48 of 256000 pixels/);
});

test('another colour fails', () => {
    make(picture());
    fails(picture({colour: [46, 125, 50]}), /differs in 576 of/);
    fails(picture({colour: [33, 150, 200]}), /differs in 576 of/);
});

test('another size fails and says both', () => {
    make(picture());
    fails(picture({width: 641}), /is 640x400, the page 641x400/, ['actual', 'expected']);
    fails(picture({height: 399}), /is 640x400, the page 640x399/, ['actual', 'expected']);
});

test('a missing golden picture fails and tells how to make it', () => {
    fails(picture(), /is missing: POZHIL_REWRITE=1 makes it/, ['actual']);
});

test('what an earlier failure left goes when the picture holds again', () => {
    make(picture());
    fails(picture({x: 120}), /differs/);
    hold(picture());
    assert.deepEqual(keptFiles(), []);
});

test('a rewriting run replaces a picture that differs, and no other', () => {
    make(picture());
    const before = readFileSync(join(folder, 'box.png'));
    make(picture({colour: [34, 150, 243]}));
    assert.deepEqual(readFileSync(join(folder, 'box.png')), before);
    make(picture({x: 120}));
    hold(picture({x: 120}));
});
