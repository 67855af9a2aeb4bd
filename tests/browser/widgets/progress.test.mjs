// What shows a state: bars filled as far as they are told and one that runs, turning arcs, messages;
// and lines of a list, of which a press moves one of the bars. What moves is photographed while the
// clock stands still.
import assert from 'node:assert/strict';
import {test} from 'node:test';
import {pixels, press, until} from '../support/browser.mjs';
import {nextFrames} from '../support/frames.mjs';
import {resize, standsAsMeasured, widgetScreen} from '../support/widget_screen.mjs';

const blue = [33, 150, 243], green = [46, 125, 50], white = [255, 255, 255], grey = [224, 224, 224];
const darkMessage = [70, 70, 70], purple = [106, 27, 154], cream = [255, 243, 224], sky = [227, 242, 253];

/** Lets a test hold the clock at `window.heldTime`, in milliseconds. */
const holdClock = page => page.evaluate(() => {
    if (window.heldTime !== undefined) return;
    const now = performance.now.bind(performance);
    performance.now = () => window.heldTime ?? now();
    window.heldTime = 0;
});

/** The pages of this screen have a clock that stands at 0. */
function screenWithoutTime(family) {
    const screen = widgetScreen(family);
    return {...screen, async open(ratio) {
        const page = await screen.open(ratio);
        await holdClock(page);
        await nextFrames(page);
        return page;
    }};
}

const screen = screenWithoutTime('progress');

standsAsMeasured(screen, ({width, scale}) => ({
    texts: [
        {text: 'தகவல்', middle: 150, y: 268, size: 16, colour: white},
        {text: 'சேமித்தாயிற்று', middle: 175, y: 328, size: 16, colour: white},
        {text: 'முதல் வரி', x: 76, y: 388, size: 16 * scale},
        {text: 'இரண்டாம் வரி', x: 76, y: 420, size: 16 * scale},
        {text: 'தனி வரி', x: 16, y: 478, size: 16 * scale},
    ],
    colours: [
        // 20 of 100; more than 100, which is all; 1, which is too little to be seen.
        [20, 33, blue], [36, 33, blue], [44, 33, grey], [190, 33, grey], [205, 33, white],
        [12, 56, green], [width - 12, 56, green], [10, 86, grey], [100, 86, grey],
        // The piece that runs is in the middle when the clock begins.
        [75, 116, blue], [125, 116, blue], [60, 116, grey], [140, 116, grey],
        [20, 276, darkMessage], [280, 276, darkMessage], [305, 260, white], [20, 336, purple], [330, 336, purple],
        // A switch leads the line.
        [28, 412, blue], [52, 412, white], [8, 412, cream], [Math.min(width, 600) - 8, 412, cream], ...(width > 610 ? [[606, 412, white]] : []),
        [190, 500, sky], [206, 500, white],
    ],
}));

const cursor = page => page.evaluate(() => document.body.style.cursor);
const isOf = (found, wanted) => found.join() === wanted.join();

/** Whether the row of pixels at `y` has at each x of `marks` the colour beside it. */
async function rowShows(page, y, marks) {
    const row = await pixels(page, {x: 0, y, width: page.viewportSize().width, height: 1});
    return Object.entries(marks).every(([x, colour]) => isOf(row[x], colour));
}
const rowBecomes = (page, y, marks) =>
    until(() => rowShows(page, y, marks), `${JSON.stringify(marks)} in the row at ${y}`);

/** Sets the clock, and waits until frames have seen it. */
async function setClock(page, seconds) {
    await page.evaluate(time => { window.heldTime = time; }, seconds * 1000);
    await nextFrames(page);
}

// The larger arc is 60 across; these are places of its quarters.
const arc = {x: 0, y: 186, width: 60, height: 60};
const quarters = {lowerRight: [48, 48], lowerLeft: [12, 48], upperLeft: [12, 12], upperRight: [48, 12]};
/** Which of the quarters are open. */
async function openQuarter(page) {
    const colours = await pixels(page, arc);
    return Object.keys(quarters).filter(name => {
        const [x, y] = quarters[name];
        return isOf(colours[y * arc.width + x], white);
    }).join();
}

test('an arc of three quarters turns clockwise, six radians a second', async () => {
    const page = await screen.open();
    await resize(page, {width: 320, height: 530});
    for (const [i, name] of ['upperRight', 'lowerRight', 'lowerLeft', 'upperLeft'].entries()) {
        await setClock(page, i * Math.PI / 12);
        assert.equal(await openQuarter(page), name, `after ${i} quarters`);
    }
});

test('a bar without a value runs to its end and back', async () => {
    const page = await screen.open();
    for (const [seconds, marks] of [
        [Math.PI / 6, {132: grey, 150: blue, 190: blue}],
        [Math.PI / 3, {60: grey, 80: blue, 120: blue, 140: grey}],
        [Math.PI / 2, {10: blue, 50: blue, 70: grey}],
    ]) {
        await setClock(page, seconds);
        assert.ok(await rowShows(page, 116, marks), `${JSON.stringify(marks)} after ${seconds} s`);
    }
});

test('the arc turns by itself when the clock goes on, and the messages stay', async () => {
    const page = await screen.open();
    await page.evaluate(() => { window.heldTime = null; });
    const seen = new Set();
    await until(async () => seen.add(await openQuarter(page)).size > 1, 'the arc in another place');
    assert.ok(await rowShows(page, 336, {20: purple, 300: purple}));
    await setClock(page, 0);
});

test('a line darkens under the pointer, and each press fills the bar further, up to its end', async () => {
    const page = await screen.open();
    await page.mouse.move(300, 412);
    await rowBecomes(page, 412, {8: cream.map(channel => channel - 10)});
    assert.equal(await cursor(page), 'pointer');
    for (const marks of [{96: blue, 106: grey}, {156: blue, 166: grey}, {194: blue, 204: white}]) {
        await press(page, 300, 412);
        await rowBecomes(page, 33, marks);
    }
    await page.mouse.move(100, 500);
    await rowBecomes(page, 412, {8: cream});
    await rowBecomes(page, 500, {190: sky.map(channel => channel - 10)});
    assert.deepEqual(page.problems.filter(line => !line.includes('ERR_FAILED')), []);
});
