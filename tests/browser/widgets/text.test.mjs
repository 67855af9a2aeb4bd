// Texts: sizes, colours, weights, lines under them, one line that shrinks, and Tamil that is shaped.
import assert from 'node:assert/strict';
import {test} from 'node:test';
import {shoot} from '../support/frames.mjs';
import {readPicture} from '../support/golden.mjs';
import {inkIn, near, resize, standsAsMeasured, texts, widgetScreen, windows} from '../support/widget_screen.mjs';

const screen = widgetScreen('text');
const long = 'ஒரு வரியில் அடங்காத அளவுக்கு மிக நீளமான ஒரு சொற்றொடர் இங்கே நிற்கிறது';
const shaped = 'கொடி கௌதாரி ஸ்ரீ க்கு';

// Lines of the column are as high as the texts are in the source.
standsAsMeasured(screen, ({width, scale}) => ({
    texts: [
        {text: 'வணக்கம் உலகம்', x: 0, y: 20, size: 40 * scale},
        {text: shaped, x: 0, y: 60, size: 30 * scale, colour: [198, 40, 40]},
        {text: 'தடித்தது', x: 0, y: 110, size: 30 * scale, weight: 'bold'},
        {text: 'அடிக்கோடு', x: 0, y: 140, size: 30 * scale},
        {text: 'நடுவில்', x: 0, y: 170, size: 30 * scale},
        {text: 'பொழில்', x: 0, y: 200, size: 16 * scale},
        {text: long, x: 0, y: 216, width: width - 20},
    ],
    colours: [],
}), {pictured: []});

test('a line under a text is as long as the text', async () => {
    const page = await screen.open();
    await resize(page, windows[0]);
    const {left, width, y} = (await texts(page)).find(({text}) => text === 'அடிக்கோடு');
    const whole = Math.floor(width);
    const line = await inkIn(page, {left, top: y + 4, width: whole, height: 2});
    assert.equal(line.pixels, 2 * whole);
    const behind = await inkIn(page, {left: left + whole + 1, top: y + 4, width: 20, height: 2});
    assert.equal(behind.pixels, 0);
    const {y: plain} = (await texts(page)).find(({text}) => text === 'நடுவில்');
    const none = await inkIn(page, {left, top: plain + 4, width: whole, height: 2});
    assert.ok(none.pixels < whole, 'no line under another');
});

const hidden = 'visibility: hidden !important;';
const onlyLayer = `#canvas { ${hidden} } #textCanvas { filter: brightness(0); } body { background: white !important; }`;
const onlyElement = `#canvas, #textCanvas { ${hidden} } body { background: white !important; }`;

/** Photographs of a text of the layer, and of the same string as an element of the document. */
async function bothWays(page, {text, font, left, y, width, size}) {
    const clip = {x: left, y, width: Math.ceil(width) + 4, height: Math.ceil(1.45 * size)};
    const layer = await shoot(page, {clip, style: onlyLayer});
    await page.evaluate(({text, font, left, y}) => {
        const element = document.body.appendChild(document.createElement('div'));
        element.id = 'element';
        element.textContent = text;
        Object.assign(element.style, {position: 'absolute', left: `${left}px`, top: `${y}px`, color: 'black',
            whiteSpace: 'pre', font, lineHeight: 1.35});
    }, {text, font, left, y});
    const element = await page.screenshot({clip, style: onlyElement});
    const elementWidth = await page.evaluate(() => document.getElementById('element').getBoundingClientRect().width);
    await page.evaluate(() => document.getElementById('element').remove());
    return {layer, element, elementWidth};
}

/** How many columns lie between the first and the last that have ink. */
function widthOfInk(shot) {
    const {width, data} = readPicture(shot);
    const columns = [...data.keys()].filter(i => i % 4 === 1 && data[i] < 128).map(i => (i - 1) / 4 % width);
    return Math.max(...columns) - Math.min(...columns) + 1;
}

test('Tamil is shaped as the browser shapes it, and is no row of boxes', async () => {
    const page = await screen.open();
    await resize(page, windows[0]);
    const drawn = (await texts(page)).find(({text}) => text === shaped);
    const {layer, element, elementWidth} = await bothWays(page, drawn);
    near(drawn.width, elementWidth, 0.5, 'the width');
    near(widthOfInk(layer), widthOfInk(element), 1, 'the width of the ink');
    const apart = await page.evaluate(({text, font}) => {
        const ctx = new OffscreenCanvas(10, 10).getContext('2d');
        ctx.font = font;
        return [...text].reduce((sum, sign) => sum + ctx.measureText(sign).width, 0);
    }, drawn);
    assert.ok(drawn.width < 0.9 * apart, `${drawn.width} wide, its signs one by one ${apart}`);
});
