// Messages: a bar that slides in over the page, waits, and goes by itself; a second one takes its place.
// Time stands still in these tests but where they let it pass, so that no bar goes before it was seen.
import assert from 'node:assert/strict';
import {test} from 'node:test';
import {photograph, press, until} from '../support/browser.mjs';
import {passTime, stopClock} from '../support/clock.mjs';
import {giveFrames, nextFrames} from '../support/frames.mjs';
import {readPicture, shapes} from '../support/golden.mjs';
import {tap, telephone} from '../support/telephone.mjs';
import {inkIn, near, resize, standsAsMeasured, texts, widgetScreen, windows} from '../support/widget_screen.mjs';

const dark = [51, 51, 51], green = [46, 125, 50], blue = [33, 150, 243], behind = [224, 247, 250];
const white = [255, 255, 255];
const stays = 2500;           // milliseconds
const [above, shown] = [-100 + 18, 40 + 18];  // where the text of a bar stands that is away, and one that is there
const [save, explain, finish] = [170, 230, 290];  // the middles of the buttons
const screen = widgetScreen('messages');

/** The text of the bar, if there is one. */
const barText = async page => (await texts(page)).find(({y, colour}) => y < 100 && colour === '#ffffff');
const comes = (page, text) => until(async () => {
    const bar = await barText(page);
    return bar?.text.startsWith(text) && Math.abs(bar.y - shown) < 0.001;
}, `the message '${text}'`);
const goes = page => until(async () => !await barText(page), 'the end of the message');

/** Waits for the message in a window whose frames are quick: a bar needs forty to come to rest. */
async function comesToRest(page, text) {
    const size = page.viewportSize();
    await page.setViewportSize({width: 320, height: 160});
    giveFrames(40, page);
    await comes(page, text);
    await resize(page, size);
}

/** Shows the message of the button at that height, and takes the pointer away. */
async function show(page, button, text) {
    const {width} = page.viewportSize();
    await stopClock(page);
    await press(page, width / 2, button);
    await page.mouse.move(5, 590);
    await comesToRest(page, text);
}

standsAsMeasured(screen, ({width, scale}) => {
    const label = (text, centre) =>
        ({text, middle: width / 2, y: centre - 8 * scale + 2, size: 16 * scale, colour: white});
    return {
        texts: [
            {text: 'பின்னால்', middle: width / 2, y: 82, size: 12 * scale, isCovered: true},
            label('சேமி', save), label('விளக்கு', explain), label('முடி', finish),
            {text: 'சேமிக்கப்பட்டது', middle: width / 2, y: shown, size: 16, colour: white},
        ],
        colours: [
            [width / 2 - 148, 67, dark], [width / 2 + 147, 67, dark], [width / 2, 42, dark], [width / 2, 93, dark],
            [width / 2 - 175, 67, behind], [width / 2 + 175, 67, behind],
            [width / 2 - 75, save, blue], [5, 300, behind],
        ],
    };
}, {arrange: page => show(page, save, 'சேமிக்கப்பட்டது')});

/** Whether the shapes have a colour at x, y. */
async function holds(page, marks) {
    const {data, width} = readPicture(await shapes(page));
    for (const [x, y, colour, isThere = true] of marks) {
        const at = 4 * (y * width + x);
        const found = [...data.subarray(at, at + 3)];
        assert.equal(found.join() === colour.join(), isThere, `${x}, ${y} is ${found}`);
    }
}

test('is as wide as its text and 80 more, and never wider than the window less 40', async () => {
    const page = await screen.open();
    await resize(page, windows[0]);
    await show(page, explain, 'இந்தச்');
    const {left, width} = await barText(page);
    assert.ok(width > 300, `the text is ${width} wide`);
    const [from, to] = [Math.round(left - 40), Math.round(left + width + 40)];
    await holds(page, [
        [from + 3, 67, green], [to - 4, 67, green], [from - 3, 67, green, false], [to + 3, 67, green, false],
    ]);
    await resize(page, windows[2]);
    await holds(page, [[22, 67, green], [377, 67, green], [17, 67, green, false], [382, 67, green, false]]);
    const narrow = await barText(page);
    near(narrow.width, width, 0.01, 'the width of the text');
    assert.ok(narrow.left < 0, `the text begins at ${narrow.left}`);
    await photograph(page, 'message_wider_than_window');
});

/**
 * From now on each frame notes the text of the bar on `window.bars`. When that stands above `y` for the
 * first time, `click` happens at once, before the next frame.
 */
const follow = (page, {y = -Infinity, click = [0, 0]} = {}) => page.evaluate(({y, click}) => {
    let current = window.texts, isWaiting = true;
    window.bars = [];
    Object.defineProperty(window, 'texts', {configurable: true, get: () => current, set(texts) {
        current = texts;
        const bar = texts.find(({y, colour}) => y < 100 && colour === '#ffffff');
        window.bars.push(bar ? {text: bar.text, y: bar.y} : null);
        if (!isWaiting || !bar || bar.y >= y) return;
        isWaiting = false;
        for (const kind of ['mousemove', 'mousedown', 'mouseup']) {
            window.dispatchEvent(new MouseEvent(kind, {clientX: click[0], clientY: click[1]}));
        }
    }});
}, {y, click});
const followed = page => page.evaluate(() => window.bars);

/** The bars from `start` on come down to their place, a quarter of the way in each frame. */
function holdsComing(bars, start, text) {
    for (let frame = 1; frame <= 6; frame++) {
        const bar = bars[start + frame - 1];
        assert.equal(bar.text, text);
        near(bar.y, shown - 140 * 0.75 ** frame, 0.01, `frame ${frame}`);
    }
}

test('comes a quarter of its way in each frame, stays its time, and goes as it came', async () => {
    const page = await screen.open();
    await resize(page, windows[2]);
    await show(page, finish, 'முடிந்தது');
    await follow(page);
    await show(page, save, 'சேமிக்கப்பட்டது');
    const bars = await followed(page);
    const start = bars.findIndex(bar => bar.text !== 'முடிந்தது');
    assert.ok(start >= 0, 'the second one came');
    holdsComing(bars, start, 'சேமிக்கப்பட்டது');

    await passTime(page, stays - 1);
    await nextFrames(page);
    near((await barText(page)).y, shown, 0.001, 'y until its time is over');
    await follow(page);
    await passTime(page, 2);
    await goes(page);
    const leaving = (await followed(page)).filter(bar => bar && bar.y < shown - 0.01);
    assert.equal(leaving.length, 9);  // the tenth would end above -90
    leaving.forEach((bar, i) => near(bar.y, above + 140 * 0.75 ** (i + 1), 0.01, `frame ${i + 1} of its way out`));
    const ink = await inkIn(page, {left: 150, top: 82, width: 100, height: 14});
    assert.ok(ink.pixels > 10, 'the text behind it is back');
});

test('comes anew from above when it is asked for while another goes', async () => {
    const page = await screen.open();
    await show(page, save, 'சேமிக்கப்பட்டது');
    await follow(page, {y: 20, click: [200, finish]});
    await passTime(page, stays + 1);
    await comesToRest(page, 'முடிந்தது');
    const bars = await followed(page);
    const start = bars.findIndex(bar => bar?.text === 'முடிந்தது');
    const last = bars[start - 1];
    assert.equal(last?.text, 'சேமிக்கப்பட்டது');
    assert.ok(last.y < 20 && last.y > above, `the first was on its way out, at ${last.y}`);
    holdsComing(bars, start, 'முடிந்தது');
    await passTime(page, stays - 1);
    await nextFrames(page);
    assert.equal((await barText(page)).text, 'முடிந்தது', 'it has its whole time');
});

test('comes by touch on a telephone', async () => {
    const page = await screen.open(2, telephone());
    await stopClock(page);
    await tap(page, 195, explain);
    await comesToRest(page, 'இந்தச்');
    await photograph(page, 'message_on_telephone');
    await tap(page, 195, save);
    await comesToRest(page, 'சேமிக்கப்பட்டது');
    await passTime(page, stays + 1);
    await goes(page);
    assert.deepEqual(page.problems.filter(line => !line.includes('ERR_FAILED')), []);
});
