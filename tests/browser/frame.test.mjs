// The frame around the widgets: pages and the videos behind them, overlays, the pointer that is
// hidden from the page under them, and the snackbar. Statements written by hand stand in for widgets.
import assert from 'node:assert/strict';
import {mkdirSync, readFileSync, writeFileSync} from 'node:fs';
import {dirname, join} from 'node:path';
import {after, before, test} from 'node:test';
import {fileURLToPath} from 'node:url';
import {launch, openPage, photograph, pixel, press, until} from './support/browser.mjs';
import {address, makeWorkplace, startCompiler, tidyUp} from './support/tool.mjs';

const here = dirname(fileURLToPath(import.meta.url));

const application = (name, header) => `வலைதளம் ${name}(
    தலைமை(
${header.map(line => `        ${line}\n`).join('')}    )
    குமரி(
        உரை("${name}")
    )
    வரையறை(
        எண்ணிக்கை = 0
    )
)
`;

let workplace, compiler, browser, page;

before(async () => {
    workplace = makeWorkplace();
    workplace.drawByHand(readFileSync(join(here, 'drawn_by_hand.inc'), 'utf8'));
    mkdirSync(join(workplace.work, 'assets'));
    for (const name of ['one', 'two']) writeFileSync(join(workplace.work, `assets/${name}.mp4`), name);
    workplace.write('நிரல்.பொழில்',
        application('முதல்பக்கம்', ['பக்கம்: "அ"', 'பின்னணி: "#FFF3E0"']) +
        application('அடுத்தபக்கம்', ['பக்கம்: "ஆ"', 'பின்னணி: "#E0F7FA"']) +
        application('ஒருகாட்சி', ['பக்கம்: "இ"', 'பின்னணிகாணொளி: "assets/one.mp4"']) +
        application('மறுகாட்சி', ['பக்கம்: "ஈ"', 'பின்னணிகாணொளி: "assets/two.mp4"']));
    compiler = startCompiler(workplace, 'நிரல்.பொழில்');
    await until(() => compiler.output.includes('🌍 பிரவுசர்') || compiler.ended, 'the first build', 120);
    assert.ok(compiler.output.includes('வெற்றி!'), compiler.output);
    browser = await launch();
    page = await openPage(browser);
    await page.goto(address);
    await until(seen, 'the first frame');
});

after(() => tidyUp(browser, compiler, workplace));

const seen = () => page.evaluate(() => window.seen);
const tell = command => page.evaluate(text => Module.set_input_value('command', text), command);
const untilSeen = (holds, what) => until(async () => holds(await seen()), what);

test('starts on the first page and goes where it is told', async () => {
    assert.equal((await seen()).page.name, 'அ');
    assert.deepEqual(await pixel(page, 1200, 700), [0xff, 0xf3, 0xe0]);
    await tell('go ஆ');
    await untilSeen(({page}) => page.name === 'ஆ', 'the other page');
    assert.deepEqual(await pixel(page, 1200, 700), [0xe0, 0xf7, 0xfa]);
});

test('a click reaches the page once', async () => {
    await press(page, 300, 200);
    await untilSeen(({page}) => page.clicks === 1, 'the click');
    const {page: {x, xInScript}, overlay} = await seen();
    assert.deepEqual([x, xInScript], [300, 300]);
    assert.equal(overlay.clicks, 0);
});

test('an overlay hides the pointer and the wheel from the page and takes the click', async () => {
    await tell('warn');
    await untilSeen(({overlay}) => overlay.x === 300, 'the overlay');
    await untilSeen(({page}) => page.x === -9999 && page.xInScript === -9999, 'the blinded page');
    await press(page, 310, 200);
    await untilSeen(({overlay}) => overlay.clicks === 1, 'the click on the overlay');
    await untilSeen(({page}) => page.x === 310, 'the page to see again');
    const {page: {clicks}, overlay} = await seen();
    assert.equal(clicks, 1, 'only the click of before');
    assert.equal(overlay.clicks, 1);
});

test('what an overlay pushes is drawn in the same frame', async () => {
    const {overlay: {pushed}} = await seen();
    assert.ok(pushed > 0);
    assert.equal(pushed % 100, 0);
});

test('a click under the overlay is lost to the page also later', async () => {
    await press(page, 320, 200);
    await untilSeen(({page}) => page.clicks === 2, 'a click that follows');
    assert.equal((await seen()).overlay.clicks, 1);
});

const isBar = colour => colour.join() === '200,30,60';
const barAt = async (x, y) => isBar(await pixel(page, x, y));

test('the snackbar slides in and stands over the page', async () => {
    await tell('keep saying வணக்கம்');
    await until(() => barAt(640, 90), 'the bar');
    await photograph(page, 'snackbar');
    assert.ok(await barAt(495, 70), 'it is at least 300 wide');
    assert.ok(!await barAt(485, 70));
    assert.ok(!await barAt(640, 36), 'and stands 40 below the top');
    assert.ok(!await barAt(640, 99), 'and is 55 high');
});

test('the snackbar of a long text leaves 20 pixels at each side', async () => {
    await tell('keep saying ' + 'நீளமான செய்தி '.repeat(40));
    await until(() => barAt(25, 85), 'the bar');
    assert.ok(await barAt(1255, 85));
    assert.ok(!await barAt(15, 85));
    assert.ok(!await barAt(1265, 85));
    await photograph(page, 'snackbar_long');
});

test('the snackbar goes by itself after two and a half seconds', async () => {
    await tell('say வணக்கம்');
    await untilSeen(({snackbar}) => snackbar.shownFor > 0, 'its time');
    const {snackbar: {shownFor}} = await seen();
    assert.ok(shownFor > 2500, `it showed for ${shownFor} ms`);
    assert.deepEqual(await pixel(page, 640, 45), [0xe0, 0xf7, 0xfa]);
});

const video = () => page.evaluate(async () => {
    const elements = document.getElementsByTagName('video');
    const {id, src, style} = elements[0];
    return [elements.length, id, style.zIndex, await (await fetch(src)).text()];
});

test('each page starts its video once, in one element', async () => {
    assert.equal(await page.locator('video').count(), 0);
    await tell('go இ');
    await untilSeen(({page}) => page.name === 'இ', 'the first page with a video');
    assert.deepEqual(await video(), [1, 'pozhilVideo', '-1', 'one']);
    await tell('go ஈ');
    await untilSeen(({page}) => page.name === 'ஈ', 'the second page with a video');
    assert.deepEqual(await video(), [1, 'pozhilVideo', '-1', 'two']);
    await tell('go இ');
    await untilSeen(({page}) => page.name === 'இ', 'the first page again');
    assert.deepEqual(await video(), [1, 'pozhilVideo', '-1', 'two'], 'it has started before');
});

test('a page that is not there draws nothing', async () => {
    await tell('go எங்கோ');
    await until(() => page.evaluate(() => {
        const layer = document.getElementById('textCanvas');
        const {data} = layer.getContext('2d').getImageData(0, 0, layer.width, layer.height);
        return data.every(byte => byte === 0);
    }), 'the text to be gone');
    assert.deepEqual(page.problems.filter(line => !line.includes('ERR_FAILED')), []);
});
