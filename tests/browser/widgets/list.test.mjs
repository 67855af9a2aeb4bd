// A list: children in the middle, a bar, and the wheel.
import {test} from 'node:test';
import {pixel, until} from '../support/browser.mjs';
import {resize, standsAsMeasured, widgetScreen, windows} from '../support/widget_screen.mjs';

const red = [198, 40, 40], blue = [21, 101, 192], green = [46, 125, 50], yellow = [249, 168, 37];
const white = [255, 255, 255], bar = [155, 155, 155];
const content = 4 * 200 + 3 * 20;
const screen = widgetScreen('list');

standsAsMeasured(screen, ({width, height}) => {
    const middle = width / 2;
    const barHeight = height / content * height;
    return {
        texts: [],
        colours: [
            [middle, 100, red], [middle - 147, 100, red], [middle - 153, 100, white], [middle, 210, white],
            [middle + 97, 300, blue], [middle + 103, 300, white], [middle, 430, white], [middle, 450, green],
            [width - 4, 20, bar], [width - 4, barHeight - 5, bar], [width - 4, barHeight + 5, white],
            [width - 10, 500, white],
        ],
    };
});

test('the wheel moves the list, and no further than its end', async () => {
    const page = await screen.open();
    await resize(page, windows[0]);
    const becomes = (y, colour) => until(async () =>
        (await pixel(page, 640, y)).join() === colour.join(), `${colour} at ${y}`);
    await page.mouse.move(640, 300);
    await page.mouse.wheel(0, 50);
    await becomes(145, red);
    await becomes(155, white);
    await page.mouse.wheel(0, 5000);
    await becomes(598, yellow);
    await becomes(402, yellow);
    await becomes(395, white);
    await page.mouse.wheel(0, -5000);
    await becomes(195, red);
});
