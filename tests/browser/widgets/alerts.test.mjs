// A warning: it stands in the middle of a dimmed page that it takes pointer and wheel from, and answers
// for itself, with a list that opens above it and a message above all.
import assert from 'node:assert/strict';
import {test} from 'node:test';
import {photograph, pixel, press, until} from '../support/browser.mjs';
import {stopClock} from '../support/clock.mjs';
import {nextFrames} from '../support/frames.mjs';
import {tap, telephone} from '../support/telephone.mjs';
import {resize, standsAsMeasured, texts, widgetScreen, windows} from '../support/widget_screen.mjs';

const behind = [255, 243, 224], blue = [33, 150, 243], slate = [69, 90, 100], red = [198, 40, 40];
const yellow = [255, 235, 59], white = [255, 255, 255];
const dimmed = colour => colour.map(channel => channel * 0.37);
const screen = widgetScreen('alerts');

standsAsMeasured(screen, ({width, scale}) => {
    const label = (text, middle, centre, colour) =>
        ({text, middle, y: centre - 8 * scale + 2, size: 16 * scale, colour});
    return {
        texts: [
            {text: 'பக்கம்', x: 0, y: 0, size: 20 * scale, colour: dimmed(yellow)},
            label('கேள்', 60, 65, dimmed(white)),
            {text: '0', x: 0, y: 110, size: 20 * scale},
            {text: 'அடியில்', x: 200, y: 250, size: 20 * scale, isCovered: width < 1280},
            {text: 'நீக்கலாமா?', middle: width / 2, y: 180, size: 20 * scale, colour: yellow},
            label('நீக்கு', width / 2, 230, white),
            label('சொல்', width / 2, 280, white),
            {text: 'தேர்ந்தெடு...', x: width / 2 - 65, y: 322, size: 16, colour: [51, 51, 51]},
        ],
        colours: [
            [width / 2 - 150, 400, slate], [width / 2, 165, slate], [width / 2, 435, slate],
            [width / 2 - Math.min(200, width / 2 - 20) + 3, 300, slate],
            [width / 2 - 50, 230, blue], [10, 65, blue], [300, 20, behind],
        ],
    };
});

const isNear = (found, wanted) => found.every((channel, i) => Math.abs(channel - wanted[i]) <= 3);
const becomes = (page, x, y, colour) =>
    until(async () => isNear(await pixel(page, x, y), colour), `${colour} at ${x}, ${y}`);
const shows = async (page, wanted) => (await texts(page)).some(({text}) => text === wanted);
const counts = (page, wanted) => until(() => shows(page, wanted), `the count ${wanted}`);
const cursor = page => page.evaluate(() => document.body.style.cursor);

/** The page at its smallest, where all tests that follow act. */
async function small() {
    const page = await screen.open();
    await resize(page, windows[2]);
    return page;
}

test('dims the page around it, and not itself', async () => {
    const page = await small();
    await becomes(page, 300, 20, dimmed(behind));
    await becomes(page, 10, 65, dimmed(blue));
    await becomes(page, 50, 400, slate);
    await becomes(page, 150, 230, blue);
});

test('leaves a button of the page neither pointer nor click', async () => {
    const page = await small();
    await press(page, 20, 65);
    await nextFrames(page);
    assert.equal(await cursor(page), 'default');
    assert.ok(await shows(page, '0'));
    await becomes(page, 10, 65, dimmed(blue));
});

test('leaves a column of the page no wheel', async () => {
    const page = await small();
    const turned = wanted => until(() => page.evaluate(delta => window.wheelDelta === delta, wanted), 'the wheel');
    await page.mouse.move(100, 560);
    await page.mouse.wheel(0, 100);
    await turned(100);
    await nextFrames(page);
    assert.equal((await texts(page)).find(({text}) => text === 'பக்கம்').y, 0);
    await page.mouse.wheel(0, -100);
    await turned(0);
});

test('opens a list of its own above itself, and the choice is told once', async () => {
    const page = await small();
    await press(page, 200, 330);
    await until(() => shows(page, 'இரண்டு'), 'the list');
    await becomes(page, 135, 425, white);
    await page.mouse.move(200, 414);
    await becomes(page, 135, 425, [240, 240, 240]);
    assert.equal(await cursor(page), 'pointer');
    await press(page, 200, 414);
    await counts(page, '100');
    await until(async () => !await shows(page, 'தேர்ந்தெடு...') && !await shows(page, 'ஒன்று'), 'the list to close');
    assert.ok(await shows(page, 'இரண்டு'));
    await becomes(page, 135, 425, slate);
});

test('shows a message of its own above the dimming', async () => {
    const page = await small();
    await stopClock(page);
    await press(page, 200, 280);
    await becomes(page, 60, 85, red);
    await until(async () => isNear(await pixel(page, 60, 45), red), 'the whole bar');
    assert.ok(isNear(await pixel(page, 20, 100), dimmed(behind)), 'the page beside it stays dimmed');
});

test('goes by its own button, and the page answers again', async () => {
    const page = await small();
    await page.mouse.move(150, 230);
    await becomes(page, 150, 230, blue.map(channel => channel - 20));
    assert.equal(await cursor(page), 'pointer');
    await press(page, 150, 230);
    await until(async () => !await shows(page, 'நீக்கலாமா?'), 'the end of the warning');
    await counts(page, '110');
    await becomes(page, 300, 560, behind);
    assert.equal(await cursor(page), 'default');
    await page.mouse.move(100, 560);
    await page.mouse.wheel(0, 100);
    await until(async () => (await texts(page)).find(({text}) => text === 'பக்கம்').y === -100, 'the wheel to act');
    await page.mouse.wheel(0, -100);
    await until(async () => (await texts(page)).find(({text}) => text === 'பக்கம்').y === 0, 'the way back');
    await press(page, 20, 65);
    await counts(page, '111');
    await becomes(page, 300, 560, dimmed(behind));
});

test('is answered by touch on a telephone', async () => {
    const page = await screen.open(2, telephone());
    const top = (844 - 280) / 2;
    await photograph(page, 'alert_on_telephone');
    await tap(page, 60, 65);
    await nextFrames(page);
    assert.ok(await shows(page, '0'));
    await tap(page, 195, top + 70);
    await counts(page, '10');
    await becomes(page, 300, 20, behind);
    await tap(page, 60, 65);
    await counts(page, '11');
    await becomes(page, 300, 20, dimmed(behind));
    assert.deepEqual(page.problems.filter(line => !line.includes('ERR_FAILED')), []);
});
