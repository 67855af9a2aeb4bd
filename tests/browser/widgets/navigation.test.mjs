// The bars that lead through an application: tabs change what a page shows, the bar at its foot goes
// from page to page, and both show which item is chosen.
import assert from 'node:assert/strict';
import {writeFileSync} from 'node:fs';
import {join} from 'node:path';
import {test} from 'node:test';
import {PNG} from 'pngjs';
import {photograph, pixel, press, until} from '../support/browser.mjs';
import {holdPicture, shapes} from '../support/golden.mjs';
import {tap, telephone} from '../support/telephone.mjs';
import {resize, standsAsMeasured, texts, widgetScreen, windows} from '../support/widget_screen.mjs';

const blue = [33, 150, 243], white = [255, 255, 255], pale = [224, 224, 224], grey = [117, 117, 117];
const home = [255, 243, 224], help = [232, 245, 233], black = [33, 33, 33];
const orange = [255, 87, 34], paleOrange = orange.map(channel => (channel + 255) / 2);

function icon() {
    const png = new PNG({width: 24, height: 24});
    for (let i = 0; i < 24 * 24; i++) png.data.set([...orange, 255], 4 * i);
    return PNG.sync.write(png);
}

const screen = widgetScreen('navigation', folder => writeFileSync(join(folder, 'icon.png'), icon()));

const third = (width, i) => width / 6 * (2 * i + 1);
const tab = (text, width, i, isChosen) => ({
    text, middle: third(width, i), y: isChosen ? 17.5 : 18, size: isChosen ? 15 : 14, colour: isChosen ? white : pale,
});
const item = (text, middle, height, isChosen) =>
    ({text, middle, y: height - 20, size: 11, colour: isChosen ? blue : grey});

standsAsMeasured(screen, ({width, height, scale}) => ({
    texts: [
        tab('பாடல்', width, 0), tab('ஓவியம்', width, 1, true), tab('கதை', width, 2),
        {text: 'ஓவியங்கள்', x: 0, y: 120, size: 20 * scale},
        {text: '0', x: 0, y: 150, size: 20 * scale},
        item('வீடு', third(width, 0), height, true), item('உதவி', third(width, 1), height),
        item('எண்', third(width, 2), height),
    ],
    colours: [
        [5, 25, blue], [width - 5, 25, blue], [third(width, 0), 48, blue], [third(width, 2), 48, blue],
        [width / 3 + 3, 48, white], [2 * width / 3 - 3, 48, white], [width / 2, 45, blue], [width / 2, 60, home],
        [third(width, 0), height - 34, orange], [third(width, 0) - 11, height - 45, orange],
        [third(width, 0) + 11, height - 23, orange], [third(width, 2), height - 34, paleOrange],
        [third(width, 1), height - 34, white], [5, height - 63, white], [5, height - 5, white], [5, height - 80, home],
    ],
}));

const cursor = page => page.evaluate(() => document.body.style.cursor);
const find = async (page, wanted) => (await texts(page)).find(({text}) => text === wanted);
const shows = (page, wanted) => until(() => find(page, wanted), `'${wanted}'`);
const isChosenTab = (page, wanted) => until(async () =>
    (await texts(page)).filter(({size}) => size === 15).map(({text}) => text).join() === wanted, `the tab '${wanted}'`);
const isChosenItem = (page, wanted) => until(async () =>
    (await texts(page)).filter(({colour}) => colour === '#2196f3').map(({text}) => text).join() === wanted,
    `the item '${wanted}'`);
const becomes = (page, x, y, colour) => until(async () =>
    (await pixel(page, x, y)).every((channel, i) => Math.abs(channel - colour[i]) <= 2), `${colour} at ${x}, ${y}`);

test('a tab is chosen by a press and changes what the page shows', async () => {
    const page = await screen.open();
    await resize(page, windows[2]);
    await press(page, 40, 10);
    await isChosenTab(page, 'பாடல்');
    await shows(page, 'பாடல்கள்');
    await shows(page, '1');
    await becomes(page, 20, 48, white);
    await becomes(page, 200, 48, blue);
    assert.equal(await cursor(page), 'pointer');
    await press(page, 390, 40);
    await isChosenTab(page, 'கதை');
    await shows(page, 'கதைகள்');
    await shows(page, '2');
    await press(page, 390, 80);
    await until(async () => await cursor(page) === 'default', 'the pointer to be off the bar');
    assert.ok(await find(page, '2'), 'a press below the bar is none of its own');
});

test('an item of the bar at the foot is told of its press and moves nothing', async () => {
    const page = await screen.open();
    await press(page, 380, 545);
    await shows(page, '3');
    assert.equal(await cursor(page), 'pointer');
    await isChosenItem(page, 'வீடு');
    await press(page, 20, 590);
    await press(page, 380, 530);
    assert.ok(await find(page, '3'), 'nor is an item without a handler, or a press above the bar');
});

test('an item goes to another page, whose bar shows it as chosen, and back', async () => {
    const page = await screen.open();
    await press(page, 200, 570);
    await shows(page, 'உதவிப் பக்கம்');
    await isChosenItem(page, 'உதவி');
    await page.mouse.move(200, 300);
    await becomes(page, 5, 500, help);
    await becomes(page, 5, 590, black);
    holdPicture('navigation_other_page', await shapes(page));
    assert.equal(await find(page, 'கதை'), undefined);
    await press(page, 60, 570);
    await isChosenItem(page, 'வீடு');
    await isChosenTab(page, 'கதை');
    await becomes(page, 5, 500, home);
});

test('all of it is reached by touch on a telephone', async () => {
    const page = await screen.open(2, telephone());
    await photograph(page, 'navigation_on_telephone');
    await tap(page, 65, 25);
    await isChosenTab(page, 'பாடல்');
    await shows(page, 'பாடல்கள்');
    await tap(page, 325, 810);
    await shows(page, '2');
    await tap(page, 195, 810);
    await isChosenItem(page, 'உதவி');
    await becomes(page, 5, 400, help);
    await tap(page, 97, 810);
    await isChosenTab(page, 'பாடல்');
    await becomes(page, 5, 400, home);
    assert.deepEqual(page.problems.filter(line => !line.includes('ERR_FAILED')), []);
});
