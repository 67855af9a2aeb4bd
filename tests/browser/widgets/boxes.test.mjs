// Boxes and cards: sizes, colours, children in corners and in the middle, what is cut off, the colour
// under the pointer, and a press.
import {test} from 'node:test';
import {pixel, press, until} from '../support/browser.mjs';
import {resize, standsAsMeasured, texts, widgetScreen, windows} from '../support/widget_screen.mjs';

const ground = [236, 239, 241], red = [198, 40, 40], blue = [21, 101, 192], green = [46, 125, 50];
const pale = [255, 245, 157], white = [255, 255, 255], lit = [0, 200, 83];
const screen = widgetScreen('boxes');

standsAsMeasured(screen, ({width, scale}) => ({
    texts: [
        // Its middle is that of the text in its full size.
        {text: '0', y: 302, size: 20 * scale, ...(scale === 1 ? {middle: width / 4} : {})},
        {text: 'அட்டை', x: 15, y: 385, size: 20 * scale},
    ],
    colours: [
        [150, 80, red], [297, 80, red], [3, 80, red], [1, 31, ground],
        [50, 200, white], [235, 230, white], [245, 215, blue], [297, 240, blue], [270, 205, white],
        [10, 310, pale], [width / 2 - 3, 310, pale], [width / 2 + 3, 310, ground],
        [width / 4, 340, green], [width / 4 + 13, 340, pale], [width / 4, 356, ground], [width / 4, 264, ground],
        [200, 470, white], [317, 430, white], [3, 430, white],
    ],
}));

test('a box under the pointer takes its other colour, and a press counts', async () => {
    const page = await screen.open();
    await resize(page, windows[0]);
    const becomes = colour => until(async () => (await pixel(page, 150, 80)).join() === colour.join(), `${colour}`);
    await page.mouse.move(150, 90);
    await becomes(lit);
    await press(page, 150, 90);
    await until(async () => (await texts(page)).some(({text}) => text === '1'), 'the count');
    await page.mouse.move(700, 90);
    await becomes(red);
});
