// Pictures: pixels stretched and rounded, vectors, an animation that is an element above the canvas,
// and round pictures with and without one. The files are made here.
import assert from 'node:assert/strict';
import {writeFileSync} from 'node:fs';
import {join} from 'node:path';
import {test} from 'node:test';
import {PNG} from 'pngjs';
import {resize, standsAsMeasured, widgetScreen, windows} from '../support/widget_screen.mjs';

const red = [198, 40, 40], green = [46, 125, 50], blue = [21, 101, 192], yellow = [249, 168, 37];
const purple = [106, 27, 154], white = [255, 255, 255], black = [0, 0, 0];

/** Red and green above, blue and yellow below. */
function quarters(side = 40) {
    const png = new PNG({width: side, height: side});
    for (let i = 0; i < side * side; i++) {
        const [isRight, isBelow] = [i % side >= side / 2, i >= side * side / 2];
        png.data.set([...(isBelow ? isRight ? yellow : blue : isRight ? green : red), 255], 4 * i);
    }
    return PNG.sync.write(png);
}

/** One pixel of one colour. */
const dot = ([r, g, b]) => Buffer.from([
    ...Buffer.from('GIF89a'), 1, 0, 1, 0, 0x80, 0, 0, r, g, b, 0, 0, 0,
    0x2c, 0, 0, 0, 0, 1, 0, 1, 0, 0, 2, 2, 0x44, 0x01, 0, 0x3b]);

const square = '<svg xmlns="http://www.w3.org/2000/svg" width="40" height="40">' +
    '<rect width="40" height="40" fill="#6a1b9a"/></svg>';

const screen = widgetScreen('images', work => {
    writeFileSync(join(work, 'assets/நான்கு.png'), quarters());
    writeFileSync(join(work, 'assets/சதுரம்.svg'), square);
    writeFileSync(join(work, 'assets/அசைவு.gif'), dot(blue));
});

standsAsMeasured(screen, () => ({
    texts: [{text: 'கவி', middle: 40, y: 422, size: 40, colour: white}],
    colours: [
        [50, 45, red], [150, 45, green], [50, 95, blue], [150, 95, yellow], [205, 45, white],
        [25, 155, red], [75, 155, green], [25, 205, blue], [75, 205, yellow], [3, 133, white], [97, 227, white],
        [40, 280, purple], [2, 242, purple], [83, 280, white],
        [30, 350, blue], [62, 350, white], [1, 331, white],
        [15, 400, purple], [2, 382, white],
        [25, 495, red], [55, 525, yellow], [83, 510, black], [40, 467, black], [88, 510, white],
    ],
}));

test('an animation is one element above the canvas that lets clicks through', async () => {
    const page = await screen.open();
    await resize(page, windows[0]);
    const elements = await page.evaluate(() => [...document.querySelectorAll('img.pozhil-input')].map(image => {
        const {left, top, width, height} = image.getBoundingClientRect();
        const {pointerEvents, zIndex, display, borderRadius} = image.style;
        return {place: [left, top, width, height], pointerEvents, zIndex, display, borderRadius};
    }));
    assert.deepEqual(elements, [
        {place: [0, 330, 60, 40], pointerEvents: 'none', zIndex: '1500', display: 'block', borderRadius: '8px'}]);
});
