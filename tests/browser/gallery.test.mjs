// The gallery, built once by the real em++: each page opens without an error, every widget that the
// compiler draws is in it and has a picture, and each picture is what the page shows. The page is read
// with a fourth of the pictures' pixels, which takes a fourth of the time, so the pictures are halved.
import assert from 'node:assert/strict';
import {mkdirSync, readdirSync, readFileSync, writeFileSync} from 'node:fs';
import {dirname, join} from 'node:path';
import {after, before, test} from 'node:test';
import {fileURLToPath} from 'node:url';
import pixelmatch from 'pixelmatch';
import {PNG} from 'pngjs';
import {launch} from './support/browser.mjs';
import {
    buildGallery, cover, cut, gallerySource, goTo, halved, openGallery, pages, pictures, picturesOf,
} from './support/gallery.mjs';
import {readPicture} from './support/golden.mjs';
import {tidyUp} from './support/tool.mjs';

const root = join(dirname(fileURLToPath(import.meta.url)), '..', '..');
const output = join(process.env.POZHIL_BROWSER_OUTPUT ?? 'browser-output', 'gallery');
const rows = JSON.parse(readFileSync(join(pictures, 'இடங்கள்.json'), 'utf8'));
const places = Object.fromEntries(Object.entries(rows).map(([kind, {place}]) => [kind, place]));

const tolerance = 0.05;  // of the distance from black to white, for a pixel
const share = 1 / 250;   // of a picture, that may differ by more
// A drawing from a file has the page's pixels, whatever the screen's: one twice as fine blurs it.
const shareOfDrawings = 1 / 20;
const drawings = ['படம்'];

/** The names of the table by which the compiler finds what draws a widget. */
const kinds = [...readFileSync(join(root, 'src', 'ui', 'widget_frame.cpp'), 'utf8')
    .matchAll(/^ {4}\{"([^"]+)", write\w+\},/gm)].map(match => match[1]);

let built, browser, page;
before(async () => {
    built = await buildGallery();
    browser = await launch();
    page = await openGallery(browser, 1);
});
after(() => tidyUp(browser, built?.compiler, built?.workplace));

test('shows every widget', () => {
    assert.ok(kinds.length >= 36, String(kinds));
    for (const kind of kinds) assert.match(gallerySource, new RegExp(`(^|[ (])${kind}\\(`, 'm'), kind);
});

test('has a picture of every widget, and of itself', () => {
    const files = readdirSync(pictures).filter(name => name.endsWith('.png')).map(name => name.slice(0, -4));
    assert.deepEqual([...kinds, 'காட்சியகம்'].filter(kind => !files.includes(kind)), []);
    assert.deepEqual(files.sort(), Object.keys(rows).sort());
});

/** Fails if the picture isn't what the page shows there, texts apart, and leaves both in the output. */
function holdShown({kind, place, written, shot}) {
    const row = rows[kind];
    assert.ok(row, `${kind} has a picture: scripts/gallery.sh makes it`);
    assert.deepEqual(place, row.place, `the place of ${kind}`);
    const expected = halved(readPicture(readFileSync(join(pictures, `${kind}.png`))));
    const actual = cut(shot, place, 1);
    for (const picture of [expected, actual]) cover(picture, place, [...written, ...row.written]);
    const {width, height} = expected;
    const difference = new PNG({width, height});
    const pixels = pixelmatch(expected.data, actual.data, difference.data, width, height, {threshold: tolerance});
    if (pixels <= width * height * (drawings.includes(kind) ? shareOfDrawings : share)) return;
    mkdirSync(output, {recursive: true});
    for (const [name, picture] of Object.entries({expected, actual, difference})) {
        writeFileSync(join(output, `${kind}.${name}.png`), PNG.sync.write(picture));
    }
    assert.fail(`the picture of ${kind} differs in ${pixels} of ${width * height} pixels: ` +
        `if that is meant, scripts/gallery.sh makes it anew; see ${join(output, kind)}.*.png`);
}

for (const name of pages) {
    test(`opens the page ${name}, which looks like its pictures`, async () => {
        await goTo(page, name);
        const shown = await picturesOf(page, name, places);
        assert.ok(shown.length >= 6, `${shown.length} pictures`);
        const wrong = [];
        for (const picture of shown) {
            try { holdShown(picture); } catch (error) { wrong.push(error.message); }
        }
        assert.deepEqual(wrong, []);
        assert.deepEqual(page.problems.filter(line => !line.includes('ERR_FAILED')), []);
    });
}
