// A column and a row that scroll: their bars and the wheel.
import assert from 'node:assert/strict';
import {test} from 'node:test';
import {pixel, until} from '../support/browser.mjs';
import {resize, standsAsMeasured, widgetScreen, windows} from '../support/widget_screen.mjs';

const red = [198, 40, 40], blue = [21, 101, 192], yellow = [249, 168, 37], green = [46, 125, 50];
const purple = [106, 27, 154], white = [255, 255, 255], bar = [155, 155, 155];
const content = 300 + 90 + 300 + 300 + 3 * 10;
const screen = widgetScreen('scrolling');

standsAsMeasured(screen, ({width, height}) => {
    const barHeight = height / content * height;
    const rowContent = 700 + 10 + 700 + 150;
    const behind = width > 720 ? yellow : blue;  // what the bars partly lie on
    const under = behind.map(channel => Math.round(channel * 155 / 255));
    const barWidth = width / Math.max(rowContent, width) * width;
    return {
        texts: [],
        colours: [
            [100, 150, red], [100, 305, white], [100, 350, blue], [100, 500, green], [250, 500, white],
            [width - 4, 20, bar], [width - 4, barHeight - 5, under], [width - 4, barHeight + 5, behind],
            [width - 10, 20, white],
            ...(width > 720 ? [[705, 350, white], [720, 350, yellow]] : []),
            [barWidth - 8, 396, under],
        ],
    };
});

const becomes = (page, x, y, colour) => until(async () =>
    (await pixel(page, x, y)).every((channel, i) => Math.abs(channel - colour[i]) <= 2), `${colour} at ${x}, ${y}`);

test('the wheel moves the column by its own pixels, and no further than its end', async () => {
    const page = await screen.open();
    await resize(page, windows[0]);
    await page.mouse.move(100, 500);
    await page.mouse.wheel(0, 100);
    await becomes(page, 100, 205, white);
    await becomes(page, 100, 250, blue);
    await page.mouse.wheel(0, 5000);
    await becomes(page, 100, 598, purple);
    await becomes(page, 100, content - 600 + 295 - 420, white);
    await page.mouse.wheel(0, -5000);
    await becomes(page, 100, 3, red);
});

test('the wheel held sideways moves the row', async () => {
    const page = await screen.open();
    await page.mouse.move(100, 350);
    await page.mouse.wheel(250, 0);
    await becomes(page, 440, 350, blue);
    await becomes(page, 455, 350, white);
    await becomes(page, 600, 350, yellow);
    assert.deepEqual(await pixel(page, 100, 150), red);
    await page.mouse.wheel(-5000, 0);
    await becomes(page, 600, 350, blue);
});
