// Buttons: sizes, colours, borders and labels, what the pointer does to them, and what a press does.
import assert from 'node:assert/strict';
import {test} from 'node:test';
import {pixel, press, until} from '../support/browser.mjs';
import {nextFrames} from '../support/frames.mjs';
import {resize, standsAsMeasured, texts, widgetScreen, windows} from '../support/widget_screen.mjs';

const blue = [33, 150, 243], red = [198, 40, 40], white = [255, 255, 255], yellow = [255, 235, 59];
const screen = widgetScreen('buttons');

standsAsMeasured(screen, ({width, scale}) => {
    const size = 16 * scale;
    const label = (text, middle, y, height, colour = white) =>
        ({text, middle, y: y + height / 2 - size / 2 + 2, size, colour});
    return {
        texts: [
            label('கூட்டு', 100, 40, 50),
            label('நீக்கு', 120, 110, 60, yellow),
            label('பாதி', width / 4, 190, 40),
            label('அ', 40, 250, 40),
            {text: 'பத்து', y: 310 + 20 - 10 + 2, size: 20, colour: [21, 101, 192]},
            {text: '0', x: 0, y: 370, size: 20 * scale},
        ],
        colours: [
            [10, 65, blue], [195, 65, blue], [205, 65, white],
            [20, 140, red], [120, 111, [0, 0, 0]], [120, 169, [0, 0, 0]],
            [width / 2 - 10, 210, blue], [width / 2 + 10, 210, white],
            [75, 270, blue], [85, 270, white],
        ],
    };
});

const counts = (page, wanted) => until(async () =>
    (await texts(page)).some(({text}) => text === wanted), `the count ${wanted}`);
const becomes = (page, x, y, colour) => until(async () =>
    (await pixel(page, x, y)).join() === colour.join(), `${colour} at ${x}, ${y}`);
const cursor = page => page.evaluate(() => document.body.style.cursor);

test('a button darkens under the pointer and a press calls its function once', async () => {
    const page = await screen.open();
    await resize(page, windows[0]);
    await page.mouse.move(20, 65);
    await becomes(page, 10, 65, blue.map(channel => channel - 20));
    assert.equal(await cursor(page), 'pointer');
    await press(page, 20, 65);
    await counts(page, '1');
    await page.mouse.move(700, 65);
    await becomes(page, 10, 65, blue);
    assert.equal(await cursor(page), 'default');
});

test('a colour for the pointer is darkened too, and its press counts', async () => {
    const page = await screen.open();
    await page.mouse.move(20, 140);
    await becomes(page, 20, 140, [0, 180, 63]);
    await press(page, 20, 140);
    await counts(page, '0');
});

test('a text button takes its colour under the pointer, and its press counts', async () => {
    const page = await screen.open();
    await page.mouse.move(10, 330);
    await until(async () => (await texts(page)).some(({text, colour}) => text === 'பத்து' && colour === '#3aad68'),
        'its colour');
    await press(page, 10, 330);
    await counts(page, '10');
});

test('a disabled button and a place beside all take no press', async () => {
    const page = await screen.open();
    for (const [x, y] of [[40, 270], [700, 65]]) {
        await press(page, x, y);
        await nextFrames(page);
        assert.equal(await cursor(page), 'default');
        await counts(page, '10');
    }
});
