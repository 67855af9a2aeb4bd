// Columns, rows and lists in the browser: the wheel, the bar, the way to a widget, shares of the window.
import assert from 'node:assert/strict';
import {after, before, test} from 'node:test';
import {launch, openPage, photograph, pixels, until} from './support/browser.mjs';
import {nextFrames} from './support/frames.mjs';
import {address, makeWorkplace, startCompiler, tidyUp} from './support/tool.mjs';

const source = (title, body) => `வலைதளம் அடுக்கு(
    தலைமை(
        இணைய_தலைப்பு: "${title}"
        பின்னணி: "#FFFFFF"
    )
    குமரி(
        ${body}
    )
    வரையறை()
)
`;

/** A ticked box: a rectangle of one colour, except where its tick is. */
const box = (colour, width, height, id = '') => 'தேர்வுபெட்டி(தேர்வுபெட்டிநிலை: மெய், ' +
    `தேர்வு_நிறம்: "${colour}", அகலம்: ${width}, உயரம்: ${height}${id && `, அடையாளம்: "${id}"`})`;
const greenBox = '#2E7D32', blueBox = '#1565C0', redBox = '#C62828';
const green = [46, 125, 50], blue = [21, 101, 192], red = [198, 40, 40], white = [255, 255, 255];
const bar = [155, 155, 155];

/** A window that is drawn quickly. */
const small = {width: 640, height: 360};

let workplace, compiler, browser, page;

before(async () => {
    workplace = makeWorkplace();
    workplace.write('நிரல்.பொழில்', source('தொடக்கம்', 'நெடுவரிசை()'));
    compiler = startCompiler(workplace, 'நிரல்.பொழில்');
    await until(() => compiler.output.includes('🌍 பிரவுசர்') || compiler.ended, 'the build', 120);
    browser = await launch();
    page = await openPage(browser);
    await page.setViewportSize(small);
    await page.goto(address);
});

after(() => tidyUp(browser, compiler, workplace));

/** Saves a page and waits until the browser shows it. */
async function show(title, body) {
    workplace.write('நிரல்.பொழில்', source(title, body));
    await until(async () => (await page.title().catch(() => '')) === title, `the page ${title}`, 120, 0);
}

const isEach = (colours, marks) => Object.entries(marks).every(([at, colour]) => colours[at].join() === colour.join());
/** Whether the window shows each colour of `marks` at its y in the column of pixels at x, now or soon. */
const showsDown = async (x, marks) =>
    isEach(await pixels(page, {x, y: 0, width: 1, height: page.viewportSize().height}), marks);
const seesDown = (x, marks) => until(() => showsDown(x, marks), `${JSON.stringify(marks)} down ${x}`);
/** The same for x in the row of pixels at y. */
const showsAcross = async (y, marks) =>
    isEach(await pixels(page, {x: 0, y, width: page.viewportSize().width, height: 1}), marks);
const seesAcross = (y, marks) => until(() => showsAcross(y, marks), `${JSON.stringify(marks)} across ${y}`);
const frames = count => nextFrames(page, count);
const goTo = id => page.evaluate(name => Module['நகர்த்து'](name), id);

test('the wheel scrolls a column, which stops at both ends', async () => {
    await show('நெடுவரிசை', `நெடுவரிசை(உருளும்பட்டை: மெய்)(
            ${box(greenBox, 100, 100, 'முதல்')}
            இவெ(உயரம்: 900)
            ${box(blueBox, 100, 100, 'நடு')}
            இவெ(உயரம்: 900)
            ${box(redBox, 100, 100, 'கடைசி')}
        )`);
    await seesDown(10, {5: green, 95: green, 105: white});
    await seesDown(636, {5: bar, 57: bar, 65: white});
    await photograph(page, 'column_at_its_start');

    await page.mouse.move(300, 100);
    await page.mouse.wheel(0, 700);
    await seesDown(10, {295: white, 305: blue});
    await page.mouse.wheel(0, 5000);
    await seesDown(10, {255: white, 265: red, 355: red});
    await seesDown(636, {293: white, 302: bar, 355: bar});
    await photograph(page, 'column_at_its_end');
    await page.mouse.wheel(0, -5000);
    await seesDown(10, {5: green, 105: white});
});

test('a request brings a widget 50 pixels below the top and clears itself', async () => {
    await goTo('நடு');
    await seesDown(10, {48: white, 54: blue});
    await frames(20);
    assert.ok(await showsDown(10, {48: white, 54: blue}));
    await photograph(page, 'column_at_a_widget');
    await page.mouse.wheel(0, 40);
    await seesDown(10, {8: white, 14: blue});
    await frames(10);
    assert.ok(await showsDown(10, {8: white, 14: blue}), 'it stays where the wheel left it');
});

test('a widget near the end comes as near as the column can go', async () => {
    await goTo('கடைசி');
    await seesDown(10, {255: white, 265: red});
    await frames(20);
    await page.mouse.wheel(0, -60);
    await seesDown(10, {315: white, 325: red});
    await frames(10);
    assert.ok(await showsDown(10, {315: white, 325: red}));
    await goTo('முதல்');
    await seesDown(10, {5: green, 105: white});
});

test('a plain wheel scrolls a row', async () => {
    await show('கிடைவரிசை', `கிடைவரிசை(உருளும்பட்டை: மெய்)(
            ${box(greenBox, 100, 100)}
            இவெ(அகலம்: 1500)
            ${box(redBox, 100, 100, 'கடைசி')}
        )`);
    await seesAcross(10, {5: green, 95: green, 105: white});
    await page.mouse.move(300, 100);
    await page.mouse.wheel(0, 50);
    await seesAcross(10, {45: green, 55: white});
    await page.mouse.wheel(30, 0);
    await seesAcross(10, {15: green, 25: white});
    await page.mouse.wheel(0, 5000);
    await seesAcross(10, {385: white, 395: red, 485: red, 495: white});
    await seesAcross(356, {413: white, 423: bar, 635: bar});
    await photograph(page, 'row_at_its_end');
    await page.mouse.wheel(0, -5000);
    await seesAcross(10, {5: green, 105: white});
    await goTo('கடைசி');
    await seesAcross(10, {385: white, 395: red});
});

test('a list centres its children and scrolls', async () => {
    await show('பட்டியல்', `பட்டியல்_காட்சி(
            ${box(greenBox, 100, 100)}
            இவெ(உயரம்: 900)
            ${box(redBox, 200, 100)}
        )`);
    await seesAcross(10, {265: white, 275: green, 365: green, 375: white});
    await page.mouse.move(300, 100);
    await page.mouse.wheel(0, 5000);
    await seesAcross(270, {215: white, 225: red, 415: red, 425: white});
    await seesDown(230, {255: white, 265: red});
    await seesDown(636, {238: white, 247: bar, 355: bar});
    await photograph(page, 'list_at_its_end');
    await page.mouse.wheel(0, -5000);
    await seesAcross(10, {275: green});
});

test('shares of one and two divide a row at every width', async () => {
    await show('பங்குகள்', `கிடைவரிசை(
            விரிவாக்கம்(${box(greenBox, 10, 50)})
            நெகிழ்வு(பங்கு: 2, ${box(redBox, 10, 50)})
        )`);
    for (const width of [1280, 700, 400]) {
        await page.setViewportSize({width, height: small.height});
        const third = Math.round(width / 3);
        await seesAcross(25, {5: green, [third - 5]: green, [third + 5]: red, [width - 5]: red});
        await photograph(page, `shares_at_${width}`);
    }
});

test('shares move the children of a column and don\'t stretch them', async () => {
    await show('உயரங்கள்', `நெடுவரிசை(
            விரிவாக்கம்(${box(greenBox, 100, 50)})
            நெகிழ்வு(பங்கு: 2, ${box(redBox, 100, 50)})
            ${box(blueBox, 100, 60)}
        )`);
    for (const height of [720, 360]) {
        await page.setViewportSize({width: small.width, height});
        const third = Math.round((height - 60) / 3);
        await seesDown(10, {5: green, 55: white, [third - 5]: white, [third + 5]: red,
            [third + 55]: white, [height - 65]: white, [height - 55]: blue, [height - 5]: blue});
        await photograph(page, `column_shares_at_${height}`);
    }
    // A page that comes again while the next build runs misses a file of it, and waits for it.
    const expected = /ERR_FAILED|404.*\/index\.(js|wasm|data)/;
    assert.deepEqual(page.problems.filter(line => !expected.test(line)), []);
});
