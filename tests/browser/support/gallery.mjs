// The gallery of examples/web, and a picture of each widget in it. A widget stands in a white plate
// under its own name: that name, where the page writes it, tells the plate, and what stands in the
// plate below it is the picture. What stands in no plate, and what must be pressed first, has a row in
// a table. A picture keeps the places of its texts: fonts differ between machines, so texts don't
// count when pictures are compared.
import assert from 'node:assert/strict';
import {cpSync, readFileSync} from 'node:fs';
import {dirname, join} from 'node:path';
import {fileURLToPath} from 'node:url';
import {PNG} from 'pngjs';
import {openPage, press, until} from './browser.mjs';
import {copyFonts} from './fonts.mjs';
import {nextFrames, seeFrame} from './frames.mjs';
import {readPicture} from './golden.mjs';
import {address, makeWorkplace, startCompiler} from './tool.mjs';
import {noteTexts, texts} from './widget_screen.mjs';

const root = join(dirname(fileURLToPath(import.meta.url)), '..', '..', '..');
const examples = join(root, 'examples', 'web');

export const pictures = join(root, 'docs', 'படங்கள்');
export const gallerySource = readFileSync(join(examples, 'காட்சியகம்.பொழில்'), 'utf8');

/** The words of the bar that leads from page to page, in its order; they name the pages, too. */
export const pages = ['எழுத்து', 'கலன்', 'இடம்', 'படிவம்', 'தேர்வு', 'பட்டை'];

export const ratio = 2;   // of a picture's pixels to the page's
const margin = 8;         // around what a picture shows, as all below in the page's pixels
const desk = {width: 1280, height: 720};
const nameSize = 14;      // of the names above the widgets, and
const nameColour = '#8a7463';
const nameHeight = 19;

const corner = 16;        // at a plate's ends, where it is round

const aside = [2, desk.height - 100];  // where the pointer is over no widget

/** Pages draw by the time, and a picture wants one moment. */
function holdTime() { performance.now = () => 400; }

/** `window.hold()` lets no further frame begin, for frames keep a photograph waiting; `window.goOn()` does. */
function holdFrames() {
    const request = window.requestAnimationFrame;
    let held = null;
    let isHeld = false;
    window.requestAnimationFrame = callback => {
        if (!isHeld) return request.call(window, callback);
        held = callback;
        return 0;
    };
    window.hold = () => { isHeld = true; };
    window.goOn = () => {
        isHeld = false;
        if (held) request.call(window, held);
        held = null;
    };
}

const inputWith = (page, hint) => page.locator(`input[placeholder="${hint}"]`);

/** The leftmost of the texts that read so. */
function textOf(drawn, wanted) {
    const found = drawn.filter(({text}) => text === wanted).sort((a, b) => a.left - b.left);
    assert.ok(found.length > 0, `'${wanted}' stands on the page; what stands is ${drawn.map(({text}) => text)}`);
    return found[0];
}

async function pressText(page, wanted) {
    const {left, width, y, size} = textOf(await texts(page), wanted);
    await press(page, left + width / 2, y + size / 2);
}

/** Where the first list to choose from stands, by its text. */
function dropdown(drawn, shown) {
    const {left, y} = textOf(drawn, shown);
    return {left: Math.round(left - 15), top: Math.round(y - 12)};
}

/**
 * What isn't photographed as it stands in a plate: on which page, what is done first and afterwards,
 * where it is then, in numbers or by the texts, and texts that must stand there. Without a place it is
 * the plate's.
 */
const unplated = [
    {kind: 'காட்சியகம்', page: 'எழுத்து', place: {left: 0, top: 0, width: 1280, height: 560}, holds: ['உரை', 'பொத்தான்', 'பிரிப்பான்']},
    {kind: 'பக்கம்', page: 'பட்டை', place: {left: 0, top: 0, ...desk}, holds: ['பகல்', 'எச்சரிக்கை', 'விருப்பம்']},
    {kind: 'தத்தல்', page: 'பட்டை', place: {left: 0, top: 52, width: 1280, height: 58}, holds: ['காலை', 'பகல்', 'மாலை']},
    {kind: 'பட்டியல்_காட்சி', page: 'பட்டை', place: {left: 462, top: 144, width: 356, height: 162}, holds: ['நற்றிணை', 'ஐந்து திணைகள்']},
    {kind: 'அடிப்பகுதி', page: 'பட்டை', place: {left: 0, top: 648, width: 1280, height: 72}, holds: ['முகப்பு', 'தேடல்', 'விருப்பம்']},
    {
        kind: 'அறிவிப்பு_பட்டை', page: 'பட்டை', place: {left: 468, top: 16, width: 344, height: 110}, holds: ['கடிதம் அனுப்பப்பட்டது'],
        async prepare(page) {
            await pressText(page, 'அறிவிப்பைக் காட்டு');
            // It comes down by frames, and those of a small window are quick.
            await page.setViewportSize({width: 320, height: 160});
            await until(async () => (await texts(page)).some(({text, y}) => text === 'கடிதம் அனுப்பப்பட்டது' && y > 57.99),
                'the message to come down');
            await page.setViewportSize(desk);
        },
    },
    {
        kind: 'எச்சரிக்கை', page: 'பட்டை', place: {left: 440, top: 225, width: 400, height: 270}, holds: ['அழிக்கவா?', 'வேண்டாம்'],
        prepare: page => pressText(page, 'எச்சரிக்கையைக் காட்டு'),
        restore: page => pressText(page, 'வேண்டாம்'),
    },
    {
        kind: 'கீழ்வரி', page: 'தேர்வு', holds: ['காவிரி', 'வைகை', 'பொருநை'],
        place(drawn) {
            const {left, top} = dropdown(drawn, 'வைகை');
            return {left: left - 10, top: top - 2, width: 180, height: 176};  // below the name
        },
        async prepare(page) {
            const {left, top} = dropdown(await texts(page), 'தேர்ந்தெடு...');
            await press(page, left + 80, top + 20);
            await pressText(page, 'வைகை');
            await press(page, left + 80, top + 20);
        },
    },
    {
        kind: 'தேடுபொறி', page: 'படிவம்', holds: [],
        prepare: page => inputWith(page, 'நூலைத் தேடுங்கள்').fill('சிலப்பதிகாரம்'),
    },
];

// ---- The page ----

/** Builds the gallery by the compiler, in a folder of its own. */
export async function buildGallery() {
    const workplace = makeWorkplace();
    cpSync(join(examples, 'assets'), join(workplace.work, 'assets'), {recursive: true});
    copyFonts(workplace.work);
    workplace.write('நிரல்.பொழில்', gallerySource);
    const compiler = startCompiler(workplace, 'நிரல்.பொழில்');
    await until(() => compiler.output.includes('🌍 பிரவுசர்') || compiler.ended, 'the build', 300);
    assert.ok(compiler.output.includes('வெற்றி!'), compiler.output);
    return {workplace, compiler};
}

/** Its first page. */
export async function openGallery(browser, deviceScaleFactor) {
    const options = {viewport: desk, screen: {width: 1920, height: 1080}, deviceScaleFactor};
    const page = await openPage(browser, options, async page => {
        await page.addInitScript(noteTexts);
        await page.addInitScript(holdTime);
        await page.addInitScript(holdFrames);
    });
    await page.goto(address);
    await until(() => page.evaluate(() => window.frames > 1), 'the first frames');
    return page;
}

/** Presses the word of a page in the bar, and waits for the page. */
export async function goTo(page, name) {
    const word = (await texts(page)).find(({text, y}) => text === name && y < 52);
    assert.ok(word, `'${name}' stands in the bar`);
    const title = titleOf(name);
    await press(page, word.left + word.width / 2, word.y + 5);
    await until(async () => await page.title() === title, `the page '${title}'`);
}

function titleOf(name) {
    const title = new RegExp(`இணைய_தலைப்பு: "([^"]+)"\\s+பின்னணி: "[^"]+"\\s+பக்கம்: "${name}"`).exec(gallerySource);
    assert.ok(title, `a page '${name}' with a title`);
    return title[1];
}

/** The places of all that is written, on the text layer and in inputs. */
async function writing(page) {
    const drawn = (await texts(page)).map(({left, y, width, size}) =>
        ({left: left - 2, top: y - size * 0.25, width: width + 4, height: size * 1.6}));
    const typed = await page.evaluate(() => [...document.getElementsByClassName('pozhil-input')]
        .filter(input => input.style.display !== 'none').map(input => {
            const {left, top, height} = input.getBoundingClientRect();
            const {font, fontSize, paddingLeft, borderLeftWidth} = getComputedStyle(input);
            const context = new OffscreenCanvas(1, 1).getContext('2d');
            context.font = font;
            const size = parseFloat(fontSize);
            return {
                left: left + parseFloat(paddingLeft) + parseFloat(borderLeftWidth) - 2,
                top: top + height / 2 - size,
                width: context.measureText(input.value || input.placeholder).width + 6,
                height: size * 2,
            };
        }));
    return [...drawn, ...typed];
}

/** What the page shows, its texts, and where it is written on. Time is held: after a frame nothing moves. */
async function look(page) {
    await page.evaluate(() => document.activeElement.blur());
    await page.mouse.move(...aside);
    await nextFrames(page);
    const shot = await seeFrame(page, async () => {
        await page.evaluate(() => window.hold());
        return readPicture(await page.screenshot({animations: 'disabled'}));
    });
    const seen = {shot, drawn: await texts(page), written: await writing(page)};
    await page.evaluate(() => window.goOn());
    return seen;
}

// ---- Places ----

const isWhite = ({data, width}, x, y) => {
    const at = 4 * (Math.round(y * ratio) * width + Math.round(x * ratio));
    return data[at] > 250 && data[at + 1] > 250 && data[at + 2] > 250;
};

/** How far from there it is white, in steps of a pixel. */
function whiteUntil(picture, x, y, dx, dy) {
    while (x > 0 && y > 0 && x < desk.width - 1 && y < desk.height - 1 && isWhite(picture, x + dx, y + dy)) {
        x += dx;
        y += dy;
    }
    return dx === 0 ? y : x;
}

/** The names above the widgets of a page. */
const namesOf = drawn => drawn.filter(({size, colour}) => size === nameSize && colour === nameColour);

/** The plates by their names: of each the part below the name. */
function plates(shot, drawn) {
    return new Map(namesOf(drawn).map(({text, left, width, y}) => {
        const x = Math.round(left + width / 2);
        const from = Math.round(y);
        const plateLeft = whiteUntil(shot, Math.floor(left) - 6, from, -1, 0);
        const plateRight = whiteUntil(shot, Math.ceil(left + width) + 6, from, 1, 0);
        assert.ok(Math.abs(plateLeft + plateRight - 2 * x) < 6, `'${text}' stands in the middle of a plate`);
        const top = from + nameHeight;
        const bottom = whiteUntil(shot, plateLeft + 6, from, 0, 1);
        assert.ok(bottom - top > 40, `'${text}' has a plate below it`);
        return [text, {left: plateLeft, top, width: plateRight - plateLeft, height: bottom - top}];
    }));
}

const meets = (a, b) => a.left < b.left + b.width && b.left < a.left + a.width &&
    a.top < b.top + b.height && b.top < a.top + a.height;

/** The smallest place in a plate that holds all that is no plate, with a margin. */
function tightIn(plate, shot, written, kind) {
    let left = Infinity, top = Infinity, right = -1, bottom = -1;
    const take = (x, y, width = 1, height = 1) => {
        left = Math.min(left, x);
        top = Math.min(top, y);
        right = Math.max(right, x + width);
        bottom = Math.max(bottom, y + height);
    };
    for (let y = plate.top; y < plate.top + plate.height; y++) {
        for (let x = plate.left + corner; x < plate.left + plate.width - corner; x++) {
            if (!isWhite(shot, x, y)) take(x, y);
        }
    }
    const ink = {...plate, top: plate.top + 4};  // the name's own place reaches a little below it
    for (const text of written.filter(text => meets(text, ink))) {
        take(Math.floor(text.left), Math.floor(text.top), Math.ceil(text.width), Math.ceil(text.height));
    }
    assert.ok(right - left > 10 && bottom - top > 2, `there is a ${kind} below its name`);
    assert.ok(left > plate.left + corner && right < plate.left + plate.width - corner, `${kind} is as wide as its plate`);
    left = Math.max(left - margin, plate.left);
    top = Math.max(top - margin, plate.top);
    right = Math.min(right + margin, plate.left + plate.width);
    bottom = Math.min(bottom + margin, plate.top + plate.height);
    return {left, top, width: right - left, height: bottom - top};
}

/** Fails unless the texts of `holds` are written within the place. */
function assertHolds(place, holds, drawn, kind) {
    for (const wanted of holds) {
        const isThere = drawn.some(({text, left, y, width}) => text === wanted && left >= place.left &&
            left + width <= place.left + place.width && y >= place.top && y <= place.top + place.height);
        assert.ok(isThere, `'${wanted}' stands where ${kind} is photographed`);
    }
}

// ---- Pictures ----

/** That part of a photograph, which has `scale` pixels to the page's. */
export function cut(shot, {left, top, width, height}, scale = ratio) {
    const picture = new PNG({width: width * scale, height: height * scale});
    PNG.bitblt(shot, picture, left * scale, top * scale, width * scale, height * scale, 0, 0);
    return picture;
}

/** Half as wide and high: of four pixels the middle colour. */
export function halved({data, width, height}) {
    const half = new PNG({width: width / 2, height: height / 2});
    for (let y = 0; y < half.height; y++) {
        for (let x = 0; x < half.width; x++) {
            for (let channel = 0; channel < 4; channel++) {
                const at = (row, column) => data[4 * ((2 * y + row) * width + 2 * x + column) + channel];
                half.data[4 * (y * half.width + x) + channel] = (at(0, 0) + at(0, 1) + at(1, 0) + at(1, 1)) / 4;
            }
        }
    }
    return half;
}

/** Paints grey over places of the window, in a picture of `place` as large as on the page. */
export function cover({data, width, height}, place, places) {
    for (const text of places) {
        const top = Math.max(0, Math.floor(text.top - place.top));
        const bottom = Math.min(height, Math.ceil(text.top + text.height - place.top));
        const left = Math.max(0, Math.floor(text.left - place.left));
        const right = Math.min(width, Math.ceil(text.left + text.width - place.left));
        for (let y = top; y < bottom; y++) {
            if (right > left) data.fill(128, 4 * (y * width + left), 4 * (y * width + right));
        }
    }
}

function pictureOf(kind, place, {shot, written}) {
    const round = value => Math.round(value * 10) / 10;
    const inside = written.filter(text => meets(text, place)).map(({left, top, width, height}) =>
        ({left: round(left), top: round(top), width: round(width), height: round(height)}));
    return {kind, place, written: inside, shot};
}

/** Fails unless the name of the kind stands just above the place. */
function assertNamed(kind, {left, top, width}, drawn) {
    const name = namesOf(drawn).find(({text}) => text === kind);
    assert.ok(name, `'${kind}' stands on its page`);
    const isAbove = name.y < top && top - name.y < 60 && name.left > left - 300 && name.left + name.width < left + width + 300;
    assert.ok(isAbove, `'${kind}' stands above its place`);
}

/** Where the kinds in plates stand, on the page as it is shown. */
function findPlaces({shot, drawn, written}) {
    const found = plates(shot, drawn);
    return Object.fromEntries([...found].map(([kind, plate]) => [kind, tightIn(plate, shot, written, kind)]));
}

/**
 * All pictures of the page that is shown: `kind`, `place`, the places `written` on, and `shot`, the
 * photograph that `place` is a part of. Kinds in plates stand where `places` says, or are looked for.
 */
export async function picturesOf(page, name, places) {
    const calm = await look(page);
    const rows = unplated.filter(row => row.page === name);
    const found = places ?? findPlaces(calm);
    const taken = [];
    for (const {text: kind} of namesOf(calm.drawn)) {
        if (rows.some(row => row.kind === kind)) continue;
        assert.ok(found[kind], `there is a place for '${kind}'`);
        assertNamed(kind, found[kind], calm.drawn);
        taken.push(pictureOf(kind, found[kind], calm));
    }
    for (const row of rows) taken.push(await pictureOfRow(page, row, calm, found));
    return taken;
}

async function pictureOfRow(page, row, calm, found) {
    let seen = calm;
    if (row.prepare) {
        await row.prepare(page);
        seen = await look(page);
    }
    const place = typeof row.place === 'function' ? row.place(seen.drawn) : row.place ?? found[row.kind];
    assert.ok(place, `there is a place for '${row.kind}'`);
    if (row.place) assertHolds(place, row.holds, seen.drawn, row.kind);
    else assertNamed(row.kind, place, seen.drawn);
    await row.restore?.(page);
    return pictureOf(row.kind, place, seen);
}
