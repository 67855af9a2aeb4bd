// Choosing: what a pointer does to radios, a switch, a slider, a check box and dropdowns, what the
// program sees of it; and the same with a finger on a telephone.
import assert from 'node:assert/strict';
import {test} from 'node:test';
import {pixels, press, until} from '../support/browser.mjs';
import {nextFrames} from '../support/frames.mjs';
import {holdPicture, shapes} from '../support/golden.mjs';
import {texts, widgetScreen} from '../support/widget_screen.mjs';

const blue = [33, 150, 243], white = [255, 255, 255], grey = [224, 224, 224], hovered = [240, 240, 240];
const chosenInk = '#2196f3', ink = '#333333';

const screen = widgetScreen('choosing');
const onDesk = {viewport: {width: 500, height: 500}};
const onTelephone = {viewport: {width: 390, height: 844}, screen: {width: 390, height: 844}, isMobile: true, hasTouch: true};
const desk = () => screen.open(1, onDesk);
const telephone = () => screen.open(2, onTelephone);

// Tops by the measures: each 10 pixels below the foot of the one above.
const language = 30, radios = [56, 96], toggle = 136, toggles = 174, slider = 200, drags = 238;
const checkBox = 264, agreement = 298, dropdown = 324, selections = 374;
const track = {left: 20, right: 220, y: slider + 10};
const menu = dropdown + 40 + 4;  // its entries are 40 high
const entry = (top, i) => top + 40 * i + 20;
const column = 250;              // left edge of the one that scrolls

const textAt = async (page, x, y) => (await texts(page)).find(text => text.left === x && text.y === y)?.text;
/** What the text shows that stands at `y` in the first column, which the program fills. */
const tells = async (page, y, wanted) => until(async () => await textAt(page, 0, y) === wanted, `${wanted} at ${y}`);
const shows = (page, x, y, colour) => until(async () =>
    (await pixels(page, {x, y, width: 1, height: 1}))[0].join() === colour.join(), `${colour} at ${x}, ${y}`);
const cursor = page => page.evaluate(() => document.body.style.cursor);
const entriesOf = async (page, top, x = 15) => (await texts(page)).filter(({left, y}) =>
    left === x && y >= top && (y - top - 12) % 40 === 0).map(({text, colour}) => [text, colour]);
const menuBecomes = (page, top, wanted, x) => until(async () =>
    JSON.stringify(await entriesOf(page, top, x)) === JSON.stringify(wanted), `the menu ${wanted}`);

test('a radio asks the program, which moves the choice to it', async () => {
    const page = await desk();
    await tells(page, language, 'த');
    await shows(page, 10, radios[0] + 10, blue);
    await shows(page, 10, radios[1] + 10, white);
    await press(page, 10, radios[1] + 10);
    await tells(page, language, 'தெ');
    await shows(page, 10, radios[0] + 10, white);
    await shows(page, 10, radios[1] + 10, blue);
    await press(page, 60, radios[0] + 10);  // its label
    await tells(page, language, 'த');
    await shows(page, 10, radios[0] + 10, blue);
    await shows(page, 10, radios[1] + 10, white);
});

test('a switch turns at each click, also a little beside it, and tells the program', async () => {
    const page = await desk();
    const [left, right, middle] = [14, 34, toggle + 14];
    await shows(page, right, middle, grey);
    await press(page, 52, middle);
    await tells(page, toggles, '1');
    await shows(page, left, middle, blue);
    await shows(page, right, middle, white);
    await press(page, 10, middle);
    await tells(page, toggles, '2');
    await shows(page, left, middle, white);
    await shows(page, right, middle, grey);
});

test('no key turns a switch, and nothing that is drawn takes the focus', async () => {
    const page = await desk();
    await press(page, 240, 20);
    await page.mouse.move(24, toggle + 14);
    for (const key of ['Space', 'Enter', 'ArrowRight', 'Tab', 'Space', 'Enter']) {
        await page.keyboard.press(key);
        const focused = await page.evaluate(() => document.activeElement.id || document.activeElement.tagName);
        assert.ok(['BODY', 'canvas'].includes(focused), `${focused} after ${key}`);
    }
    await nextFrames(page);
    await shows(page, 14, toggle + 14, white);
    await tells(page, toggles, '2');
});

/** Waits until the value is shown above a held thumb, in its middle. */
const showsValue = (page, value) => until(async () =>
    (await texts(page)).some(({text, y}) => text === value && y === track.y - 25), `the value ${value}`);
const released = page => until(async () =>
    !(await texts(page)).some(({y}) => y === track.y - 25), 'the released thumb');
const thumbStands = async (page, x) => {
    await shows(page, x, track.y, white);
    if (x > track.left) await shows(page, x - 15, track.y, blue);
    if (x < track.right) await shows(page, x + 15, track.y, grey);
};
const count = async page => Number(await textAt(page, 0, drags));

test('a slider follows the pointer that holds it, up to both of its ends', async () => {
    const page = await desk();
    await thumbStands(page, track.left);
    assert.equal(await count(page), 0);
    await page.mouse.move(70, track.y);
    await nextFrames(page);
    assert.equal(await count(page), 0, 'nothing is held yet');
    await page.mouse.down();
    await showsValue(page, '25');
    await page.mouse.move(120, track.y + 15);
    await showsValue(page, '50');
    holdPicture('choosing_slider', await shapes(page));
    await page.mouse.move(track.right + 8, track.y);
    await showsValue(page, '100');
    await page.mouse.move(track.left - 8, track.y);
    await showsValue(page, '0');
    await page.mouse.move(170, track.y);
    await showsValue(page, '75');
    const before = await count(page);
    await until(async () => await count(page) > before, 'the program, told in each frame');
    await page.mouse.move(track.right + 15, track.y);
    await released(page);
    await page.mouse.up();
    await thumbStands(page, 170);
});

test('a press on its track brings the thumb there, and a pointer that passes leaves it there', async () => {
    const page = await desk();
    await page.mouse.move(60, track.y);
    await page.mouse.down();
    await showsValue(page, '20');
    await page.mouse.up();
    await released(page);
    const before = await count(page);
    await page.mouse.move(140, track.y);
    await nextFrames(page);
    await thumbStands(page, 60);
    assert.equal(await count(page), before);
});

test('a check box tells the program what it is, by its box and by its label', async () => {
    const page = await desk();
    await tells(page, agreement, 'பொய்');
    await press(page, 12, checkBox + 12);
    await tells(page, agreement, 'மெய்');
    await shows(page, 3, checkBox + 12, blue);
    await press(page, 24 + 12 + 20, checkBox + 12);
    await tells(page, agreement, 'பொய்');
    await shows(page, 3, checkBox + 12, white);
});

test('a dropdown opens below itself, takes one entry, and tells the program', async () => {
    const page = await desk();
    await menuBecomes(page, menu, []);
    assert.equal(await textAt(page, 15, dropdown + 12), 'தேர்ந்தெடு...');
    await press(page, 100, dropdown + 20);
    await menuBecomes(page, menu, [['சென்னை', ink], ['மதுரை', ink], ['கோவை', ink]]);
    await page.mouse.move(100, entry(menu, 1));
    await shows(page, 190, entry(menu, 1), hovered);
    assert.equal(await cursor(page), 'pointer');
    holdPicture('choosing_menu', await shapes(page));
    await press(page, 100, entry(menu, 1));
    await menuBecomes(page, menu, []);
    assert.equal(await textAt(page, 15, dropdown + 12), 'மதுரை');
    await tells(page, selections, '1');
});

test('a click elsewhere closes the menu and chooses nothing', async () => {
    const page = await desk();
    await press(page, 100, dropdown + 20);
    await menuBecomes(page, menu, [['சென்னை', ink], ['மதுரை', chosenInk], ['கோவை', ink]]);
    await press(page, 240, 20);
    await menuBecomes(page, menu, []);
    assert.equal(await textAt(page, 15, dropdown + 12), 'மதுரை');
    await tells(page, selections, '1');
});

test('in a scrolled column the menu opens at the box, wider than the column, and closes', async () => {
    const page = await desk();
    const [left, beyond] = [column + 15, column + 150 + 30];
    await page.mouse.move(column + 50, 50);
    await page.mouse.wheel(0, 120);
    const top = 300 - 120;
    await until(async () => await textAt(page, left, top + 12) === 'தேர்ந்தெடு...', 'the box after the wheel');
    await press(page, column + 50, top + 20);
    await menuBecomes(page, top + 44, [['நெல்', ink], ['கரும்பு', ink]], left);
    await page.mouse.move(beyond, entry(top + 44, 1));
    await shows(page, beyond, entry(top + 44, 1), hovered);
    await shows(page, beyond, top + 20, white);
    holdPicture('choosing_scrolled', await shapes(page));
    await press(page, column + 50, 20);
    await menuBecomes(page, top + 44, [], left);
    assert.equal(await textAt(page, left, top + 12), 'தேர்ந்தெடு...');
    assert.deepEqual(page.problems.filter(line => !line.includes('ERR_FAILED')), []);
});

/** Taps, and waits until a frame has taken it. */
async function tap(page, x, y) {
    await page.touchscreen.tap(x, y);
    await until(() => page.evaluate(() => !window.mouseClicked), 'a frame to take the tap');
}

test('on a telephone a finger chooses too', async () => {
    const page = await telephone();
    await tap(page, 10, radios[1] + 10);
    await tells(page, language, 'தெ');
    await shows(page, 10, radios[1] + 10, blue);
    await tap(page, 24, toggle + 14);
    await tells(page, toggles, '1');
    await shows(page, 34, toggle + 14, white);
    await tap(page, 12, checkBox + 12);
    await tells(page, agreement, 'மெய்');
    await tap(page, 100, dropdown + 20);
    await menuBecomes(page, menu, [['சென்னை', ink], ['மதுரை', ink], ['கோவை', ink]]);
    await tap(page, 100, entry(menu, 2));
    await menuBecomes(page, menu, []);
    assert.equal(await textAt(page, 15, dropdown + 12), 'கோவை');
    await tells(page, selections, '1');
    await tap(page, 100, dropdown + 20);
    await menuBecomes(page, menu, [['சென்னை', ink], ['மதுரை', ink], ['கோவை', chosenInk]]);
    await tap(page, 200, 600);
    await menuBecomes(page, menu, []);
});
